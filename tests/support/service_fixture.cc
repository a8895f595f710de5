// SPDX-License-Identifier: MIT
#include "tests/support/service_fixture.h"

#include <filesystem>

#include "companions/agentui/test_request.h"
#include "companions/alertstore/console_users.h"

namespace test_support {

using namespace alertstore;  // NOLINT
using platform::GUID;
using platform::kNullGuid;

void FakeDbConfig::GetQEVDataDirectory(char* buffer, std::size_t size) {
  if (size > data_directory.size()) std::strcpy(buffer, data_directory.c_str());
}

void FakeAgentUi::DisplayIPAddressMRUListDialog(platform::ui::Window*, char* buffer) {
  if (!chosen_address.empty()) std::strcpy(buffer, chosen_address.c_str());
}

void FakeAgentUi::SendTestButtonToAlertServer(const void* bytes) {
  agentui::TestRequest asked;
  std::memcpy(&asked, bytes, sizeof(asked));
  request.assign(static_cast<const char*>(bytes), sizeof(asked));
  sent_text = reinterpret_cast<const char*>(static_cast<std::uintptr_t>(std::uint32_t{asked.text_address}));
  EXPECT_TRUE(agentui::ReadTestRequest(bytes, sent));
  recorded.push_back("send");
}

// In memory where the machine has such a place: what survives a power cut is not the matter here.
LibraryUnderTest::LibraryUnderTest()
    : directory_(std::filesystem::is_directory("/dev/shm") ? "/dev/shm" : testing::TempDir()) {
  setenv("ALERTING_DATA", Directory().c_str(), 1);
  SetEngine(nullptr);
  engine = std::make_shared<FailingEngine>(CurrentEngine());
  SetEngine(engine);
  before_ = alerting::SetCompanions({&dbconfig, &agentui, nullptr, &netpath, nullptr, nullptr});
  alerting::Load();
}

LibraryUnderTest::~LibraryUnderTest() {
  dbconfig.polls_until_complete = 0;
  alerting::TheApp().CloseStores();
  alerting::Unload();
  alerting::SetCompanions(before_);
  SetEngine(nullptr);
  unsetenv("ALERTING_DATA");
}

platform::ui::Answer RecordingDesktop::ShowMessage(const platform::ui::Message& message) {
  EXPECT_EQ(message.title, "Alerting") << message.text;
  EXPECT_EQ(engine->HeldLocks(), std::vector<std::string>()) << message.text;
  std::string& shown = messages.emplace_back(message.text);
  for (int i = 0; i < wait_cursors; ++i) shown += " (waiting)";
  return message.buttons == platform::ui::Buttons::kOk ? platform::ui::Answer::kOk
                                                       : platform::ui::Answer::kNo;
}

void RecordingDesktop::Sleep(std::uint32_t milliseconds) {
  sleeps.push_back(milliseconds);
  if (when_sleeping) when_sleeping();
}

void RecordingDesktop::ShowWaitCursor() {
  if (when_waiting) when_waiting();
  ++wait_cursors;
}

void ServiceTest::TearDown() {
  for (const std::string& text : desktop.messages) ADD_FAILURE() << "a message nobody expected: " << text;
  EXPECT_EQ(desktop.wait_cursors, 0);
}

std::vector<std::uint32_t> ConfiguredTypes() { return {0, 1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 12, 13}; }

GUID SeedCommon(std::uint32_t record_type, std::string_view name) {
  alerting::EnsureStoresOpen();
  ALRTNTFYSERV common{};
  common.recordType = record_type;
  common.enabled = 1;
  common.name.Assign(name);
  return AddRecord(alerting::ServiceStore(), common);
}

GUID SeedService(std::uint32_t code, std::string_view name, std::uint8_t pattern) {
  alerting::EnsureStoresOpen();
  ALRTNTFYSERV common;
  std::memset(&common, pattern, sizeof(common));
  common.serviceId = common.specificRecordId = common.backupSpecificRecordId = kNullGuid;
  common.recordType = alerting::RecordTypeOf(code);
  common.enabled = 1;
  common.virgin = 1;
  common.name.Assign(name);
  CAlertNtfyServDB& store = alerting::ServiceStore();
  if (code == alerting::kTypeProgram) return AddRecord(store, common);
  GUID id{}, specific_id{};
  WithRecordOf(code, [&]<class Record>() {
    Record record;
    std::memset(&record, pattern, sizeof(record));
    record.guid = kNullGuid;
    EXPECT_EQ(store.DBAlertRecAdd(common, id, record, specific_id), kOk);
  });
  return id;
}

ALRTNTFYSERV StoredCommon(const GUID& service) {
  ALRTNTFYSERV common{};
  common.serviceId = service;
  EXPECT_EQ(alerting::ServiceStore().DBAlertRecRetrieve(service, common), kOk);
  return common;
}

std::string StoredSpecific(std::uint32_t code, const GUID& record_id) {
  return WithRecordOf(code, [&]<class Record>() {
    Record record{};
    record.guid = record_id;
    EXPECT_EQ(alerting::ServiceStore().SpecificStore<Record>()->DBAlertRecRetrieve(record_id, record), kOk);
    return BytesOf(record);
  });
}

void PutText(std::string& bytes, std::size_t offset, std::size_t width, const std::string& text) {
  if (width > 0) bytes.replace(offset, width, width, '\0').replace(offset, text.size(), text);
}

void PutU32(std::string& bytes, std::size_t offset, std::uint32_t value) {
  for (std::size_t i = 0; offset > 0 && i < 4; ++i) bytes[offset + i] = static_cast<char>(value >> (8 * i));
}

alerting::CNtfyService* Find(const GUID& service) {
  EXPECT_TRUE(alerting::TheServices().Read());
  const std::optional<int> index = alerting::TheServices().FindById(service);
  return index ? alerting::TheServices().GetAt(*index) : nullptr;
}

alerting::CNtfyService& NewService(std::uint32_t code, std::string_view name, std::uint8_t pattern) {
  alerting::TheServices().RemoveAll();
  return *Find(SeedService(code, name, pattern));
}

GUID MakeUser(std::string_view name) {
  const GUID id = GUID::Generate();
  EXPECT_EQ(AddConsoleUser(id, name), kOk);
  return id;
}

}  // namespace test_support
