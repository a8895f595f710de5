// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
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
  /// entry; it receives the choice, or stays as it is when nothing was chosen. Entries that the buffer has no
  /// room for are not offered.
  virtual void DisplayIPAddressMRUListDialog(platform::ui::Window* parent, char* buffer) = 0;
  /// The same for community names, with a buffer of kCommunityBufferSize bytes.
  virtual void DisplayCommunityNameMRUListDialog(platform::ui::Window* parent, char* buffer) = 0;

  /// Registers what is called, on any thread and at any later time, with the number of a test that has a report. A null
  /// callback ends that.
  virtual void RegisterTestButtonCallbackMessageHandler(void (*callback)(std::uint32_t)) = 0;
  /// Hands the 20-byte test request at `request` (test_request.h) to the alert server; the record that it names is
  /// copied. Nothing is sent for one that is null or foreign. What keeps a test from being sent is told in its report.
  virtual void SendTestButtonToAlertServer(const void* request) = 0;
  /// Shows the report of the test with the number that the callback received. May be called on any thread: the window
  /// opens on the user-interface thread, soon. `parent` may be null, and gone by then.
  virtual void DisplayTestEventResultsDialog(platform::ui::Window* parent, std::uint32_t value) = 0;
};

/// How long the component waits for alert servers.
struct TestTimes {
  /// From one look for reports to the next, while tests are pending.
  std::chrono::milliseconds look{250};
  /// Until a test counts as unanswered; a pager's takes longer, because it dials first.
  std::chrono::milliseconds answer{60'000};
  std::chrono::milliseconds pager_answer{120'000};
};

/// The real component. The lists are kept in `recent.json` in the data directory, 20 entries each. Tests go to the alert
/// server through the directory `spool` beside it (docs/spool.md). Destroying the component ends its thread; tests that
/// are pending then are reported to nobody.
std::unique_ptr<AgentUi> MakeAgentUi(const TestTimes& times = {});

/// The number of the test that this process handed over last; 0 before the first. For programs that wait for its report.
std::uint32_t LastTest();

}  // namespace agentui
