// SPDX-License-Identifier: MIT
// What the service objects write, byte for byte: fields at their offsets, everything else as it was.
#include <gmock/gmock.h>

#include "tests/support/service_classes.h"

namespace {

using namespace alerting;      // NOLINT
using namespace test_support;  // NOLINT
using ::testing::ElementsAre;

constexpr std::uint8_t kPattern = 0xA5;

struct Place {
  std::size_t offset = 0, width = 0;
};

/// Where a type keeps what its service object writes; width 0: the record has no such field.
struct Layout {
  std::uint32_t code;
  std::size_t size;
  Place body, subject;
  std::size_t priority, body_keywords, subject_keywords;
  Place login, password, place, text1, text2;  // `place`: directory, phone number or server
  std::size_t delay;
};

// clang-format off
const Layout kLayouts[] = {
  {0, 3958, {375, 1025}, {1400, 257}, 1657, 1661, 2938, {277, 49}, {326, 49}, {16, 261}, {}, {}, 0},
  {1, 5456, {2130, 1025}, {3155, 257}, 3412, 3416, 4436, {}, {}, {}, {}, {}, 0},
  {2, 4413, {140, 1025}, {1165, 257}, 1503, 1507, 3393, {42, 49}, {91, 49}, {16, 26}, {}, {}, 0},
  {3, 4197, {140, 1025}, {1165, 41}, 1287, 1291, 3177, {42, 49}, {91, 49}, {16, 26}, {}, {}, 0},
  {4, 3953, {370, 1025}, {1395, 257}, 1652, 1656, 2933, {272, 49}, {321, 49}, {16, 256}, {}, {}, 0},
  {5, 3697, {114, 1025}, {1139, 257}, 1396, 1400, 2677, {16, 49}, {65, 49}, {}, {}, {}, 0},
  {6, 3697, {114, 1025}, {1139, 257}, 1396, 1400, 2677, {16, 49}, {65, 49}, {}, {}, {}, 0},
  {7, 1498, {}, {}, 0, 0, 0, {}, {}, {}, {16, 261}, {277, 1221}, 0},
  {8, 2871, {16, 1025}, {}, 0, 1242, 0, {}, {}, {}, {1041, 201}, {}, 0},
  {10, 4131, {2065, 257}, {}, 0, 2498, 0, {}, {}, {}, {}, {}, 0},
  {11, 3779, {16, 2049}, {}, 0, 2150, 0, {}, {}, {}, {}, {}, 2065},
  {12, 2759, {16, 1025}, {}, 0, 1041, 0, {}, {}, {}, {}, {}, 0},
};
// clang-format on

void PutText(std::string& bytes, Place place, const std::string& text) {
  test_support::PutText(bytes, place.offset, place.width, text);
}

void PutKeywords(std::string& bytes, std::size_t offset,
                 std::vector<std::pair<std::uint32_t, const char*>> used) {
  if (offset == 0) return;
  bytes.replace(offset, 20 * 51, 20 * 51, '\0');
  for (const auto& [id, name] : used) {
    PutText(bytes, {offset, 41}, name);
    PutU32(bytes, offset + 41, id);
    PutText(bytes, {offset + 45, 6}, id == 11 ? "%ld" : "%s");
    offset += 51;
  }
}

std::string Expected(const Layout& layout, std::string bytes) {
  PutText(bytes, layout.body, "%s sent %ld");
  PutKeywords(bytes, layout.body_keywords, {{1, "<User Name>"}, {11, "<Event ID>"}});
  PutText(bytes, layout.subject, "About %s");
  PutKeywords(bytes, layout.subject_keywords, {{8, "<Severity>"}});
  PutU32(bytes, layout.priority, 1);
  PutText(bytes, layout.login, "operator");
  PutText(bytes, layout.password, "secret");
  PutText(bytes, layout.place, "555-1234");
  for (const Place& text : {layout.text1, layout.text2}) PutText(bytes, text, "");
  PutU32(bytes, layout.delay, 17);
  return bytes;
}

void Edit(CNtfyService& service) {
  DefaultMessage message;
  message.body = "%s sent %ld";
  message.bodyKeywords = {1, 11};
  message.subject = "About %s";
  message.subjectKeywords = {8};
  message.priority = 1;
  EXPECT_TRUE(service.SetDefaultMessage(message));
  GeneralFields fields;
  fields.loginId = "operator";
  fields.password = fields.verifyPassword = "secret";
  fields.mhsDirectory = fields.phoneNumber = fields.smtpServer = "555-1234";
  fields.text = fields.text1 = fields.text2 = "";
  fields.dialDelay = 17;
  fields.enabled = 0;
  EXPECT_TRUE(AsItsClass(service, [&](auto& typed) { return typed.SetGeneralFields(fields); }));
}

using ServiceRecordsTest = ServiceTest;

TEST_F(ServiceRecordsTest, ACopyAndASaveWriteTheEditsAtTheirOffsetsAndNothingElse) {
  for (const Layout& layout : kLayouts) {
    SCOPED_TRACE(layout.code);
    CNtfyService& service = NewService(layout.code, "Service", kPattern);
    const std::string source = StoredSpecific(layout.code, service.Common().specificRecordId);
    Edit(service);
    EXPECT_EQ(StoredSpecific(layout.code, service.Common().specificRecordId), source)
        << "edits stay in memory";
    GUID copy_id{};
    ASSERT_TRUE(service.MakeCopy("A name of more than thirty-two characters", copy_id));

    const ALRTNTFYSERV copy = StoredCommon(copy_id);
    EXPECT_EQ(copy.name.View(), "A name of more than thirty-two c");
    EXPECT_EQ(copy.enabled, 1U);
    EXPECT_EQ(copy.virgin, 1U);
    EXPECT_NE(copy.specificRecordId, service.Common().specificRecordId);
    EXPECT_EQ(StoredSpecific(layout.code, copy.specificRecordId).substr(16),
              Expected(layout, source).substr(16));
    ALRTNTFYSERV expected = service.Common();
    expected.serviceId = copy.serviceId;
    expected.specificRecordId = copy.specificRecordId;
    expected.backupSpecificRecordId = copy.backupSpecificRecordId;
    expected.name = copy.name;
    expected.enabled = expected.virgin = 1;
    EXPECT_EQ(BytesOf(copy), BytesOf(expected));
    ASSERT_TRUE(service.SaveRecords());
    EXPECT_EQ(StoredSpecific(layout.code, service.Common().specificRecordId), Expected(layout, source));
    EXPECT_EQ(StoredCommon(service.ServiceId()).enabled, 0U);
    if (!service.IsModemService()) continue;
    EXPECT_NE(copy.backupSpecificRecordId, service.Common().backupSpecificRecordId);
    EXPECT_FALSE(copy.backupSpecificRecordId.IsNull());
    ASSERT_TRUE(TheServices().AddFromStore(copy_id));
    EXPECT_FALSE(Find(copy_id)->HasBackupModem()) << "the copy keeps the backup's settings, not its modem";
  }
}

TEST_F(ServiceRecordsTest, ProgramLaunchSavesAndCopiesItsCommonRecordAlone) {
  const GUID id = SeedService(kTypeProgram, "Launcher", kPattern);
  ALRTNTFYSERV expected = StoredCommon(id);
  auto& service = FindAs<CNtfyServiceProg>(id);
  EXPECT_EQ(service.GetSpecificRecord(), nullptr);
  EXPECT_EQ(service.GetEnabled(), 1U);
  service.SetEnabled(0);
  ASSERT_TRUE(service.SaveRecords());
  expected.enabled = expected.virgin = 0;
  EXPECT_EQ(BytesOf(StoredCommon(id)), BytesOf(expected));

  GUID copy{};
  service.Common().specificRecordId = GUID::Generate();
  ASSERT_TRUE(service.MakeCopy("Copy", copy));
  EXPECT_EQ(StoredCommon(copy).virgin, 1U);
  EXPECT_TRUE(StoredCommon(copy).specificRecordId.IsNull());
  EXPECT_TRUE(service.ReloadRecords());
}

TEST_F(ServiceRecordsTest, PasswordsThatDifferAreRefusedAndTheEnabledFlagDefaultsToOn) {
  auto& service = NewServiceAs<CNtfyServiceSMTP>(kTypeSmtp);
  GeneralFields fields;
  fields.smtpServer = "mail.example.org";
  fields.password = "one";
  fields.verifyPassword = "two";
  fields.enabled = 0;
  EXPECT_FALSE(service.SetGeneralFields(fields));
  EXPECT_THAT(desktop.TakeMessages(),
              ElementsAre("The two password strings are not the same.  Save aborted."));
  EXPECT_EQ(service.GetGeneralFields().smtpServer, "");
  EXPECT_EQ(service.GetGeneralFields().enabled, 1U);

  fields.verifyPassword = "one";
  EXPECT_TRUE(service.SetGeneralFields(fields));
  EXPECT_EQ(service.GetGeneralFields().enabled, 0U);
  EXPECT_EQ(service.GetGeneralFields().verifyPassword, "one") << "the stored password stands in both fields";
  fields.enabled.reset();
  EXPECT_TRUE(service.SetGeneralFields(fields));
  EXPECT_EQ(service.GetGeneralFields().enabled, 1U);
}

TEST_F(ServiceRecordsTest, TextsTooLongForTheirFieldsAreCutInStepWithTheirKeywords) {
  auto& service = NewServiceAs<CNtfyServiceCIS>(kTypeCompuServe);
  DefaultMessage message;
  message.subject = std::string(37, 'x') + "%s%s";  // the second placeholder would end in byte 41
  message.subjectKeywords = {1, 2};
  ASSERT_TRUE(service.SetDefaultMessage(message));
  DefaultMessage kept;
  ASSERT_TRUE(service.GetDefaultMessage(kept));
  EXPECT_EQ(kept.subject, std::string(37, 'x') + "%s");
  EXPECT_EQ(kept.subjectKeywords, (KeywordIds{1}));
}

TEST_F(ServiceRecordsTest, AReloadRefusesAServiceOfAnotherType) {
  const GUID id = SeedService(kTypeSmtp, "Mail");
  auto& service = FindAs<CNtfyServiceSMTP>(id);
  ALRTNTFYSERV stored = StoredCommon(id);
  stored.name.Assign("Renamed elsewhere");
  ASSERT_EQ(ServiceStore().DBAlertRecUpdate(stored), kOk);
  EXPECT_TRUE(service.ReloadRecords());
  EXPECT_EQ(service.Name(), "Renamed elsewhere");

  stored.recordType = RecordTypeOf(kTypeMhs);
  stored.name.Assign("Another type");
  ASSERT_EQ(ServiceStore().DBAlertRecUpdate(stored), kOk);
  EXPECT_FALSE(service.ReloadRecords());
  EXPECT_EQ(service.Name(), "Renamed elsewhere") << "goes on with what it held";

  EXPECT_THAT(desktop.TakeMessages(),
              ElementsAre("The record in the service database is for an unexpected service type."));
}

TEST_F(ServiceRecordsTest, AMissingSpecificStoreFailsTheLoadOfEveryTypeButSnmpWithItsMessage) {
  for (const std::uint32_t code : {kTypeSmtp, kTypeSnmp, kTypeNumeric}) SeedService(code, "Service");
  ServiceStore().DropSpecificStore<ALRTSMTPSERVICEREC>();
  ServiceStore().DropSpecificStore<ALRTSNMPSERVICEREC>();
  ServiceStore().DropSpecificStore<ALRTNPAGESERVICEREC>();
  EXPECT_TRUE(TheServices().Read());
  const char* text =
      "The reference to a service specific database object is invalid.  Record not read. (waiting)";
  EXPECT_THAT(desktop.TakeMessages(), ElementsAre(text, text));
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(TheServices().GetAt(i)->SaveRecords());
  EXPECT_EQ(desktop.TakeMessages().size(), 3U);
}

}  // namespace
