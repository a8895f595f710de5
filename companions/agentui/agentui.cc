// SPDX-License-Identifier: MIT
#include "companions/agentui/agentui.h"

#include <cstring>
#include <string>

#include "companions/agentui/recent_dialog.h"
#include "companions/agentui/recent_lists.h"
#include "platform/base/utf8.h"
#include "platform/ui/lists.h"

namespace agentui {
namespace {

void Record(const std::string& list, const char* entry) {
  if (entry != nullptr) AddRecentEntry(list, entry);
}

/// Runs a list dialog and puts the choice into the buffer, which otherwise stays as it is.
void RunListDialog(RecentDialog&& dialog, char* buffer, std::size_t size) {
  if (dialog.RunModal() != platform::ui::kOk) return;
  const std::string& chosen = dialog.Chosen();
  const std::size_t length = platform::Utf8Prefix(chosen, size - 1);
  std::memcpy(buffer, chosen.data(), length);
  buffer[length] = '\0';
}

class RealAgentUi : public AgentUi {
 public:
  void FillComboWithMRUList(platform::ui::ComboBox& combo) override {
    for (const std::string& program : RecentEntries(kPrograms)) combo.Add(program);
  }
  void AddEntryToMRUList(const char* program) override { Record(kPrograms, program); }
  /// The items carry their texts alone, so there is nothing to release.
  void FreeComboMRUData(platform::ui::ComboBox&) override {}

  void AddIPAddressToMRUList(const char* address) override { Record(kAddresses, address); }
  void AddCommunityNameToMRUList(const char* community) override { Record(kCommunities, community); }

  void DisplayIPAddressMRUListDialog(platform::ui::Window* parent, char* buffer) override {
    RunListDialog(RecentDialog(parent, "Recently Used Addresses", RecentEntries(kAddresses),
                               "No address or server name has been used yet."),
                  buffer, kAddressBufferSize);
  }
  void DisplayCommunityNameMRUListDialog(platform::ui::Window* parent, char* buffer) override {
    RunListDialog(RecentDialog(parent, "Recently Used Communities", RecentEntries(kCommunities),
                               "No community name has been used yet."),
                  buffer, kCommunityBufferSize);
  }

  // Test requests are not carried yet.
  void RegisterTestButtonCallbackMessageHandler(void (*)(std::uint32_t)) override {}
  void SendTestButtonToAlertServer(const void*) override {}
  void DisplayTestEventResultsDialog(platform::ui::Window*, std::uint32_t) override {}
};

}  // namespace

std::unique_ptr<AgentUi> MakeAgentUi() { return std::make_unique<RealAgentUi>(); }

}  // namespace agentui
