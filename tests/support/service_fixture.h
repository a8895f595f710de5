// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "alerting/api/load.h"
#include "alerting/frame/app.h"
#include "alerting/frame/companions.h"
#include "alerting/frame/stores.h"
#include "alerting/services/service_list.h"
#include "alerting/services/user_base.h"
#include "platform/ui/desktop.h"
#include "platform/ui/dialog.h"
#include "platform/ui/lists.h"
#include "tests/support/failing_engine.h"
#include "tests/support/fake_netpath.h"
#include "tests/support/opened_store.h"
#include "tests/support/temporary.h"

namespace test_support {

/// Counts the rewrites of the configuration file and answers as told.
class FakeDbConfig : public dbconfig::DbConfig {
 public:
  void GetQEVDataDirectory(char* buffer, std::size_t size) override;
  std::uint32_t CreateAlertServerConfigFile(std::uint32_t) override { return ++files_written, result; }
  std::uint32_t IsConversionComplete() override { return polls_until_complete-- <= 0; }

  std::string data_directory;
  int files_written = 0;
  std::uint32_t result = 0;
  /// How many more times the conversion is still under way.
  int polls_until_complete = 0;
};

/// Answers the recently used dialogs as told and records what the library hands over.
class FakeAgentUi : public agentui::AgentUi {
 public:
  void FillComboWithMRUList(platform::ui::ComboBox&) override {}
  void AddEntryToMRUList(const char* program) override { recorded.push_back(program); }
  void FreeComboMRUData(platform::ui::ComboBox&) override { recorded.push_back("freed"); }
  void AddIPAddressToMRUList(const char* address) override { recorded.push_back(address); }
  void AddCommunityNameToMRUList(const char* community) override { recorded.push_back(community); }
  void DisplayIPAddressMRUListDialog(platform::ui::Window*, char* buffer) override;
  void DisplayCommunityNameMRUListDialog(platform::ui::Window*, char*) override {}
  void RegisterTestButtonCallbackMessageHandler(void (*handler)(std::uint32_t)) override {
    recorded.push_back("register");
    report = handler;
  }
  void SendTestButtonToAlertServer(const void* request) override;
  void DisplayTestEventResultsDialog(platform::ui::Window*, std::uint32_t value) override {
    recorded.push_back("report " + std::to_string(value));
  }

  std::string chosen_address;
  std::vector<std::string> recorded;
  std::string request, sent_text;   ///< the last test's bytes, and the text it names
  alertstore::ALERTRESPREC sent{};  ///< and the record
  void (*report)(std::uint32_t) = nullptr;
};

/// The loaded library over an empty data directory of its own, with stand-ins for the other components and an
/// engine that fails on command. One at a time.
class LibraryUnderTest {
 public:
  LibraryUnderTest();
  ~LibraryUnderTest();

  const std::string& Directory() const { return directory_.Path(); }

  FakeDbConfig dbconfig;
  FakeAgentUi agentui;
  FakeNetPath netpath;
  std::shared_ptr<FailingEngine> engine;

 private:
  const TemporaryDirectory directory_;
  alerting::Companions before_;
};

/// A desktop that writes messages down and answers OK, or No to a question. Every message must bear the
/// library's title, and no lock may be held while it keeps other consoles waiting for an answer.
class RecordingDesktop : public platform::ui::Desktop {
 public:
  RecordingDesktop() : before_(SetCurrent(this)) {}
  ~RecordingDesktop() override { SetCurrent(before_); }
  platform::ui::Answer ShowMessage(const platform::ui::Message& message) override;
  void Sleep(std::uint32_t milliseconds) override;
  void ShowWaitCursor() override;
  void HideWaitCursor() override { --wait_cursors; }

  /// The texts since the last call.
  std::vector<std::string> TakeMessages() { return std::exchange(messages, {}); }

  /// Each text with " (waiting)" behind it for every wait cursor that was up.
  std::vector<std::string> messages;
  std::vector<std::uint32_t> sleeps;
  int wait_cursors = 0;
  std::shared_ptr<const FailingEngine> engine;  ///< whose locks are looked at
  /// What others do meanwhile.
  std::function<void()> when_sleeping, when_waiting;

 private:
  platform::ui::Desktop* before_;
};

class ServiceTest : public ::testing::Test {
 protected:
  ServiceTest() { desktop.engine = library.engine; }

  RecordingDesktop desktop;
  LibraryUnderTest library;

  /// A message that no test took is one that nobody expected.
  void TearDown() override;
};

/// Calls `visit.template operator()<Type>()` with the n-th of the types.
template <class Type, class... Others, class Visit>
auto VisitNth(std::size_t n, Visit&& visit) {
  if constexpr (sizeof...(Others) > 0)
    if (n > 0) return VisitNth<Others...>(n - 1, visit);
  return visit.template operator()<Type>();
}

/// Where a type with a specific record stands in a list of them all: phone calls have none.
constexpr std::size_t PlaceOf(std::uint32_t code) { return code > alerting::kTypePhone ? code - 1 : code; }

/// Calls `visit.template operator()<Record>()` with the specific record of a type. Not for Program Launch.
template <class Visit>
auto WithRecordOf(std::uint32_t code, Visit&& visit) {
  using namespace alertstore;  // NOLINT
  return VisitNth<ALRTMHSSERVICEREC, ALRTSNMPSERVICEREC, ALRTMCISERVICEREC, ALRTCOMPUSSERVICEREC,
                  ALRTSMTPSERVICEREC, ALRTMAPISERVICEREC, ALRTCCMAILSERVICEREC, ALRTWAVESERVICEREC,
                  ALRTTTSSERVICEREC, ALRTAPAGESERVICEREC, ALRTNPAGESERVICEREC, ALRTGENPORTSERVICEREC>(
      PlaceOf(code), visit);
}

/// Changes the bytes of a record: a text and the zeros behind it, or a number. Width or offset 0: none.
void PutText(std::string& bytes, std::size_t offset, std::size_t width, const std::string& text);
void PutU32(std::string& bytes, std::size_t offset, std::uint32_t value);

struct ListDialog : platform::ui::Dialog {
  ListDialog() : Dialog(nullptr, "Users") {}
  platform::ui::ListBox list{*this, 1, "&Users:", true};
};

struct ComboDialog : platform::ui::Dialog {
  ComboDialog() : Dialog(nullptr, "Choice") {}
  platform::ui::ComboBox combo{*this, 1, "&Choice:"};
};

/// The thirteen types that have a class.
std::vector<std::uint32_t> ConfiguredTypes();

/// Adds a service straight to the stores, which it opens first, and answers its identity. `pattern` fills
/// every byte of both records that is neither identity nor link nor a field set here (0: zeros).
platform::GUID SeedService(std::uint32_t code, std::string_view name, std::uint8_t pattern = 0);
/// Adds a common record of any stored type, without a specific record.
platform::GUID SeedCommon(std::uint32_t record_type, std::string_view name);

/// Stored bytes.
alertstore::ALRTNTFYSERV StoredCommon(const platform::GUID& service);
std::string StoredSpecific(std::uint32_t code, const platform::GUID& record);

/// The service as the list has it; the list is read first. Null when it is not there.
alerting::CNtfyService* Find(const platform::GUID& service);
template <class Service>
Service& FindAs(const platform::GUID& service) {
  return dynamic_cast<Service&>(*Find(service));
}

/// A new service, in a list that is read anew.
alerting::CNtfyService& NewService(std::uint32_t code, std::string_view name = "Service",
                                   std::uint8_t pattern = 0);
template <class Service>
Service& NewServiceAs(std::uint32_t code, std::string_view name = "Service") {
  return dynamic_cast<Service&>(NewService(code, name));
}

inline alerting::CNtfyServiceUserBase& Users(alerting::CNtfyService& service) {
  return dynamic_cast<alerting::CNtfyServiceUserBase&>(service);
}

template <class Record>
std::string BytesOf(const Record& record) {
  return {reinterpret_cast<const char*>(&record), sizeof(record)};
}

/// Adds a console user.
platform::GUID MakeUser(std::string_view name);

}  // namespace test_support
