// SPDX-License-Identifier: MIT
#include "alerting/testing/sends.h"

#include <atomic>
#include <new>
#include <thread>

#include "alerting/frame/app.h"
#include "alerting/frame/companions.h"
#include "alerting/frame/messages.h"
#include "alerting/managers/config_file.h"
#include "companions/agentui/corrections.h"
#include "companions/agentui/test_request.h"
#include "companions/alertstore/console_users.h"
#include "platform/base/low_memory.h"
#include "platform/ui/desktop.h"

namespace alerting {
namespace {

constexpr std::uint32_t kByIdentity = 1;
constexpr std::uint32_t kPollMilliseconds = 1000, kHandOverMilliseconds = 1000;
constexpr std::uint32_t kStandardMilliseconds = 4000, kComputerMilliseconds = 8000;
constexpr std::size_t kUserNameSize = 258, kComputerNameSize = 259;

/// The test response and an empty text, at addresses that a request can name.
class SentResponse {
 public:
  ALERTRESPREC& Record() { return *record_; }
  agentui::TestRequest Request() const {
    return {sizeof(agentui::TestRequest),
            {},
            memory_.Address(),
            memory_.Address() + static_cast<std::uint32_t>(sizeof(ALERTRESPREC))};
  }

 private:
  platform::LowMemory memory_{sizeof(ALERTRESPREC) + 1};
  ALERTRESPREC* const record_ = new (memory_.Data()) ALERTRESPREC{};
};

/// Who sent the last test, as far as its report must know.
std::atomic<ui::Handle> results_window{ui::kNoWindow};
std::atomic<std::thread::id> windows_thread;

void ShowReport(std::uint32_t value) {
  const platform::ModuleScope scope(TheModule());
  ui::Window* parent = results_window != ui::kNoWindow ? ui::Desktop::Current().ForegroundWindow() : nullptr;
  TheCompanions().agentui->DisplayTestEventResultsDialog(parent, value);
}

/// Comes on any thread, at any time; windows are looked at on their own.
void OnTestReport(std::uint32_t value) {
  if (std::this_thread::get_id() == windows_thread.load()) return ShowReport(value);
  ui::Desktop::Current().Post([value] { ShowReport(value); });
}

void Say(ui::Window* dialog, const char* what) {
  if (dialog != nullptr) dialog->ShowProgress(what);
}

void WaitForConfiguration(ui::Window* dialog, std::uint32_t settle_milliseconds) {
  ui::Desktop& desktop = ui::Desktop::Current();
  Say(dialog, "Waiting for the configuration...");
  while (TheCompanions().dbconfig->IsConversionComplete() == 0) desktop.Sleep(kPollMilliseconds);
  Say(dialog, "Waiting for the alert managers...");
  desktop.Sleep(settle_milliseconds);
}

void HandOver(const SentResponse& sent, ui::Window* dialog) {
  agentui::AgentUi& agentui = *TheCompanions().agentui;
  ui::Desktop& desktop = ui::Desktop::Current();
  const agentui::TestRequest request = sent.Request();
  const ui::Window* owner = dialog != nullptr ? dialog->Parent() : nullptr;
  results_window = owner != nullptr ? owner->GetHandle() : ui::kNoWindow;
  windows_thread = std::this_thread::get_id();
  Say(dialog, "Handing the test over...");
  agentui.RegisterTestButtonCallbackMessageHandler(&OnTestReport);
  desktop.Sleep(kHandOverMilliseconds);
  agentui.SendTestButtonToAlertServer(&request);
  desktop.Sleep(kHandOverMilliseconds);
}

template <class Fill>
bool Send(CNtfyService& service, const GUID& target, const char* message, std::uint32_t settle_milliseconds,
          ui::Window* dialog, Fill&& fill) {
  EnsureStoresOpen();
  if (service.TestResponse().IsNull()) return false;
  SentResponse sent;
  ALERTRESPREC& response = sent.Record();
  const GUID& id = service.TestResponse();
  if (ResponseStore().DBAlertRecFindFirst(kByIdentity, sizeof(GUID), &id, response) != kOk)
    return Fail(kIdsTestResponseMissing, dialog);
  response.userId = target;
  response.serviceId = service.ServiceId();
  if (message != nullptr) response.message.Assign(message);
  fill(response);
  if (ResponseStore().DBAlertRecUpdate(response) != kOk) return Fail(kIdsTestResponseUpdateFailed, dialog);
  WriteAlertServerConfig();
  const ui::WaitCursor wait;
  WaitForConfiguration(dialog, settle_milliseconds);
  HandOver(sent, dialog);
  Say(dialog, "");
  return true;
}

}  // namespace

bool SendStandardTest(CNtfyService& service, const GUID& target, const char* message,
                      const char* subject_or_file, std::uint16_t priority, ui::Window* dialog) {
  return Send(service, target, message, kStandardMilliseconds, dialog, [&](ALERTRESPREC& response) {
    char name[kUserNameSize] = {};
    if (subject_or_file != nullptr) response.subject.Assign(subject_or_file);
    response.priority = priority;
    if (alertstore::QevGetUserName(target, sizeof(name), name) == kOk) response.userName.Assign(name);
  });
}

bool SendComputerTest(CNtfyService& service, const GUID& target, const char* message, const char*,
                      std::uint16_t, ui::Window* dialog) {
  return Send(service, target, message, kComputerMilliseconds, dialog, [&](ALERTRESPREC& response) {
    char name[kComputerNameSize] = {};
    if (TheCompanions().objmodel->QevOMGetInstanceProperty(target, objmodel::kComputerClass,
                                                           objmodel::kNameProperty, name, sizeof(name)) == 0)
      response.userName.Assign(name);
  });
}

void ForgetTests() {
  agentui::RegisterCorrections(nullptr);
  if (windows_thread.exchange({}) != std::thread::id{})
    TheCompanions().agentui->RegisterTestButtonCallbackMessageHandler(nullptr);
}

}  // namespace alerting
