// SPDX-License-Identifier: MIT
#include "companions/dbconfig/dbconfig.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <thread>

#include "companions/alertstore/stores.h"
#include "companions/dbconfig/service_types.h"
#include "platform/base/paths.h"
#include "platform/base/process_lock.h"
#include "tests/companions/store_fixture.h"
#include "tests/support/failing_engine.h"

using namespace alertstore;
using nlohmann::json;
using platform::GUID;
using test_support::FailingEngine;
using test_support::kAnyStore;
using test_support::StoreOp;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

/// A record with a default message of one keyword.
template <class Record>
Record WithBody(std::string_view body) {
  Record record{};
  record.defaultBody.Assign(body);
  record.bodyKeywords[0].id = 1;
  return record;
}

class DbConfigTest : public StoreTest {
 protected:
  GUID AddCommon(std::uint32_t type, std::string_view name) {
    auto common = Named<ALRTNTFYSERV>(name);
    common.recordType = type;
    return AddTo<CAlertNtfyServDB>(common);
  }

  template <class Specific>
  ALRTNTFYSERV AddService(std::uint32_t type, Specific specific) {
    auto common = Named<ALRTNTFYSERV>("Service " + std::to_string(type));
    common.recordType = type;
    GUID id{}, specific_id{};
    EXPECT_EQ(services_.DBAlertRecAdd(common, id, specific, specific_id), kOk);
    return common;
  }

  template <class Store>
  static GUID AddTo(const typename Store::RecordType& record) {
    return test_support::AddRecord(Opened<Store>(), record);
  }

  template <class User>
  static void AddUser(const ALRTNTFYSERV& service, User user) {
    Opened<CAlertUsrInstServDB> links;
    Opened<RecordStore<User>> users;
    ALRTUSRINSTSERV link{};
    link.serviceId = service.serviceId;
    ASSERT_EQ(::Add(links, link, user), kOk);
  }

  /// One service of every type, with what belongs to it.
  void AddFullSite();

  static std::uint32_t Write() { return dbconfig::MakeDbConfig()->CreateAlertServerConfigFile(0); }
  std::string Path() const { return directory_ + "/alert-managers.json"; }
  std::string Bytes() const {
    std::string bytes;
    EXPECT_TRUE(platform::ReadWholeFile(Path(), bytes));
    return bytes;
  }
  json WrittenDocument() {
    EXPECT_EQ(Write(), 0u);
    return json::parse(Bytes());
  }

  Services services_;
};

void DbConfigTest::AddFullSite() {
  AddService(1, WithBody<ALRTMHSSERVICEREC>("mhs"));
  AddService(2, WithBody<ALRTSNMPSERVICEREC>("snmp"));
  AddUser(AddService(3, WithBody<ALRTMCISERVICEREC>("mci")), ALRTUSR_MCISERVICEREC{});
  AddService(4, WithBody<ALRTCOMPUSSERVICEREC>("compuserve"));
  const auto smtp = AddService(5, WithBody<ALRTSMTPSERVICEREC>("smtp"));
  AddUser(smtp, ALRTUSR_SMTPSERVICEREC{});
  AddService(6, WithBody<ALRTMAPISERVICEREC>("mapi"));
  AddService(7, WithBody<ALRTCCMAILSERVICEREC>("cc"));
  AddService(8, ALRTWAVESERVICEREC{});
  AddService(9, WithBody<ALRTTTSSERVICEREC>("speech"));
  AddUser(AddService(11, WithBody<ALRTAPAGESERVICEREC>("alpha")), ALRTUSR_APAGESERVICEREC{});
  AddUser(AddService(12, WithBody<ALRTNPAGESERVICEREC>("911")), ALRTUSR_NPAGESERVICEREC{});
  AddService(13, WithBody<ALRTGENPORTSERVICEREC>("port"));
  AddCommon(14, "Program");
  AddTo<CAlertRespDB>({});
  AddTo<CAlertUSR_SNMPDB>({});
  AddTo<CAlertSERV_MODEMDB>({});
  AddTo<CAlertMODEM_LOCATIONDB>({});
  AddTo<CAlertAPAGE_SERVICE_PROVIDERDB>({});
  ALRTSERV_INST_NTFY_SERVREC enabled{};
  enabled.managerGuid = AddTo<CAlert_SRV_CFGDB>({});
  enabled.serviceGuid = smtp.serviceId;
  AddTo<CAlertSERV_INST_NTFY_SERVDB>(enabled);
}

const json& FileSchema() {
  static const json schema = [] {
    std::string bytes;
    EXPECT_TRUE(platform::ReadWholeFile(CONFIGURATION_SCHEMA, bytes)) << CONFIGURATION_SCHEMA;
    return json::parse(bytes);
  }();
  return schema;
}

/// Where a value is not as the schema has it: in the type, the constant, or the members, which may depend on others.
std::vector<std::string> Faults(const json& value, const json& rule = FileSchema(),
                                const std::string& at = "") {
  if (rule.contains("$ref"))
    return Faults(value, FileSchema().at(json::json_pointer(std::string(rule["$ref"]).substr(1))), at);
  std::vector<std::string> faults;
  const auto check = [&](const json& part, const json& part_rule, const std::string& name) {
    for (std::string& fault : Faults(part, part_rule, at + name)) faults.push_back(std::move(fault));
  };
  const json type = value.is_number_integer() ? "integer" : value.type_name();
  const auto is_among = [](const json& one, const json& all) {
    return std::find(all.begin(), all.end(), one) != all.end();
  };
  if (!is_among(type, rule.value("type", type)) || !is_among(value, rule.value("enum", json{value})) ||
      value != rule.value("const", value))
    faults.push_back(at);
  for (const json& name : rule.value("required", json::array()))
    if (value.is_object() && !value.contains(name)) faults.push_back(at + "/" + std::string(name));
  const json properties = rule.value("properties", json::object());
  for (const auto& [name, member] : value.items())
    if (value.is_array() || properties.contains(name))
      check(member, value.is_array() ? rule.value("items", json::object()) : properties[name], "/" + name);
    else if (!rule.value("additionalProperties", true))
      faults.push_back(at + "/" + name);
  for (const json& part : rule.value("allOf", json::array())) check(value, part, "");
  if (rule.contains("if") && Faults(value, rule["if"]).empty()) check(value, rule["then"], "");
  return faults;
}

TEST_F(DbConfigTest, AFileOfAllTypesFollowsTheSchema) {
  AddFullSite();
  json document = WrittenDocument();
  EXPECT_THAT(Faults(document), IsEmpty());
  ASSERT_EQ(document["services"].size(), dbconfig::ServiceTypes().size());
  for (std::size_t i = 0; i < document["services"].size(); ++i)
    EXPECT_EQ(document["services"][i]["type"], dbconfig::ServiceTypes()[i].key);
  document["version"] = 2;
  document["modems"][0]["colour"] = "blue";
  document["services"][0]["settings"] = document["services"][4]["settings"];
  document["services"][4].erase("users");
  document["responses"][0]["priority"] = "1";
  EXPECT_THAT(Faults(document), SizeIs(6)) << "each is seen, and the settings lack one and have one too many";
}

TEST_F(DbConfigTest, AServiceIsToldWithItsSettingsMessageAndUsers) {
  auto record = WithBody<ALRTSMTPSERVICEREC>("Hello %s, 5% left");
  record.smtpServer.Assign("mail.example.org");
  record.password.Assign("secret");
  record.defaultSubject.Assign("%ld");
  record.subjectKeywords[0].id = 11;
  record.subjectKeywords[2].id = 12;  // behind an unused slot: no placeholder reaches it
  record.defaultPriority = 2;
  const ALRTNTFYSERV service = AddService(5, record);
  ALRTUSR_SMTPSERVICEREC user{};
  user.userId = GUID::Generate();
  user.userName.Assign("Ann");
  user.userAddress.Assign("ann@example.org");
  user.userEnabled = 1;
  AddUser(service, user);

  const json told = WrittenDocument()["services"][0];
  EXPECT_EQ(told["id"], service.serviceId.ToString());
  EXPECT_EQ(told["settings"]["smtpServer"], "mail.example.org");
  EXPECT_EQ(told["settings"]["password"], "secret");
  EXPECT_EQ(told["defaultMessage"], json::parse(R"({
    "body": {"text": "Hello %s, 5% left", "keywords": [{"id": 1, "name": "<User Name>", "format": "%s"}]},
    "subject": {"text": "%ld", "keywords": [{"id": 11, "name": "<Event ID>", "format": "%ld"}]},
    "priority": 2})"));
  EXPECT_EQ(told["users"],
            json::parse(R"([{"userId": ")" + user.userId.ToString() +
                        R"(", "name": "Ann", "address": "ann@example.org", "enabled": true}])"));
}

TEST_F(DbConfigTest, ModemAndBackupModemComeFromTheirOwnRecords) {
  ALRTNPAGESERVICEREC record{};
  record.modemName.Assign("first");
  record.baudRate = 9600;
  record.dialPrefix.Assign("ATDT");
  ALRTNTFYSERV service = AddService(12, record);
  EXPECT_EQ(WrittenDocument()["services"][0]["backupModem"], nullptr);

  record.modemName.Assign("second");
  service.backupSpecificRecordId = AddTo<CAlertNPAGENtfyServDB>(record);
  ASSERT_EQ(services_.DBAlertRecUpdate(service), kOk);
  const json told = WrittenDocument()["services"][0];
  EXPECT_EQ(told["modem"]["modemName"], "first");
  EXPECT_EQ(told["modem"]["baudRate"], 9600);
  EXPECT_EQ(told["modem"]["dialPrefix"], "ATDT");
  EXPECT_EQ(told["modem"]["modemId"], nullptr);
  EXPECT_EQ(told["backupModem"]["modemName"], "second");
}

TEST_F(DbConfigTest, EachManagerListsItsOwnServices) {
  ALRTSERV_INST_NTFY_SERVREC entry{};
  for (const char* name : {"server-1", "server-2"}) {
    ALRT_SRV_CFGREC manager{};
    manager.managerName.Assign(name);
    const GUID id = AddTo<CAlert_SRV_CFGDB>(manager);
    if (entry.managerGuid.IsNull()) entry.managerGuid = id;
  }
  entry.serviceGuid = GUID::Generate();
  entry.isBackup = 1;
  AddTo<CAlertSERV_INST_NTFY_SERVDB>(entry);

  const json managers = WrittenDocument()["alertManagers"];
  EXPECT_EQ(managers[0]["name"], "server-1");
  EXPECT_EQ(managers[0]["services"],
            json::array({{{"serviceId", entry.serviceGuid.ToString()}, {"backup", true}}}));
  EXPECT_EQ(managers[1]["services"], json::array());
}

TEST_F(DbConfigTest, AResponseNamesItsKeywords) {
  ALERTRESPREC response{};
  response.serviceRecordType = 5;
  response.message.Assign("%s");
  response.messageKeywords[0] = 2;
  response.userName.Assign("Ann");
  AddTo<CAlertRespDB>(response);
  const json told = WrittenDocument()["responses"][0];
  EXPECT_EQ(told["serviceType"], "internet-mail");
  EXPECT_EQ(told["serviceId"], nullptr);
  EXPECT_EQ(told["message"]["keywords"][0]["name"], "<Workstation>");
  EXPECT_EQ(told["subject"]["keywords"], json::array());
}

TEST_F(DbConfigTest, LooseEndsAreLeftOut) {
  ALRTUSRINSTSERV link{};
  link.serviceId = AddCommon(5, "no record of its own");
  link.userRecordId = GUID::Generate();
  AddTo<CAlertUsrInstServDB>(link);
  AddCommon(15, "script");

  const json document = WrittenDocument();
  ASSERT_EQ(document["services"].size(), 1u);
  EXPECT_FALSE(document["services"][0].contains("settings"));
  EXPECT_EQ(document["services"][0]["users"], json::array());
  EXPECT_THAT(Faults(document), IsEmpty());
}

TEST_F(DbConfigTest, TheFileIsForItsOwnerAndTheSameWhenNothingChanged) {
  AddFullSite();
  ASSERT_EQ(Write(), 0u);
  const std::string first = Bytes();
  EXPECT_EQ(std::filesystem::status(Path()).permissions(), std::filesystem::perms{0600});
  ASSERT_EQ(Write(), 0u);
  EXPECT_EQ(Bytes(), first);
}

TEST_F(DbConfigTest, BytesThatAreNoUtf8AreReplaced) {
  AddCommon(14, "a\xFFz");
  EXPECT_EQ(WrittenDocument()["services"][0]["name"], "a\uFFFDz");
}

TEST_F(DbConfigTest, AnyStoreThatCannotBeReadFailsTheWriteAndKeepsTheFile) {
  AddFullSite();
  ASSERT_EQ(Write(), 0u);
  const std::string before = Bytes();
  AddCommon(14, "one more");
  const auto engine = std::make_shared<FailingEngine>(CurrentEngine());
  SetEngine(engine);
  int failed = 0;
  for (int n = 1;; ++n) {
    engine->FailNth(kAnyStore, StoreOp::kAny, n);
    const std::uint32_t status = Write();
    if (engine->Failures() == 0) break;
    ++failed;
    EXPECT_EQ(status, dbconfig::kStoresUnreadable) << n;
    EXPECT_EQ(Bytes(), before) << n;
    engine->Forget();
  }
  EXPECT_GT(failed, 60);  // 29 stores are opened and read, and one read transaction begun
  EXPECT_NE(Bytes(), before);
}

TEST_F(DbConfigTest, WithoutTheLockOrThePlaceNothingIsWritten) {
  std::filesystem::create_directories(Path() + ".lock");
  EXPECT_EQ(Write(), dbconfig::kFileUnwritable);
  EXPECT_FALSE(std::filesystem::exists(Path()));
  std::filesystem::remove(Path() + ".lock");
  std::filesystem::create_directories(Path() + "/in the way");
  EXPECT_EQ(Write(), dbconfig::kFileUnwritable);
  EXPECT_EQ(dbconfig::MakeDbConfig()->IsConversionComplete(), 1u);
}

TEST_F(DbConfigTest, AWriteWaitsForAnotherConsoleAndIsUnderWayMeanwhile) {
  auto other_console = std::make_unique<platform::ProcessLock>(Path() + ".lock", std::chrono::seconds(1));
  const auto component = dbconfig::MakeDbConfig();
  std::uint32_t status = 99;
  std::thread writer([&] { status = component->CreateAlertServerConfigFile(0); });
  while (component->IsConversionComplete() != 0) std::this_thread::yield();
  std::this_thread::sleep_for(std::chrono::milliseconds(100));
  EXPECT_EQ(component->IsConversionComplete(), 0u);
  EXPECT_FALSE(std::filesystem::exists(Path()));
  other_console.reset();
  writer.join();
  EXPECT_EQ(status, 0u);
  EXPECT_EQ(component->IsConversionComplete(), 1u);
}

TEST_F(DbConfigTest, TheDataDirectoryIsCutToTheBuffer) {
  UseDirectory("/data/\u00E9");
  char buffer[16] = "untouched";
  const auto component = dbconfig::MakeDbConfig();
  component->GetQEVDataDirectory(buffer, 0);
  EXPECT_STREQ(buffer, "untouched");
  component->GetQEVDataDirectory(buffer, sizeof buffer);
  EXPECT_STREQ(buffer, "/data/\u00E9");
  component->GetQEVDataDirectory(buffer, 8);  // one byte too few for the last letter
  EXPECT_STREQ(buffer, "/data/");
}

}  // namespace
