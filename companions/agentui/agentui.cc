// SPDX-License-Identifier: MIT
#include "companions/agentui/agentui.h"

#include <cstring>
#include <string>

#include "companions/agentui/recent_lists.h"
#include "companions/choices/choose.h"
#include "platform/base/utf8.h"
#include "platform/ui/lists.h"

namespace agentui {
namespace {

void Record(const std::string& list, const char* entry) {
  if (entry != nullptr) AddRecentEntry(list, entry);
}

/// Lets a person choose an entry and puts it into the buffer, which otherwise stays as it is.
void ChooseEntry(platform::ui::Window* parent, const char* caption, const std::string& list,
                 const char* empty_text, char* buffer, std::size_t size) {
  const choices::Offer offer{caption, "&Used lately, newest first:", RecentEntries(list), empty_text,
                             ctxhelp::kHelpRecent};
  const auto chosen = choices::Choose(parent, offer);
  if (!chosen) return;
  const std::string& entry = offer.texts[*chosen];
  const std::size_t length = platform::Utf8Prefix(entry, size - 1);
  std::memcpy(buffer, entry.data(), length);
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
    ChooseEntry(parent, "Recently Used Addresses", kAddresses, "No address or server name has been used yet.",
                buffer, kAddressBufferSize);
  }
  void DisplayCommunityNameMRUListDialog(platform::ui::Window* parent, char* buffer) override {
    ChooseEntry(parent, "Recently Used Communities", kCommunities, "No community name has been used yet.",
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
