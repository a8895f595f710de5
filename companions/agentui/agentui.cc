// SPDX-License-Identifier: MIT
#include "companions/agentui/agentui.h"

#include <cstring>
#include <string>

#include "companions/agentui/recent_lists.h"
#include "companions/choices/choose.h"
#include "platform/ui/lists.h"

namespace agentui {
namespace {

void Record(const std::string& list, const char* entry) {
  if (entry != nullptr) AddRecentEntry(list, entry);
}

/// Lets a person choose an entry and puts it into the buffer, which otherwise stays as it is. What the buffer has no
/// room for is not offered: the beginning of an address is another address.
void ChooseEntry(platform::ui::Window* parent, const char* caption, const std::string& list,
                 const char* empty_text, char* buffer, std::size_t size) {
  choices::Offer offer{caption, "&Used lately, newest first:", RecentEntries(list), empty_text,
                       ctxhelp::kHelpRecent};
  std::erase_if(offer.texts, [size](const std::string& entry) { return entry.size() >= size; });
  if (const auto chosen = choices::Choose(parent, offer)) std::strcpy(buffer, offer.texts[*chosen].c_str());
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
