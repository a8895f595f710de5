// SPDX-License-Identifier: MIT
// What the verbs do, on the real program.
#include "companions/alertstore/computers.h"
#include "tests/console/alertctl_fixture.h"

using namespace alertstore;
using nlohmann::json;
using platform::GUID;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

namespace {

ALRTNTFYSERV ServiceOfType(std::uint32_t type) {
  return Opened<CAlertNtfyServDB>().Find([&](const auto& service) { return service.recordType == type; });
}

TEST_F(AlertctlTest, InitSetsUpOnceAndThenChangesNothing) {
  const json first = RunJson({"init"});
  EXPECT_EQ(first["changed"], true);
  EXPECT_EQ(first["added"],
            json::parse(R"({"alertManagers": 1, "computers": 1, "locations": 1, "modemTypes": 6,
                                            "pagingProviders": 4, "services": 13, "testResponses": 13})"));
  const std::string before = ConfigFile();
  const Ran again = Run({"init"});
  EXPECT_EQ(again.code, 0);
  EXPECT_THAT(again.out, HasSubstr("Nothing to add"));
  EXPECT_EQ(ConfigFile(), before);
}

TEST_F(AlertctlSiteTest, InitCompletesARunThatWasCutShort) {
  const GUID program = ServiceOfType(14).serviceId,
             response = *GUID::Parse("3217DA57-ADD1-11CF-8137-000000000001");
  ASSERT_EQ(Opened<CAlertNtfyServDB>().DBAlertRecDelete(program), kOk);
  ASSERT_EQ(Opened<CAlertRespDB>().DBAlertRecDelete(response), kOk);
  DeleteFirst<CAlertMODEM_LOCATIONDB>();
  DeleteFirst<CAlertAPAGE_SERVICE_PROVIDERDB>();

  EXPECT_EQ(RunJson({"init"})["added"],
            json::parse(R"({"alertManagers": 0, "computers": 0, "locations": 1, "modemTypes": 0,
                                                        "pagingProviders": 1, "services": 1, "testResponses": 1})"));
  EXPECT_EQ(ServiceOfType(14).serviceId, program);
  EXPECT_EQ(RunJson({"manager", "list"})[0]["services"].size(), 13u) << "one entry a service, none twice";
}

TEST_F(AlertctlSiteTest, InitBringsNothingBackThatWasRemovedFromAFinishedSite) {
  ASSERT_EQ(Run({"service", "disable", "Internet Mail"}).code, 0);
  DeleteFirst<CAlertSERV_MODEMDB>("QModemDB.dat");
  EXPECT_EQ(RunJson({"init"})["changed"], false);
  std::vector<Computer> computers;
  ASSERT_EQ(ListComputers(computers), kOk);
  ASSERT_EQ(RemoveComputer(computers.at(0).id), kOk);
  EXPECT_EQ(RunJson({"init"})["added"]["computers"], 1) << "as on sites from before computers were kept";
}

TEST_F(AlertctlSiteTest, EveryTypeHasItsTestResponse) {
  Opened<CAlertRespDB> responses;
  for (std::uint32_t type : {1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 12, 13, 14}) {
    const GUID id{
        0x3217DA53u + type - 1, std::uint16_t{0xADD1}, std::uint16_t{0x11CF}, {0x81, 0x37, 0, 0, 0, 0, 0, 1}};
    const ALERTRESPREC response = responses.Find([&](const auto& r) { return r.responseId == id; });
    const ALRTNTFYSERV service = ServiceOfType(type);
    EXPECT_EQ(response.serviceId, service.serviceId) << type;
    EXPECT_EQ(response.serviceName.View(), service.name.View());
    EXPECT_EQ(response.serviceRecordType, type);
    const bool device = type == 2 || type == 8 || type == 9 || type == 13;
    EXPECT_EQ(response.responseType, type == 14 ? 4 : device ? 16 : 1) << type;
  }
}

TEST_F(AlertctlSiteTest, DefaultMessagesAreStoredWithTheirKeywords) {
  const ALRTSMTPSERVICEREC record = Opened<CAlertSMTPNtfyServDB>().First();
  EXPECT_EQ(record.defaultSubject.View(), "%s: %s");
  EXPECT_EQ(record.subjectKeywords[0].id, 8u);
  EXPECT_EQ(record.subjectKeywords[0].text.View(), "<Severity>");
  EXPECT_EQ(record.subjectKeywords[1].id, 4u);
  EXPECT_EQ(record.subjectKeywords[1].format.View(), "%s");
  EXPECT_EQ(record.subjectKeywords[2].id, 0u);
  EXPECT_THAT(std::string(record.defaultBody.View()), HasSubstr("Event number: %ld\r\n"));
  EXPECT_EQ(record.defaultPriority, 1u);

  const auto response = Opened<CAlertRespDB>().Find([](const auto& r) { return r.serviceRecordType == 5; });
  EXPECT_EQ(response.message.View(), record.defaultBody.View());
  EXPECT_EQ(response.subjectKeywords[1], 4);
}

TEST_F(AlertctlSiteTest, ListsAndShowsAsTextAndAsJson) {
  EXPECT_THAT(Run({"service", "list"}).out, HasSubstr("cc:Mail"));
  const json list = RunJson({"service", "list"});
  ASSERT_EQ(list.size(), 13u);
  EXPECT_EQ(list[4]["name"], "Internet Mail");
  EXPECT_EQ(list[4]["type"], "internet-mail");
  EXPECT_EQ(list[4]["alertManagers"].size(), 1u);

  EXPECT_THAT(Run({"service", "show", "INTERNET mail"}).out, HasSubstr("Workstation: <Workstation>"));
  const json by_id = RunJson({"service", "show", list[4]["id"]});
  EXPECT_EQ(by_id["name"], "Internet Mail");
  EXPECT_EQ(by_id["defaultMessage"]["subject"]["text"], "%s: %s");

  EXPECT_EQ(RunJson({"response", "list"}).size(), 13u);
  EXPECT_EQ(RunJson({"response", "show", "3217da57-add1-11cf-8137-000000000001"})["serviceName"],
            "Internet Mail");
}

TEST_F(AlertctlUserTest, ExitCodesAndMessagesSayWhatIsWrong) {
  std::filesystem::create_directories(data_ + "/plain");
  const std::tuple<Arguments, int, const char*> rows[] = {
      {{}, 2, "subcommand"},
      {{"service"}, 2, "subcommand"},
      {{"service", "fetch"}, 2, "fetch"},
      {{"service", "show"}, 2, "service"},
      {{"service", "list", "--colour"}, 2, "--colour"},
      {{"service", "list", "--data", ""}, 2, "is empty"},
      {{"service", "enable", "Internet Mail", "--manager", ""}, 2, "is empty"},
      {{"entry", "list", "--user", ""}, 2, "is empty"},
      {{"entry", "list", "--service", ""}, 2, "is empty"},
      {{"user", "add", "Bob", "--id", ""}, 2, "is empty"},
      {{"service", "show", "Pigeon Post"}, 3, "no service is named \"Pigeon Post\""},
      {{"response", "show", "{00000000-0000-0000-0000-000000000001}"}, 3, "no response"},
      {{"response", "show", "first"}, 4, "\"first\" is no identity"},
      {{"service", "copy", "Internet Mail", "cc:mail"}, 4, "already"},
      {{"service", "copy", "Internet Mail", "123456789012345678901234567890123"}, 4, "1 to 32 bytes"},
      {{"service", "copy", "Internet Mail", "New", "--manager", "nowhere"}, 3, "no alert manager"},
      {{"service", "delete", "Internet Mail"}, 4, "first Internet Mail service"},
      {{"user", "add", ""}, 4, "1 to 64 bytes"},
      {{"user", "add", "Bob", "--id", "7"}, 4, "no identity"},
      {{"user", "remove", "Bob"}, 3, "no user is named \"Bob\""},
      {{"entry", "set", "Ann", "Wave File", "x"}, 4, "no entries on Wave File"},
      {{"entry", "set", "Ann", "Numeric Pager", "12345678901234567890123456"}, 4, "25 bytes at most"},
      {{"entry", "remove", "Ann", "Internet Mail"}, 3, "no entry"},
      {{"service", "list", "--data", "/dev/null/nowhere"}, 5, "cannot"},
      {{"init", "--data", "/dev/null/nowhere"}, 5, "--data"},
      {{"config", "write", "--data", "/dev/null/nowhere"}, 5, "/dev/null/nowhere"},
  };
  for (const auto& [arguments, code, says] : rows)
    EXPECT_THAT(Run(arguments), Fails(code, says)) << testing::PrintToString(arguments);
}

TEST_F(AlertctlSiteTest, NoPasswordOrCommunityNameIsEverPrinted) {
  Opened<CAlertSMTPNtfyServDB> store;
  ALRTSMTPSERVICEREC record = store.First();
  record.password.Assign("s3cr3t!");
  ASSERT_EQ(store.DBAlertRecUpdate(record), kOk);
  ALRTUSR_SNMPSERVICEREC manager{};
  manager.community.Assign("s3cr3t!!");
  test_support::AddRecord(Opened<CAlertUSR_SNMPDB>(), manager);
  EXPECT_THAT(ConfigFile(), AllOf(HasSubstr("\"s3cr3t!\""), HasSubstr("\"s3cr3t!!\"")))
      << "the alert managers need it";

  EXPECT_EQ(RunJson({"service", "show", "Internet Mail"})["settings"]["password"], "********");
  for (const auto& verb : {Arguments{"service", "list"},
                           {"service", "show", "Internet Mail"},
                           {"config", "show"},
                           {"entry", "list"},
                           {"response", "list"},
                           {"manager", "list"},
                           {"service", "copy", "Internet Mail", "Copy"}}) {
    for (const char* format : {"", " --json"}) {
      const Ran ran = RunLine(CommandOf(verb) + format);
      EXPECT_THAT(ran.out + ran.err, Not(HasSubstr("s3cr3t!"))) << testing::PrintToString(verb);
    }
  }
}

TEST_F(AlertctlSiteTest, AServiceIsCopiedDisabledEnabledAndDeleted) {
  const json copy = RunJson({"service", "copy", "Internet Mail", "Night mail"});
  const json shown = RunJson({"service", "show", "night mail"});
  EXPECT_EQ(shown["id"], copy["id"]);
  EXPECT_EQ(shown["alertManagers"].size(), 1u);

  EXPECT_EQ(RunJson({"service", "disable", "Night mail"})["alertManagers"], json::array());
  EXPECT_EQ(RunJson({"service", "disable", "Night mail"})["changed"], false);
  EXPECT_EQ(RunJson({"service", "enable", "Night mail"})["changed"], true);
  EXPECT_EQ(RunJson({"service", "enable", "Night mail"})["changed"], false);

  ALRT_SRV_CFGREC other{};
  other.managerName.Assign("server-2");
  test_support::AddRecord(Opened<CAlert_SRV_CFGDB>(), other);
  EXPECT_EQ(Run({"service", "enable", "Night mail", "--manager", "server-2"}).code, 4) << "enabled elsewhere";
  RunJson({"service", "disable", "Night mail"});
  EXPECT_EQ(RunJson({"service", "enable", "Night mail", "--manager", "server-2"})["alertManagers"],
            json::array({"server-2"}));

  EXPECT_EQ(RunJson({"service", "delete", "Night mail"})["deleted"], true);
  EXPECT_EQ(Run({"service", "show", "Night mail"}).code, 3);
  EXPECT_EQ(RunJson({"service", "list"}).size(), 13u);
}

TEST_F(AlertctlSiteTest, AUserHasOneEntryOnAService) {
  const json ann = RunJson({"user", "add", "Ann", "--id", "7b1c7a52-0d5c-4f4b-8b60-6f3b1c9e2a11"});
  EXPECT_EQ(ann["id"], "{7B1C7A52-0D5C-4F4B-8B60-6F3B1C9E2A11}");
  EXPECT_EQ(Run({"user", "add", "Other", "--id", ann["id"]}).code, 4) << "the identity is taken";
  RunJson({"entry", "set", "Ann", "Internet Mail", "ann@example.org"});
  RunJson({"entry", "set", "Ann", "Numeric Pager", "555-0100"});
  RunJson({"entry", "set", "ann", "internet mail", "ann@example.com", "--disabled"});

  const json entries = RunJson({"entry", "list", "--user", "Ann"});
  ASSERT_EQ(entries.size(), 2u);
  EXPECT_EQ(entries[0]["address"], "ann@example.com");
  EXPECT_EQ(entries[0]["enabled"], false);
  const auto link = Opened<CAlertUsrInstServDB>().Find([](const auto& l) { return l.recordType == 5; });
  EXPECT_EQ(link.serviceName.View(), "Internet Mail");
  EXPECT_EQ(link.userEnabled, 0u);

  EXPECT_EQ(Run({"user", "remove", "Ann"}).code, 4) << "entries would be left behind";
  RunJson({"entry", "remove", "Ann", "Internet Mail"});
  EXPECT_EQ(RunJson({"entry", "list"}).size(), 1u);
  RunJson({"entry", "remove", "Ann", "Numeric Pager"});
  RunJson({"user", "remove", "Ann"});
  EXPECT_EQ(RunJson({"user", "list"}), json::array());
}

TEST_F(AlertctlUserTest, EntriesOfEachTypeAreFoundAgainInTheTypesOwnStore) {
  std::size_t written = 0;
  for (const json& service : RunJson({"service", "list"}))
    written += Run({"entry", "set", "Ann", service["name"], "5550100"}).code == 0;
  EXPECT_EQ(written, 8u);
  EXPECT_EQ(RunJson({"entry", "list"}).size(), written);
}

TEST_F(AlertctlUserTest, AnEntryWhoseRecordIsGoneIsRepaired) {
  RunJson({"entry", "set", "Ann", "Internet Mail", "ann@example.org"});
  DeleteFirst<CAlertUSR_SMTPDB>();
  EXPECT_EQ(RunJson({"entry", "list"}), json::array());
  RunJson({"entry", "set", "Ann", "Internet Mail", "ann@example.org"});
  EXPECT_EQ(RunJson({"entry", "list"}).size(), 1u);
}

TEST_F(AlertctlSiteTest, ProvidersAreAddedChangedAndRemovedOneByOne) {
  const json hills = RunJson({"provider", "add", "--company", " Hills ", "--phone", "555-0151"});
  EXPECT_EQ(RunJson({"provider", "show", "hills"}), hills);
  const json changed =
      RunJson({"provider", "set", hills["id"], "--region-a", "North", "--parity", "ODD", "--stop-bits", "1.5",
               "--baud-rate", "300", "--data-bits", "8", "--text-length", "255"});
  EXPECT_EQ(changed,
            json::parse(R"({"company": "Hills", "regionA": "North", "regionB": "", "phone": "555-0151",
    "baudRate": 300, "parityCode": 1, "dataBits": 8, "stopBitsCode": 1, "maxTextLength": 255, "id": )" +
                        hills["id"].dump() + "}"));
  EXPECT_EQ(json::parse(ConfigFile())["pagingProviders"][4], changed);
  for (const auto& [arguments, code] : {std::pair(Arguments{"--text-length", "256"}, 4),
                                        {{"--baud-rate", "-1"}, 4},
                                        {{"--phone", "call"}, 4},
                                        {{"--region-b", std::string(77, 'x')}, 4},
                                        {{"--company", ""}, 2},
                                        {{}, 2}}) {
    Arguments all = {"provider", "set", "Hills"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    EXPECT_THAT(Run(all), Fails(code, "")) << testing::PrintToString(arguments);
  }
  EXPECT_EQ(RunJson({"provider", "set", "Hills", "--region-a", ""})["regionA"], "");
  RunJson({"provider", "add", "--company", "HILLS", "--phone", "555-0151"});
  EXPECT_THAT(Run({"provider", "remove", "Hills"}), Fails(4, "name it by its identity"));
  EXPECT_EQ(RunJson({"provider", "remove", hills["id"]})["phone"], "555-0151");
  EXPECT_EQ(RunJson({"provider", "list"}).size(), 5u);
  EXPECT_THAT(Run({"provider", "show", hills["id"]}), Fails(3, "alertctl provider list"));
}

TEST_F(AlertctlSiteTest, ImportTellsEveryFaultOnALineOfItsOwnAndChangesNothingTheSecondTime) {
  const std::string file = root_ + "/p.csv";
  platform::WriteFileAtomically(file, "company\nA\n", 0600);
  const Ran ran = Run({"provider", "import", file});
  EXPECT_THAT(ran, Fails(4, "\nalertctl: line 1: there is no column \"phone\": add it\nalertctl: "));
  EXPECT_EQ(RunJson({"provider", "import", PROVIDERS_EXAMPLE})["added"], 3);
  const std::string before = ConfigFile();
  const json again = RunJson({"provider", "import", PROVIDERS_EXAMPLE});
  EXPECT_EQ(again["added"], 0);
  EXPECT_EQ(again["known"], 3);
  EXPECT_EQ(ConfigFile(), before);
  EXPECT_THAT(Run({"provider", "import", root_ + "/none.csv"}), Fails(3, "there is no file"));
}

}  // namespace
