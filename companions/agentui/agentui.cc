// SPDX-License-Identifier: MIT
#include "companions/agentui/agentui.h"

#include <cstring>
#include <string>

#include "companions/agentui/recent_lists.h"
#include "companions/agentui/report.h"
#include "companions/agentui/results_dialog.h"
#include "companions/agentui/spool.h"
#include "companions/agentui/test_request.h"
#include "companions/agentui/test_watch.h"
#include "companions/choices/choose.h"
#include "platform/ui/desktop.h"
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
  explicit RealAgentUi(const TestTimes& times) : watch_(times) {}

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

  void RegisterTestButtonCallbackMessageHandler(void (*callback)(std::uint32_t)) override {
    watch_.SetCallback(callback);
  }
  void SendTestButtonToAlertServer(const void* request) override {
    const auto record = std::make_unique<alertstore::ALERTRESPREC>();
    if (ReadTestRequest(request, *record)) watch_.Send(*record);
  }
  void DisplayTestEventResultsDialog(platform::ui::Window* parent, std::uint32_t value) override;

 private:
  TestWatch watch_;
};

/// What waits for the user-interface thread may outlast both component and parent.
void RealAgentUi::DisplayTestEventResultsDialog(platform::ui::Window* parent, std::uint32_t value) {
  const auto handle = parent != nullptr ? parent->GetHandle() : platform::ui::kNoWindow;
  platform::ui::Desktop::Current().Post(
      [handle, value, unwritten = watch_.Unwritten(), subjects = watch_.Subjects()] {
        const auto kept = unwritten->Find(value);
        const Report report = kept ? *kept : ReadReport(ReportPath(SpoolDirectory(), value), value);
        ShowTestResults(platform::ui::Window::FromHandle(handle), report,
                        subjects->Find(value).value_or(TestSubject{}));
      });
}

}  // namespace

std::unique_ptr<AgentUi> MakeAgentUi(const TestTimes& times) { return std::make_unique<RealAgentUi>(times); }

}  // namespace agentui
