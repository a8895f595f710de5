// SPDX-License-Identifier: MIT
// Drives the shared library as a console does: loaded at run time, functions found by their decorated names.
#include <gmock/gmock.h>

#include <cstdio>
#include <filesystem>
#include <set>

#include "alerting/alert_page.h"
#include "alerting/alerting.h"
#include "companions/alertrecords/test_response.h"
#include "companions/alertstore/console_users.h"
#include "companions/alertstore/stores.h"
#include "platform/base/module.h"
#include "platform/ui/desktop.h"
#include "tests/support/opened_store.h"
#include "tests/support/temporary.h"

namespace {

using namespace alertstore;  // NOLINT
using platform::GUID;
using platform::kNullGuid;
using test_support::Opened;

class QuietDesktop : public platform::ui::Desktop {
 public:
  QuietDesktop() { SetCurrent(this); }
  ~QuietDesktop() override { SetCurrent(nullptr); }
  platform::ui::Answer ShowMessage(const platform::ui::Message& message) override {
    titles.insert(message.title);
    ++messages;
    return platform::ui::Answer::kOk;
  }
  bool ChooseFile(platform::ui::FileDialog& dialog) override {
    asked = dialog.title + ": " + dialog.initial_path;
    if (!chosen.empty()) dialog.OnFileAccepted(chosen);
    return !chosen.empty();
  }
  int RunModal(platform::ui::Modal& modal) override {
    windows.push_back(modal.AsWindow().Label());
    if (!presses_enter) return platform::ui::kOk;
    modal.OpenWindow();
    dynamic_cast<platform::ui::Form&>(modal.AsWindow()).OnEnter();
    modal.CloseWindow();
    return modal.Result();
  }
  void Sleep(std::uint32_t) override {}
  bool presses_enter = false;  ///< in windows, which are not opened else
  std::set<std::string> titles;
  int messages = 0;
  std::vector<std::string> windows;  ///< captions of those that were opened
  std::string chosen, asked;         ///< in file dialogs; "" cancels
};

/// Every export by name, and how it is called: api.DomainServiceGetCount().
struct Api {
  explicit Api(const platform::DynamicLibrary& from) : library(from) {}
  const platform::DynamicLibrary& library;
#define ALERTING_EXPORT(result, name, arguments, bytes) \
  result(*name) arguments = reinterpret_cast<result(*) arguments>(library.Find("_" #name "@" #bytes));
#define ALERTING_PLAIN_EXPORT(result, name, arguments) \
  result(*name) arguments = reinterpret_cast<result(*) arguments>(library.Find(#name));
#include "alerting/exports.def"
#undef ALERTING_EXPORT
#undef ALERTING_PLAIN_EXPORT
};

/// A data directory of its own and the library loaded for one test.
class ExportsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    setenv("ALERTING_DATA", directory_.Path().c_str(), 1);
    library_ = std::make_unique<platform::DynamicLibrary>();
    ASSERT_TRUE(library_->Load(ALERTING_LIBRARY)) << library_->Error();
    api_ = std::make_unique<Api>(*library_);
  }
  void TearDown() override {
    api_->CloseDBs();
    library_.reset();
  }

  template <class Record>
  static GUID Add(std::uint32_t code, const char* name) {
    Opened<CAlertNtfyServDB> store;
    ALRTNTFYSERV common{};
    common.name.Assign(name);
    common.recordType = code + 1;
    common.enabled = 1;
    Record record{};
    GUID id{}, specific{};
    EXPECT_EQ(store.DBAlertRecAdd(common, id, record, specific), kOk);
    return id;
  }

  using Answers = std::vector<std::int64_t>;
  /// What a service's type says, and whether it has modems.
  Answers AnswersOf(int index) const {
    return {api_->DomainServiceTypeFromID(index),         api_->DomainServiceGetIconOffset(index),
            api_->DomainServiceGetResponseType(index),    api_->DomainServiceIsUser(index),
            api_->DomainServiceUsesExtensionAgent(index), api_->DomainServiceIsModemService(index),
            api_->UserGetAddServicePanelCount(index),     api_->ResponseGetAddServicePanelCount(index),
            api_->ResponseGetPropertyPanelCount(index),   api_->DomainServiceHasModem(index),
            api_->DomainServiceHasBackupModem(index),     api_->DomainServiceShowBackup(index)};
  }

  enum List { kReadList, kUnreadList };

  /// Every function that names a service answers its failure value.
  void ExpectFailures(int index, List list) {
    SCOPED_TRACE(index);
    ALERTRESPREC response{};
    EXPECT_EQ(AnswersOf(index), (Answers{3, list == kReadList ? -1 : 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(api_->DomainServiceGetInfo(index), nullptr);
    EXPECT_EQ(api_->DomainServicePropertySheet(nullptr, index), list == kReadList ? 2 : 0);
    EXPECT_EQ(api_->DomainServiceBackupPropertySheet(nullptr, index), 0);
    EXPECT_EQ(api_->DomainServiceType(manager_), 3U);
    EXPECT_EQ(api_->DomainServiceGetIcon(index), nullptr);
    EXPECT_EQ(api_->UserGetAddServicePanel(index, 0, manager_, 0, nullptr), nullptr);
    EXPECT_EQ(api_->ResponseGetAddServicePanel(index, 0, &response, 0, nullptr), nullptr);
    EXPECT_EQ(api_->ResponseGetPropertyPanel(index, 0, &response, nullptr), nullptr);
    EXPECT_EQ(api_->UserServicePropertySheet(nullptr, index, manager_), 0);
    const std::uint32_t zeros[] = {api_->DomainServiceIsFirstOfType(index),
                                   api_->DomainServiceDeleteService(index, manager_),
                                   api_->DomainServiceCopyService(index, "x"),
                                   api_->DomainServiceCopyServiceX(index, "x", manager_),
                                   api_->DomainServiceIsServer(index, manager_),
                                   api_->DomainServiceServerEnable(index, manager_, 1),
                                   api_->DomainServiceCachedIsServer(index, manager_),
                                   api_->DomainServiceIsVirgin(index),
                                   api_->DomainServiceInitWithDefMsg(index, &response),
                                   api_->DomainServiceInitWithDefMsgX(manager_, &response),
                                   api_->DomainServiceReinitializeResponse(index, &response),
                                   api_->DomainServiceValidateResponse(&response),
                                   api_->UserUpdatePanelData(nullptr),
                                   api_->ResponseUpdatePanelData(nullptr),
                                   api_->ResponseUpdatePropertyPanelData(nullptr),
                                   api_->UserServiceUserIsConfigured(index, manager_),
                                   api_->UserServiceUserDelete(index, manager_),
                                   api_->UserServiceTestDialog(nullptr, index, manager_)};
    EXPECT_THAT(zeros, ::testing::Each(0U));
  }

  QuietDesktop desktop_;
  const test_support::TemporaryDirectory directory_;
  std::unique_ptr<platform::DynamicLibrary> library_;
  std::unique_ptr<Api> api_;
  const GUID manager_ = GUID::Generate();
};

TEST_F(ExportsTest, FiftyNineDecoratedNamesLeaveTheLibraryAndNothingElse) {
  std::set<std::string> expected;
#define ALERTING_EXPORT(result, name, arguments, bytes) expected.insert("_" #name "@@ARGS_" #bytes);
#define ALERTING_PLAIN_EXPORT(result, name, arguments) expected.insert(#name);
#include "alerting/exports.def"
#undef ALERTING_EXPORT
#undef ALERTING_PLAIN_EXPORT
  std::set<std::string> leaving;
  FILE* nm = popen("nm -D --defined-only --with-symbol-versions " ALERTING_LIBRARY, "r");
  ASSERT_NE(nm, nullptr);
  char address[64], kind[8], name[256];
  char line[512];
  while (std::fgets(line, sizeof(line), nm) != nullptr)
    if (std::sscanf(line, "%63s %7s %255s", address, kind, name) == 3 && kind[0] != 'A') leaving.insert(name);
  ASSERT_EQ(pclose(nm), 0);
  EXPECT_EQ(leaving, expected);
  EXPECT_EQ(leaving.size(), 59U);
  EXPECT_EQ(library_->Find("_DomainServiceInit@28"), nullptr) << "another byte count";
}

TEST_F(ExportsTest, AnEmptyStoreAnswersTheFailureValuesOfEachFunction) {
  EXPECT_EQ(api_->DomainServiceInit(), 1U);
  EXPECT_EQ(api_->DomainServiceGetCount(), 0);
  EXPECT_EQ(desktop_.messages, 1);
  EXPECT_THAT(desktop_.titles, ::testing::ElementsAre("Alerting"));
  for (const int index : {-1, 0}) ExpectFailures(index, kUnreadList);
  EXPECT_EQ(api_->DomainServiceServerLoadRecords(), 0U);
  EXPECT_EQ(desktop_.messages, 1) << "told once";
}

TEST_F(ExportsTest, IndicesOutOfRangeAndUnknownIdentitiesAreFailures) {
  Add<ALRTSMTPSERVICEREC>(4, "Mail");
  ASSERT_EQ(api_->DomainServiceGetCount(), 1);
  for (const int index : {-1, 1, 0x7FFFFFFF, static_cast<int>(0x80000000)}) ExpectFailures(index, kReadList);
  EXPECT_EQ(api_->DomainServiceValidateResponse(nullptr), 0U);
  EXPECT_EQ(api_->DomainServiceInitWithDefMsg(0, nullptr), 0U);
  EXPECT_EQ(api_->DomainServiceReinitializeResponse(0, nullptr), 0U);
  EXPECT_EQ(desktop_.messages, 0);
}

TEST_F(ExportsTest, ServicesAreCopiedEnabledAndDeleted) {
  const GUID mail = Add<ALRTSMTPSERVICEREC>(4, "Mail");
  Add<ALRTNPAGESERVICEREC>(11, "Pager");
  const GUID port = Add<ALRTGENPORTSERVICEREC>(12, "Port");
  ASSERT_EQ(api_->DomainServiceGetCount(), 3);
  EXPECT_EQ(api_->DomainServiceType(mail), 1U);
  EXPECT_EQ(api_->DomainServiceType(port), 2U);
  EXPECT_NE(api_->DomainServiceGetIcon(1), nullptr);
  EXPECT_EQ(api_->DomainServiceIsVirgin(0), 0U);

  ASSERT_EQ(api_->DomainServiceCopyServiceX(0, "Second mail", manager_), 1U);
  ASSERT_EQ(api_->DomainServiceGetCount(), 4);
  EXPECT_EQ(api_->DomainServiceGetInfo(3)->name.View(), "Second mail");
  EXPECT_EQ(api_->DomainServiceIsVirgin(3), 1U);
  EXPECT_EQ(api_->DomainServiceIsServer(3, manager_), 1U);
  EXPECT_EQ(api_->DomainServiceIsServer(0, manager_), 0U);
  EXPECT_EQ(api_->DomainServiceCachedIsServer(3, manager_), 0U) << "nothing loaded yet";
  EXPECT_EQ(api_->DomainServiceServerLoadRecords(), 1U);
  EXPECT_EQ(api_->DomainServiceCachedIsServer(3, manager_), 1U);

  EXPECT_EQ(api_->DomainServiceServerEnable(0, manager_, 1), 1U);
  EXPECT_EQ(api_->DomainServiceServerLoadRecords(), 1U);
  EXPECT_EQ(api_->DomainServiceDeleteService(0, manager_), 1U) << "the first of its type stays";
  EXPECT_EQ(api_->DomainServiceGetCount(), 4);
  EXPECT_EQ(api_->DomainServiceIsServer(0, manager_), 0U) << "but is disabled";
  EXPECT_EQ(api_->DomainServiceCachedIsServer(0, manager_), 1U) << "as it was when last loaded";
  EXPECT_EQ(api_->DomainServiceServerLoadRecords(), 1U);
  EXPECT_EQ(api_->DomainServiceCachedIsServer(0, manager_), 0U);
  EXPECT_EQ(api_->DomainServiceDeleteService(3, manager_), 1U);
  EXPECT_EQ(api_->DomainServiceGetCount(), 3);
  EXPECT_EQ(api_->DomainServiceCopyService(1, nullptr), 1U);
  EXPECT_EQ(api_->DomainServiceCopyService(1, "Second pager"), 1U);
  EXPECT_EQ(api_->DomainServiceIsFirstOfType(1), 1U);
  EXPECT_EQ(api_->DomainServiceIsFirstOfType(3), 0U);
  const GUID backup = GUID::Generate();
  EXPECT_EQ(api_->DomainServiceSetBackupServer(backup), 1U);
  EXPECT_EQ(api_->DomainServiceServerEnable(1, manager_, 1), 1U);
  EXPECT_EQ(api_->DomainServiceIsServer(1, backup), 1U) << "an entry of its own";
  EXPECT_EQ(api_->DomainServiceSetBackupServer(kNullGuid), 1U);
  EXPECT_EQ(desktop_.messages, 0);
}

TEST_F(ExportsTest, ADataDirectoryThatCannotBeWrittenFailsTheOpenAndCrashesNothing) {
  setenv("ALERTING_DATA", "/dev/null/data", 1);
  EXPECT_EQ(api_->OpenDBs(), 131274U);
  EXPECT_EQ(api_->DomainServiceGetCount(), 0);
  for (const int index : {-1, 0}) ExpectFailures(index, kUnreadList);
}

TEST_F(ExportsTest, ClosedStoresFailWithoutCrashing) {
  Add<ALRTSMTPSERVICEREC>(4, "Mail");
  ASSERT_EQ(api_->DomainServiceGetCount(), 1);
  EXPECT_EQ(api_->OpenDBs(), 1U);
  EXPECT_EQ(api_->CloseDBs(), 1U);
  EXPECT_EQ(api_->DomainServiceGetCount(), 0);
  EXPECT_EQ(desktop_.messages, 1);
  ExpectFailures(0, kReadList);  // a list that was read before counts as read
  EXPECT_EQ(api_->DomainServiceServerLoadRecords(), 1U) << "a read has succeeded before";
  EXPECT_EQ(api_->OpenDBs(), 0U);
  api_->CloseDBs();
  EXPECT_EQ(api_->OpenDBs(), 0U);
  EXPECT_EQ(api_->DomainServiceGetCount(), 1) << "read again after the close";
}

TEST_F(ExportsTest, ResponsesAndUsersGoThroughTheServiceOfTheirIndex) {
  const GUID mail = Add<ALRTSMTPSERVICEREC>(4, "Mail");
  ALERTRESPREC response{};
  EXPECT_EQ(api_->DomainServiceReinitializeResponse(0, &response), 1U);
  EXPECT_EQ(response.serviceId, mail);
  EXPECT_EQ(api_->DomainServiceReinitializeResponse(0, &response), 0U);
  EXPECT_EQ(api_->DomainServiceInitWithDefMsgX(mail, &response), 1U);
  EXPECT_EQ(api_->DomainServiceValidateResponse(&response), 0U);
  EXPECT_EQ(desktop_.messages, 1) << "no message in the response";
  EXPECT_EQ(api_->DomainServiceInitWithDefMsg(0, &response), 1U);
  EXPECT_EQ(api_->UserServiceUserIsConfigured(0, manager_), 0U);
  EXPECT_EQ(api_->UserServiceUserDelete(0, manager_), 0U);
}

TEST_F(ExportsTest, PanelsStandWithoutARecordAHostOrAShowing) {
  Add<ALRTSMTPSERVICEREC>(4, "Mail");
  Add<ALRTWAVESERVICEREC>(7, "Wave");
  for (const int index : {0, 1}) {
    ALERTRESPREC response{};
    for (ALERTRESPREC* record : {&response, static_cast<ALERTRESPREC*>(nullptr)}) {
      const std::unique_ptr<alerting::CAlertPage> panel(
          api_->ResponseGetAddServicePanel(index, 1, record, 6, nullptr));
      ASSERT_NE(panel, nullptr) << "the panel's index is not looked at";
      EXPECT_EQ(panel->AddingMark(), 1);
      EXPECT_EQ(api_->ResponseUpdatePanelData(panel.get()), 0U);
      panel->Create();
      EXPECT_TRUE(panel->OnSetActive() && panel->OnWizardFinish());
      EXPECT_EQ(api_->ResponseUpdatePanelData(panel.get()), record != nullptr ? 1U : 0U);
    }
    EXPECT_EQ(response.serviceRecordType, static_cast<std::uint32_t>(index == 0 ? 5 : 8));
  }
  EXPECT_EQ(api_->UserGetAddServicePanel(1, 0, manager_, 0, nullptr), nullptr) << "no users";
  EXPECT_EQ(api_->UserServiceTestDialog(nullptr, 1, manager_), 0U);
  EXPECT_EQ(api_->UserServicePropertySheet(nullptr, 1, manager_), 1);
  EXPECT_EQ(desktop_.windows.back(), "Service Properties");
  EXPECT_EQ(api_->UserServiceTestDialog(nullptr, 0, manager_), 1U);
}

// The library goes at the end of the test while its report is still awaited.
TEST_F(ExportsTest, ATestOfAUserIsAJobInTheSpool) {
  Add<ALRTSMTPSERVICEREC>(4, "Mail");
  ALERTRESPREC response{};
  response.responseId = alertrecords::TestResponseId(5);
  CAlertRespDB responses;
  ASSERT_EQ(responses.DBOpen(), kOk);
  ASSERT_EQ(responses.AddWithIdentity(response), kOk);
  desktop_.presses_enter = true;
  EXPECT_EQ(api_->UserServiceTestDialog(nullptr, 0, manager_), 1U);
  EXPECT_EQ(desktop_.messages, 0);
  std::size_t jobs = 0;
  for (const auto& file : std::filesystem::directory_iterator(directory_.Path() + "/spool"))
    jobs += file.path().extension() == ".json";
  EXPECT_EQ(jobs, 1U);
}

TEST_F(ExportsTest, EachServiceAnswersForItsType) {
  Add<ALRTMAPISERVICEREC>(5, "Mail");
  Add<ALRTNPAGESERVICEREC>(11, "Pager");
  Add<ALRTGENPORTSERVICEREC>(12, "Port");
  ASSERT_EQ(api_->DomainServiceGetCount(), 3);
  for (int index = 0; index < 3; ++index) EXPECT_EQ(api_->DomainServicePropertySheet(nullptr, index), 1);
  EXPECT_EQ(desktop_.windows, (std::vector<std::string>{"Mail", "Pager", "Port"}));
  EXPECT_EQ(api_->DomainServiceBackupPropertySheet(nullptr, 0), 0) << "does not dial out";
  EXPECT_EQ(api_->DomainServiceBackupPropertySheet(nullptr, 1), 1);
  EXPECT_EQ(desktop_.windows.back(), "Pager");
  EXPECT_EQ(AnswersOf(0), (Answers{1, 8, 1, 1, 1, 0, 1, 1, 1, 0, 0, 0}));
  EXPECT_EQ(AnswersOf(1), (Answers{1, 10, 1, 1, 0, 1, 1, 1, 1, 0, 0, 0}));
  EXPECT_EQ(AnswersOf(2), (Answers{2, 11, 16, 0, 0, 1, 0, 1, 1, 0, 0, 0}));
}

TEST_F(ExportsTest, FilesAreChosenIntoTheCallersBuffer) {
  using Choose = std::function<std::int32_t(char*)>;
  const std::tuple<Choose, std::string, std::string> rows[] = {
      {[&](char* path) { return api_->SelectWAVFileDialog(nullptr, path); }, "Select WAV file: ", ""},
      {[&](char* path) { return api_->SelectWAVFileDialogC(0, path); }, "Select WAV file: ", "."},
      {[&](char* path) { return api_->SelectProgFileDialog(nullptr, path); },
       "Select Exe File For Response: ", ""},
      {[&](char* path) { return api_->SelectIconFileDialog(nullptr, path, nullptr); }, "Select Icon: ", "."}};
  for (const auto& [choose, title, dot] : rows) {
    char path[261] = ".";
    for (const std::string& chosen : {std::string(), "/" + std::string(260, 'x')}) {
      desktop_.chosen = chosen;
      EXPECT_EQ(choose(path), 2) << title << chosen;
      EXPECT_STREQ(path, ".");
    }
    EXPECT_EQ(desktop_.asked, title + dot);
    EXPECT_EQ(std::exchange(desktop_.messages, 0), 1) << "too long";
    desktop_.chosen = "/no/such/" + std::string(251, 'x');
    EXPECT_EQ(choose(path), 1);
    EXPECT_EQ(path, desktop_.chosen);
    EXPECT_EQ(choose(nullptr), 2);
    EXPECT_EQ(choose(path), 1);
    EXPECT_EQ(desktop_.asked, title + desktop_.chosen) << "begins with the file of before";
  }
}

TEST_F(ExportsTest, DialingHasItsWindowsAndFourFunctionsDoNothing) {
  char rule[] = "rule";
  EXPECT_EQ(api_->DialingPropertiesDialog(nullptr, nullptr), 1);
  EXPECT_EQ(api_->DialingPropertiesDialog(nullptr, "Nowhere"), 1);
  EXPECT_EQ(api_->RulesDialog(nullptr, rule, nullptr, nullptr), 1);
  EXPECT_THAT(desktop_.windows,
              testing::ElementsAre("Dialing Properties", "Dialing Properties", "Dialing Rules"));
  EXPECT_STREQ(rule, "rule");
  EXPECT_EQ(api_->SetPhoneNumberDialog(0, 1, 2, 3, 4), 2);
  EXPECT_EQ(api_->ChooseIPDialog(0, 1), 2);
  EXPECT_EQ(api_->ChooseCommunityDialog(0, 1), 2);
  EXPECT_EQ(api_->ModemSettingsDialog(0, 1, 2, 3), 2);
}

TEST_F(ExportsTest, TheIconStripHoldsNineteenDistinctPictures) {
  platform::ui::Bitmap* strip = api_->GetIconBitmapObject();
  platform::ui::Bitmap* other = api_->GetIconBitmapObject();
  ASSERT_NE(strip, nullptr);
  EXPECT_NE(strip, other);
  EXPECT_EQ(strip->Width(), 343);
  EXPECT_EQ(strip->Height(), 18);
  std::set<std::vector<std::uint32_t>> pictures;
  for (int i = 0; i < 19; ++i) {
    const platform::ui::Bitmap picture = strip->Part(18 * i, 0, 18, 18);
    pictures.insert({picture.Data(), picture.Data() + 18 * 18});
  }
  EXPECT_EQ(pictures.size(), 19U);
  EXPECT_EQ(api_->DeleteIconBitmapObject(strip), 1U);
  EXPECT_EQ(api_->DeleteIconBitmapObject(other), 1U);
  EXPECT_EQ(api_->DeleteIconBitmapObject(nullptr), 0U);
  const std::unique_ptr<platform::ui::Bitmap> copy(api_->GetIconBitmap());
  EXPECT_NE(copy, nullptr);
  const int expected[] = {3, 2, 0, 1, -1, 17, 18, -1};
  for (int code = 0; code < 8; ++code) EXPECT_EQ(api_->GetSpecialIconOffset(code), expected[code]);
  EXPECT_EQ(api_->GetSpecialIconOffset(-1), -1);
}

}  // namespace
