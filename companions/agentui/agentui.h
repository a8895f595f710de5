// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

namespace platform::ui {
class ComboBox;
class Window;
}  // namespace platform::ui

namespace agentui {

/// Sizes of the buffers that the two list dialogs fill, terminating zero included.
inline constexpr std::size_t kAddressBufferSize = 40;
inline constexpr std::size_t kCommunityBufferSize = 264;

/// Keeps the console's recently used lists (newest first) and carries test requests to the alert server.
class AgentUi {
 public:
  virtual ~AgentUi() = default;

  /// Puts the recently used program paths into an empty drop-down, newest first.
  virtual void FillComboWithMRUList(platform::ui::ComboBox& combo) = 0;
  /// Records a program path. Here and below: the newest entry moves to the front, an empty text is not
  /// recorded.
  virtual void AddEntryToMRUList(const char* program) = 0;
  /// Releases what FillComboWithMRUList attached to the drop-down's items.
  virtual void FreeComboMRUData(platform::ui::ComboBox& combo) = 0;

  /// Records a network address or server name.
  virtual void AddIPAddressToMRUList(const char* address) = 0;
  /// Records an SNMP community name.
  virtual void AddCommunityNameToMRUList(const char* community) = 0;

  /// Modal choice from the recently used addresses. `buffer` has kAddressBufferSize bytes and holds "" on
  /// entry; it receives the choice, cut to the buffer on a character boundary, or stays as it is when nothing
  /// was chosen.
  virtual void DisplayIPAddressMRUListDialog(platform::ui::Window* parent, char* buffer) = 0;
  /// The same for community names, with a buffer of kCommunityBufferSize bytes.
  virtual void DisplayCommunityNameMRUListDialog(platform::ui::Window* parent, char* buffer) = 0;

  /// Registers what is called, on any thread and at any later time, when the alert server reports on a test.
  virtual void RegisterTestButtonCallbackMessageHandler(void (*callback)(std::uint32_t)) = 0;
  /// Hands the 20-byte test request at `request` to the alert server.
  virtual void SendTestButtonToAlertServer(const void* request) = 0;
  /// Shows the alert server's report; `value` is what the callback received, `parent` may be null.
  virtual void DisplayTestEventResultsDialog(platform::ui::Window* parent, std::uint32_t value) = 0;
};

/// The real component. The lists are kept in `recent.json` in the data directory, 20 entries each. Test
/// requests are not carried yet: the three test operations do nothing.
std::unique_ptr<AgentUi> MakeAgentUi();

}  // namespace agentui
