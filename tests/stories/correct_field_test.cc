// SPDX-License-Identifier: MIT
// From what a test's report says is to be corrected to the window that has it.
#include "console/hosts/correct_field.h"

#include "alerting/services/ntfy_service_alpha.h"
#include "companions/agentui/results_dialog.h"
#include "companions/alertstore/console_users.h"
#include "console/hosts/field_places.h"
#include "console/site/starter.h"
#include "server/field.h"
#include "tests/stories/service_sheet_fixture.h"
#include "tests/support/static_calls.h"

namespace stories {
namespace {

using namespace alertstore;  // NOLINT
using hosts::Corrected;
using platform::GUID;
using test_support::AddRecord;
using Kind = hosts::RecordWindow::Kind;

constexpr char kMail[] = "Internet Mail", kTrap[] = "SNMP Trap", kAlpha[] = "Alphanumeric Pager",
               kNumeric[] = "Numeric Pager", kProgram[] = "Program Launch Service", kWave[] = "Wave File",
               kPort[] = "Generic Port Service", kModem[] = "Modem Properties",
               kAdvanced[] = "Modem Advanced Properties", kManager[] = "SNMP Manager Properties",
               kEntry[] = "Service Properties";

/// A site as it is set up first, with two modems, two SNMP managers and a user.
class CorrectFieldTest : public StoryTest {
 protected:
  void SetUp() override {
    site::AddStarterData();
    alerting::EnsureStoresOpen();
    alerting::TheServices().RemoveAll();
    const GUID lines[] = {AddModem("Line 1", 1), AddModem("Line 2", 2)};
    for (const char* name : {kAlpha, kNumeric}) {
      auto& service = test_support::Users(*test_support::Find(ServiceNamed(name)));
      ASSERT_TRUE(service.SetModemSettings({lines[0], 2400, 8, 0, 0, ""}, "Line 1", false));
      ASSERT_TRUE(service.SetModemSettings({lines[1], 2400, 8, 0, 0, ""}, "Line 2", true));
      ASSERT_TRUE(service.SaveRecords());
    }
    for (const char* address : {"192.0.2.1", "192.0.2.2"}) {
      ALRTUSR_SNMPSERVICEREC manager{};
      manager.address.Assign(address);
      AddRecord(alerting::UserStore<CAlertUSR_SNMPDB>(), manager);
    }
  }

  static GUID AddModem(const char* name, std::uint32_t port) {
    ALRTSERV_MODEM modem{};
    modem.name.Assign(name);
    modem.comPort = port;
    modem.baudRate = 2400;
    modem.enabled = 1;
    return AddRecord(alerting::ModemStore(), modem);
  }
  GUID ServiceNamed(const std::string& name) const {
    for (const site::Service& service : Site().services)
      if (service.name == name) return service.id;
    throw std::runtime_error("no service " + name);
  }
  static site::Overview Site() {
    site::Overview site;
    EXPECT_EQ(site::ReadOverview(site), kOk);
    return site;
  }
  Corrected Correct(const std::string& field, const std::string& service, const std::string& record = {}) {
    const bool on_computer = service == kProgram || service == kWave;
    const GUID target = on_computer ? GUID::Generate() : user_;
    return hosts::CorrectField(windows_, Site(), {field, record, {ServiceNamed(service), target}}, nullptr);
  }
  /// The windows of the way close from the last one on, whose focus is looked at.
  void ExpectWay(const std::vector<std::string>& captions, const std::string& focused) {
    for (const std::string& caption : captions)
      Script().ExpectWindow(caption, [=, is_last = &caption == &captions.front()](Person& p) {
        EXPECT_TRUE(!is_last || p.FocusedLabel() == focused) << p.FocusedLabel();
        p.Press("Cancel");
      });
  }

  test_support::LibraryUnderTest library_;
  const site::LibraryCalls calls_ = test_support::StaticCalls();
  hosts::RecordWindows windows_{calls_};
  const GUID user_ = test_support::MakeUser("Ann");
};

/// A field, a service whose test may report it, the windows from the last that opens to the first, and where the focus is.
struct Way {
  const char *field, *service;
  std::vector<std::string> windows;
  const char* focused;
  const char* record = "";
};

const Way kWays[] = {
    {"enabled", kTrap, {kTrap}, "&Enable Service"},
    {"smtpServer", kMail, {kMail}, "&SMTP Server:"},
    {"providerPhone", kAlpha, {kAlpha}, "P&hone:"},
    {"maxTextLength", kAlpha, {kAlpha}, "Te&xt Length:"},
    {"modem", kNumeric, {kNumeric}, "Modems"},
    {"backupModem", kNumeric, {kNumeric}, "Modems"},
    {"baudRate", kAlpha, {kAlpha}, "&Baud Rate:"},
    {"address", kMail, {kEntry}, "Email A&ddress:"},
    {"address", kAlpha, {kEntry}, "&PIN number:"},
    {"address", kNumeric, {kEntry}, "&Phone number:"},
    {"userEnabled", kMail, {kEntry}, "&Enable service"},
    {"userEnabled", kAlpha, {kEntry}, "&Enable service for user"},
    {"userName",
     kProgram,
     {"Site Alerting Service Test: Program Launch Service", kProgram},
     "&Target Machine:"},
    {"userName", kWave, {"Site Alerting Service Test: Wave File", kWave}, "&Target Workstation:"},
    {"subject", kProgram, {"Site Alerting Service Test: Program Launch Service", kProgram}, "&Program:"},
    {"subject", kWave, {"Site Alerting Service Test: Wave File", kWave}, "&Wave File:"},
    {"message", kMail, {"User Alerting Service Test: Internet Mail"}, "Message &Body:"},
    {"message", kNumeric, {"User Alerting Service Test: Numeric Pager"}, "&Message Body:"},
    {"message", kProgram, {"Site Alerting Service Test: Program Launch Service", kProgram}, "&Command Line:"},
    {"snmpManagers.address", kTrap, {kManager, kTrap}, "&Network Address:", "192.0.2.2"},
    {"snmpManagers.community", kTrap, {kManager, kTrap}, "&Community:", "192.0.2.2"},
    {"modems.enabled", kAlpha, {kModem, kAlpha}, "&Enable", "Line 1"},
    {"modems.comPort", kAlpha, {kModem, kAlpha}, "&Port:", "Line 1"},
    {"modems.initString", kNumeric, {kAdvanced, kModem, kNumeric}, "&Initialization string:", "Line 1"},
    {"modems.alphaInitString",
     kAlpha,
     {kAdvanced, kModem, kAlpha},
     "&Alpha pager initialization string:",
     "Line 1"},
    {"modems.dialPrefix", kAlpha, {kAdvanced, kModem, kAlpha}, "Dialing &prefix string:", "Line 1"},
    {"modems.dialSuffix", kAlpha, {kAdvanced, kModem, kAlpha}, "Dialing &suffix string:", "Line 1"},
    {"modems.hangupString", kAlpha, {kAdvanced, kModem, kAlpha}, "&Hangup string:", "Line 1"},
};

TEST_F(CorrectFieldTest, EveryFieldThatAServerReportsOpensItsWindowWithTheFocusThere) {
  for (const Way& way : kWays) {
    SCOPED_TRACE(std::string(way.field) + " of " + way.service);
    ExpectWay(way.windows, way.focused);
    EXPECT_EQ(Correct(way.field, way.service, way.record), Corrected::kOpened);
  }
}

TEST_F(CorrectFieldTest, NoFieldOfTheServersListIsWithoutAPlaceOrUntried) {
  std::set<std::string_view> reported(std::begin(alertserver::kFieldNames) + 1,
                                      std::end(alertserver::kFieldNames)),
      placed, tried;
  for (const hosts::FieldPlace& place : hosts::FieldPlaces()) placed.insert(place.field);
  for (const Way& way : kWays) tried.insert(way.field);
  EXPECT_EQ(placed, reported);
  for (const std::string_view field : reported) {
    agentui::Report report;
    report.field = field;
    EXPECT_THAT(agentui::ReportText(report), Not(HasSubstr("the field \""))) << "no words for it";
  }
  for (const char* nowhere : {"loginId", "password"}) {
    EXPECT_TRUE(tried.insert(nowhere).second);
    EXPECT_FALSE(hosts::HasWindow({nowhere, "", {}}));
  }
  EXPECT_EQ(tried, reported);
  EXPECT_FALSE(hosts::HasWindow({"of a later server", "", {}}));
  Script().ExpectWindow(kMail, [](Person& p) {
    for (const char* hidden : {kLogin, kPassword}) EXPECT_FALSE(p.IsVisible(hidden)) << "it has a window now";
    p.Press("Cancel");
  });
  windows_.Open(nullptr, {Kind::kService, ServiceNamed(kMail)});
}

TEST_F(CorrectFieldTest, TheSheetThatIsOpenIsTurnedThereAndKeepsWhatWasTyped) {
  Script().ExpectWindow(kAlpha, [&](Person& p) {
    p.Type("&Company:", "Typed");
    p.SelectTab("Modems");
    EXPECT_EQ(Correct("providerPhone", kAlpha), Corrected::kTurned);
    EXPECT_EQ(p.FocusedLabel(), "P&hone:");
    EXPECT_EQ(p.Text("&Company:"), "Typed");
    EXPECT_TRUE(p.IsEnabled("&Apply"));
    ExpectWay({kEntry}, "&PIN number:");
    EXPECT_EQ(Correct("address", kAlpha), Corrected::kOpened) << "over it: another record";
    Script().ExpectWindow(kModem, [&](Person& modem) {
      EXPECT_EQ(modem.FocusedLabel(), "&Port:");
      Script().ExpectMessage(
          "The window with this field is open already, behind another one. Close what is over it first.");
      EXPECT_EQ(Correct("providerPhone", kAlpha), Corrected::kNotOpened);
      modem.Press("Cancel");
    });
    EXPECT_EQ(Correct("modems.comPort", kAlpha, "Line 1"), Corrected::kTurned);
    EXPECT_EQ(p.FocusedLabel(), "&Properties") << "where the person was";
    p.Press("OK");
  });
  EXPECT_TRUE(windows_.Open(nullptr, {Kind::kService, ServiceNamed(kAlpha)}));
  EXPECT_EQ(windows_.Last(), nullptr);
  EXPECT_EQ(
      test_support::FindAs<alerting::CNtfyServiceAlpha>(ServiceNamed(kAlpha)).GetProviderFields().company,
      "Typed");
}

TEST_F(CorrectFieldTest, TheModemOfTheTryIsMeantNotTheFirstOne) {
  Script().ExpectWindow(kModem, [](Person& p) {
    EXPECT_EQ(p.Text("&Port:"), "COM2:");
    p.Press("Cancel");
  });
  Script().ExpectWindow(kNumeric, [](Person& p) {
    EXPECT_THAT(p.Tabs(), ElementsAre("Modems")) << "the backup's";
    EXPECT_FALSE(p.IsEnabled("&Apply")) << "nothing was chosen for the service";
    p.Press("Cancel");
  });
  EXPECT_EQ(Correct("modems.comPort", kNumeric, "Line 2"), Corrected::kOpened);
}

TEST_F(CorrectFieldTest, WhatHasGoneMeanwhileIsTold) {
  const auto gone = [](const std::string& what) { return "\"" + what + "\" is not there any more."; };
  for (const auto& [field, service, record, told] :
       {std::tuple{"snmpManagers.address", kTrap, "192.0.2.9", gone("192.0.2.9")},
        {"modems.comPort", kAlpha, "Line 9", gone("Line 9")},
        {"modems.comPort", kPort, "Line 1", "\"Properties\" cannot be pressed here."}}) {
    Script().ExpectMessage(told);
    Script().ExpectWindow(service, [](Person& p) {
      EXPECT_FALSE(p.IsEnabled("&Apply"));
      p.Press("Cancel");
    });
    EXPECT_EQ(Correct(field, service, record), Corrected::kOpened);
  }
  const GUID mail = ServiceNamed(kMail);
  ASSERT_EQ(RemoveConsoleUser(user_), kOk);
  Script().ExpectMessage("The user that was tested has been removed.");
  EXPECT_EQ(Correct("address", kMail), Corrected::kNotOpened);
  ASSERT_EQ(alerting::ServiceStore().DBAlertRecDelete(mail), kOk);
  alerting::TheServices().RemoveAll();
  Script().ExpectMessage("Another console has deleted this service.");
  EXPECT_EQ(hosts::CorrectField(windows_, Site(), {"smtpServer", "", {mail, {}}}, nullptr),
            Corrected::kNotOpened);
}

}  // namespace
}  // namespace stories
