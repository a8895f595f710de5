// SPDX-License-Identifier: MIT
#include "tests/window/main_window_test.h"

#include <QMenu>
#include <QScrollBar>
#include <filesystem>
#include <fstream>

#include "companions/agentui/results_dialog.h"
#include "companions/alertstore/console_users.h"
#include "console/site/backup_manager.h"
#include "console/site/dialing_rules.h"
#include "console/site/managers.h"
#include "console/site/open_mark.h"
#include "console/site/services.h"
#include "platform/base/atomic_write.h"
#include "platform/base/paths.h"
#include "tests/support/raw_database.h"

namespace alertconsole {
namespace {

using platform::ui::Answer;
using testing::HasSubstr;

const site::Service* ServiceNamed(const site::Overview& site, const std::string& name) {
  for (const site::Service& service : site.services)
    if (service.name == name) return &service;
  return nullptr;
}

std::string Managers() {
  std::string bytes;
  platform::ReadWholeFile(platform::DataDirectory() + "/alert-managers.json", bytes);
  return bytes;
}

TEST_F(MainWindowTest, AnEmptySiteOffersToBeSetUpAndNothingWarnsBefore) {
  Open();
  EXPECT_TRUE(Says("This site is not set up yet"));
  EXPECT_FALSE(Says("not yet told"));
  EXPECT_FALSE(std::filesystem::exists(Library().Directory() + "/alerting.db")) << "looking makes nothing";
  Press("&Set Up This Site");
  EXPECT_EQ(Table("Services").model()->rowCount(), 13);
  EXPECT_THAT(Managers(), HasSubstr("Internet Mail"));
  Window().LookForChanges();
  EXPECT_FALSE(Says("not yet told")) << "the records that the library adds when it loads are told, too";
  EXPECT_THAT(Window().windowTitle().toStdString(), HasSubstr(Library().Directory()));
}

TEST_F(MainWindowTest, DamagedDataAreToldAndNeverShownAsEmpty) {
  OpenSetUp();
  const std::string file = Library().Directory() + "/alerting.db";
  test_support::RawDatabase(Library().Directory()).Ask("PRAGMA wal_checkpoint(TRUNCATE)");
  std::string bytes;
  ASSERT_TRUE(platform::ReadWholeFile(file, bytes));
  const auto overwrite = [&](const std::string& start) {
    std::fstream(file, std::ios::in | std::ios::out | std::ios::binary) << start << std::flush;
  };
  overwrite(std::string(100'000, 'x'));
  Window().ReadSite();
  EXPECT_TRUE(Says("The records cannot be read"));
  Open();
  EXPECT_TRUE(Says("The records cannot be read")) << "nor by a console that starts on them";
  EXPECT_FALSE(Says("not set up"));
  overwrite(bytes.substr(0, 100'000));
  Press("&Try Again");
  EXPECT_EQ(Table("Services").model()->rowCount(), 13);
}

TEST_F(MainWindowTest, SelectionAndScrollStayWithTheirRecordsWhenOthersChangeTheSite) {
  for (int i = 0; i < 200; ++i) test_support::MakeUser("User " + std::to_string(1000 + i));
  OpenSetUp();
  ShowPage("&Users");
  Choose("Users", "User 1100");
  Table("Users").scrollTo(RowOf("Users", "User 1090"), QAbstractItemView::PositionAtTop);
  const QString top = Table("Users").indexAt(QPoint(1, 1)).data().toString();
  std::vector<alertstore::ConsoleUser> users;
  alertstore::ListConsoleUsers(users);
  for (std::size_t i = 0; i < 40; ++i) alertstore::RemoveConsoleUser(users[i].id);
  test_support::MakeUser("Newcomer");
  Window().LookForChanges();
  EXPECT_EQ(Table("Users").model()->rowCount(), 161);
  EXPECT_EQ(Chosen("Users"), "User 1100");
  EXPECT_EQ(Table("Users").selectionModel()->selectedRows().size(), 1);
  EXPECT_EQ(Table("Users").indexAt(QPoint(1, 1)).data().toString(), top);
  Table("Users").sortByColumn(0, Qt::DescendingOrder);
  EXPECT_EQ(Table("Users").model()->index(0, 0).data(), "User 1199");
  auto* filter = Filter("Filter of the Users");
  filter->setText("USER 110");
  EXPECT_EQ(Table("Users").model()->rowCount(), 10);
  EXPECT_EQ(Chosen("Users"), "User 1100");
  EXPECT_TRUE(Says("10 of 161 users"));
  filter->setText("nobody");
  EXPECT_TRUE(Says("No row holds \"nobody\"."));
}

TEST_F(MainWindowTest, ANameThatIsTooLongOrTakenStaysForCorrection) {
  OpenSetUp();
  Choose("Services", "Wave File");
  const std::string too_long(40, 'n');
  Script().ExpectWindow("Copy Service", [&](Person& p) {
    EXPECT_EQ(p.Text("&Name of the copy:"), "Copy of Wave File");
    for (const std::string& name : {too_long, std::string("sNMP tRAP")}) {
      p.Type("&Name of the copy:", name);
      p.Press("OK");
      EXPECT_EQ(p.Text("&Name of the copy:"), name);
    }
    p.Type("&Name of the copy:", " Siren ");
    p.Press("OK");
  });
  Script().ExpectMessage("A service's name has 1 to 32 bytes: \"" + too_long + "\" has 40.");
  Script().ExpectMessage("There is a service named \"SNMP Trap\" already: choose another name.");
  Give("Copy");
  EXPECT_EQ(Chosen("Services"), "Siren") << "the copy is the chosen one";
  EXPECT_TRUE(Says("No alert manager delivers the copy yet."));
  EXPECT_THAT(Managers(), HasSubstr("Siren"));
}

TEST_F(MainWindowTest, DeletingSaysWhoLosesItAndIsNoUnlessOneSaysYes) {
  OpenSetUp();
  const GUID copy = [&] {
    const int index = Window().Calls().IndexOf(ServiceNamed(Window().Site(), "Wave File")->id);
    DomainServiceCopyServiceX(index, "Siren", Window().Site().managers[0].id);
    return DomainServiceGetInfo(DomainServiceGetCount() - 1)->serviceId;
  }();
  Window().ReadSite();
  Choose("Services", "Wave File");
  EXPECT_FALSE(Command("Delete").isEnabled()) << "the first of its type stays";
  Choose("Services", "Siren");
  const std::string question = "Delete the service \"Siren\"?\n\n" + Window().Site().managers[0].name +
                               " no longer delivers it.\n\nThis happens at once and cannot be undone.";
  Script().ExpectMessage(question, Answer::kNo);
  Give("Delete");
  EXPECT_NE(site::Find(Window().Site().services, copy), nullptr);
  Script().ExpectMessage(question, Answer::kYes);
  Give("Delete");
  EXPECT_EQ(site::Find(Window().Site().services, copy), nullptr);
  EXPECT_TRUE(Says("Deleted \"Siren\"."));
  Command("Refresh").trigger();
  EXPECT_TRUE(Says("Deleted \"Siren\".")) << "the status keeps its text";
}

TEST_F(MainWindowTest, AServiceThatAnotherConsoleHasOpenOrDeletedIsToldAsThat) {
  OpenSetUp();
  const site::Service mail = *ServiceNamed(Window().Site(), "Internet Mail");
  {
    const site::OpenMark mark(mail.id);
    const site::OpenMark second(mail.id);
    ASSERT_TRUE(second.Other());
    Script().ExpectMessage("The properties of this service are open in another console (" +
                               second.Other()->who + ", since " + second.Other()->since +
                               "). Whoever stores last wins.\n\nOpen them all the same?",
                           Answer::kNo);
    Window().OpenSheet(mail.id);
  }
  Script().ExpectWindow("Internet Mail", [](Person& p) { p.Press("Cancel"); });
  Window().OpenSheet(mail.id);
  test_support::RawDatabase(Library().Directory())
      .Ask("DELETE FROM \"NtfyServDB.dat\" WHERE rowid IN (SELECT MAX(rowid) FROM \"NtfyServDB.dat\")");
  const GUID gone = Window().Site().services.back().id;
  Script().ExpectMessage("Another console has deleted this service.");
  Window().OpenSheet(gone);
  EXPECT_EQ(site::Find(Window().Site().services, gone), nullptr);
}

TEST_F(MainWindowTest, SwitchAndDeliveryAreTwoThings) {
  OpenSetUp();
  GUID other{};
  ASSERT_EQ(site::AddManager("OTHER", other), alertstore::kOk);
  const QString here = Cells("Services", "Wave File").at(3);
  Choose("Services", "Wave File");
  Give("Switch Off");
  EXPECT_EQ(Cells("Services", "Wave File").mid(2, 2), QStringList({"Off", here}));
  Script().ExpectWindow("Deliver Through", [](Person& p) {
    p.Choose("&Alert manager:", "OTHER");
    p.Press("OK");
  });
  Give("Deliver Through");
  EXPECT_EQ(Cells("Services", "Wave File").mid(2, 2), QStringList({"Off", "OTHER"}))
      << "taken over, not added";
  ShowPage("Alert &Managers");
  EXPECT_EQ(Cells("Alert managers", "OTHER").mid(1, 2), QStringList({"1", "Wave File"}));
}

TEST_F(MainWindowTest, AManagerWithAModemStaysAndOneThatGoesIsNoBackupAnyMore) {
  OpenSetUp();
  GUID other{}, id{};
  ASSERT_EQ(site::AddManager("OTHER", other), alertstore::kOk);
  Window().LookForChanges();
  ShowPage("Alert &Managers");
  Choose("Alert managers", "OTHER");
  Give("Backup or Not");
  EXPECT_EQ(site::ReadBackupManager(), other);
  test_support::Opened<alertstore::CAlertSERV_MODEMDB> modems;
  alertstore::ALRTSERV_MODEM modem{};
  modem.managerGuid = other;
  modem.name.Assign("Rack");
  ASSERT_EQ(modems.DBAlertRecAdd(modem, id), alertstore::kOk);
  Script().ExpectMessage(
      "The modem \"Rack\" is attached to this alert manager. Attach it to another one or delete it first.");
  Give("Remove");
  ASSERT_EQ(modems.DBAlertRecDelete(id), alertstore::kOk);
  Script().ExpectMessage("Remove the alert manager \"OTHER\"?\n\nThis cannot be undone.", Answer::kYes);
  Give("Remove");
  EXPECT_EQ(Window().Site().managers.size(), 1u);
  EXPECT_TRUE(site::ReadBackupManager().IsNull());
}

TEST_F(MainWindowTest, WhatTheManagersDoNotKnowYetIsSaidUntilTheyDo) {
  OpenSetUp();
  Command("Tell the Alert Managers").trigger();
  EXPECT_FALSE(Says("not yet told"));
  const std::string file = Library().Directory() + "/alert-managers.json";
  std::filesystem::remove(file);
  std::filesystem::create_directory(file);
  Choose("Services", "Wave File");
  Give("Switch Off");
  EXPECT_TRUE(Says("not yet told"));
  std::filesystem::remove(file);
  Press("Tell &Them Now");
  EXPECT_FALSE(Says("not yet told"));
  EXPECT_EQ(site::SwitchService(ServiceNamed(Window().Site(), "SNMP Trap")->id, false), alertstore::kOk);
  Window().LookForChanges();
  EXPECT_TRUE(Says("not yet told")) << "another console changed the site and did not tell them";
  Open();
  EXPECT_TRUE(Says("not yet told")) << "a console that starts later finds out";
}

TEST_F(MainWindowTest, RenamingReachesAllThatBearTheName) {
  OpenSetUp();
  const GUID user = test_support::MakeUser("Ann");
  Window().LookForChanges();
  ShowPage("&Users");
  Choose("Users", "Ann");
  Script().ExpectWindow("New Entry", [](Person& p) {
    p.ClickRow("&Services:", 3);
    p.Press("Next >");
    p.Type("Email A&ddress:", "ann@example.org");
    p.Press("Finish");
  });
  Give("New Entry");
  EXPECT_EQ(Cells("Entries of the chosen users", "Internet Mail").mid(1),
            QStringList({"Ann", "Internet Mail", "ann@example.org", "Yes"}));
  ShowPage("&Services");
  Choose("Services", "Internet Mail");
  Script().ExpectWindow("Rename Service", [](Person& p) {
    p.Type("&Name:", "Post");
    p.Press("OK");
  });
  Give("Rename");
  EXPECT_EQ(Cells("Services", "Post").at(4), "1");
  test_support::Opened<alertstore::CAlertUsrInstServDB> links;
  alertstore::ALRTUSRINSTSERV link{};
  ASSERT_EQ(links.DBAlertRecFindFirst(alertstore::kLinkByUser, sizeof user, &user, link), alertstore::kOk);
  EXPECT_EQ(link.serviceName.View(), "Post");
  Script().ExpectMessage("Remove the user \"Ann\" and the entries on services (1)?\n\nThis cannot be undone.",
                         Answer::kYes);
  ShowPage("&Users");
  Give("Remove User");
  EXPECT_TRUE(Window().Site().users.empty());
  EXPECT_TRUE(Window().Site().entries.empty()) << "nobody unseen is alerted";
}

agentui::Report Refused(const std::string& field, const std::string& record = {}) {
  agentui::Report report;
  report.verdict = agentui::Report::Verdict::kRefused;
  report.steps = {{"Connect", "failed", 12, "no", field, record}};
  report.field = field;
  return report;
}

TEST_F(MainWindowTest, AReportLeadsToTheFieldInTheSheetThatIsOpenOrInOneOfItsOwn) {
  OpenSetUp();
  const GUID mail = ServiceNamed(Window().Site(), "Internet Mail")->id;
  Choose("Services", "SNMP Trap");
  Script().ExpectWindow("Test Results", [](Person& p) { p.Press("Co&rrect..."); });
  Script().ExpectWindow("Internet Mail", [&](Person& p) {
    EXPECT_EQ(p.FocusedLabel(), "&SMTP Server:");
    p.TypeHere("mail.example.org");
    p.SelectTab("Default Message");
    Script().ExpectWindow("Test Results", [](Person& results) { results.Press("Co&rrect..."); });
    agentui::ShowTestResults(nullptr, Refused("smtpServer"), {mail, {}});
    EXPECT_EQ(p.FocusedLabel(), "&SMTP Server:") << "no second sheet";
    EXPECT_EQ(p.Text("&SMTP Server:"), "mail.example.org");
    p.Press("OK");
  });
  agentui::ShowTestResults(nullptr, Refused("smtpServer"), {mail, {}});
  EXPECT_THAT(Managers(), HasSubstr("mail.example.org")) << "and the alert managers know";
  EXPECT_EQ(Chosen("Services"), "SNMP Trap") << "the person is back";

  const GUID user = test_support::MakeUser("Ann");
  Script().ExpectWindow("Test Results", [](Person& p) { p.Press("Co&rrect..."); });
  Script().ExpectWindow("Service Properties", [&](Person& p) {
    p.Type("Email A&ddress:", "ann@example.org");
    p.Press("OK");
  });
  agentui::ShowTestResults(nullptr, Refused("address"), {mail, user});
  EXPECT_THAT(Managers(), HasSubstr("ann@example.org"));
  Script().ExpectWindow("Test Results", [](Person& p) {
    EXPECT_FALSE(p.IsEnabled("Co&rrect...")) << "no window has it";
    p.Press("OK");
  });
  agentui::ShowTestResults(nullptr, Refused("password"), {mail, user});
}

TEST_F(MainWindowTest, DialingRulesAreKeptHoweverLong) {
  OpenSetUp();
  const std::string digits(5000, '1');
  for (const std::string& rule : {digits, std::string("9,1")}) {
    Script().ExpectWindow("Dialing Rules", [&](Person& p) {
      p.Paste("&Long distance calls:", rule);
      p.Press("OK");
    });
    Give("Dialing Rules");
    EXPECT_EQ(site::ReadDialingRules().long_distance, rule);
  }
}

TEST_F(MainWindowTest, EverythingCanBeDoneFromTheKeyboard) {
  OpenSetUp();
  Table("Services").setFocus();
  QTest::keyClick(&Table("Services"), Qt::Key_F, Qt::ControlModifier);
  ASSERT_NE(QApplication::focusWidget(), nullptr);
  EXPECT_EQ(QApplication::focusWidget()->accessibleName(), "Filter of the Services");
  QTest::keyClicks(QApplication::focusWidget(), "pager");
  EXPECT_EQ(Table("Services").model()->rowCount(), 2);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  EXPECT_EQ(Chosen("Services"), "Alphanumeric Pager");
  Script().ExpectWindow("Alphanumeric Pager", [](Person& p) { p.Press("Cancel"); });
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  Script().ExpectWindow("Rename Service", [](Person& p) { p.Press("Cancel"); });
  Window().activateWindow();  // as a window manager does
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
  EXPECT_TRUE(Table("Services").hasFocus()) << "the keyboard comes back to where it was";
  QTest::keyClick(&Table("Services"), Qt::Key_F2);
  Window().VisitCommands([](const QString&, QAction& command) {
    EXPECT_EQ(command.text().count('&'), 1) << command.text().toStdString();
  });
}

}  // namespace
}  // namespace alertconsole
