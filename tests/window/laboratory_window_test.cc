// SPDX-License-Identifier: MIT
#include "console/window/laboratory_window.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <QComboBox>
#include <QTreeWidget>
#include <fstream>

#include "companions/alertstore/stores.h"
#include "console/site/laboratory_file.h"
#include "platform/base/descriptor.h"
#include "tests/window/main_window_test.h"

namespace alertconsole {
namespace {

using platform::ui::Answer;

constexpr int kArrivesWithin = 5000;  // milliseconds

class LaboratoryWindowTest : public MainWindowTest {
 protected:
  void SetUp() override { setenv("ALERTING_LABORATORY", ALERTLAB, 1); }

  void OpenLaboratory() {
    OpenSetUp();
    Give("Laboratory");
  }
  LaboratoryWindow& Shown() { return *Window().findChild<LaboratoryWindow*>(); }
  QTreeWidget& List(const char* name) {
    for (auto* list : Shown().findChildren<QTreeWidget*>())
      if (list->accessibleName() == name) return *list;
    throw std::runtime_error(std::string("no list ") + name);
  }
  std::string PlaceOf(int device) { return List("Devices").topLevelItem(device)->text(1).toStdString(); }
  bool Arrived(const QString& part) {
    return QTest::qWaitFor(
        [&] { return !List("What arrived").findItems(part, Qt::MatchContains, 2).isEmpty(); },
        kArrivesWithin);
  }
  void ChooseFault(int device, const QString& start) {
    List("Devices").setCurrentItem(List("Devices").topLevelItem(device));
    auto* faults = Shown().findChild<QComboBox*>();
    const int fault = faults->findText(start, Qt::MatchStartsWith);
    ASSERT_GE(fault, 0) << start.toStdString();
    faults->setCurrentIndex(fault);
    emit faults->activated(fault);
  }
  std::string MailServer() {
    test_support::Opened<alertstore::CAlertSMTPNtfyServDB> mails;
    return std::string(mails.First().smtpServer.View());
  }
};

/// What a printer gets.
void Print(const std::string& device, const std::string& text) {
  const platform::Descriptor port(open(device.c_str(), O_WRONLY | O_NOCTTY));
  ASSERT_EQ(write(port.Get(), text.data(), text.size()), static_cast<ssize_t>(text.size()));
}

TEST_F(LaboratoryWindowTest, StartsShowsWhatArrivesAndPutsBackWhenTheConsoleIsClosed) {
  OpenLaboratory();
  EXPECT_TRUE(Says("The laboratory does not run."));
  Press("&Start");
  EXPECT_TRUE(Says("the mail server of \"Internet Mail\""));
  EXPECT_TRUE(Says("Tests and alerts that this machine delivers go to the laboratory"));
  EXPECT_FALSE(Says("not yet told"));
  EXPECT_EQ(MailServer(), "127.0.0.1");
  Print(PlaceOf(5), "on paper\n");
  EXPECT_TRUE(Arrived("printed"));
  ChooseFault(0, "busy");
  EXPECT_EQ(List("Devices").topLevelItem(0)->text(2), "busy");
  Shown().close();
  EXPECT_EQ(MailServer(), "127.0.0.1") << "it runs on behind a closed window";
  Window().close();
  EXPECT_EQ(MailServer(), "");
  EXPECT_FALSE(site::LaboratoryIsRemembered());
}

TEST_F(LaboratoryWindowTest, AsksBeforeAServerThatSomebodyEnteredGivesWay) {
  OpenLaboratory();
  test_support::Opened<alertstore::CAlertSMTPNtfyServDB> mails;
  auto mail = mails.First();
  mail.smtpServer.Assign("mail.example.org");
  ASSERT_EQ(mails.DBAlertRecUpdate(mail), alertstore::kOk);
  const std::string question =
      "The laboratory takes the place of the mail server of \"Internet Mail\".\n\nAlerts that are sent "
      "through "
      "these services while it runs reach nobody. What they have now is put back afterwards.\n\nStart it all "
      "the same?";
  Script().ExpectMessage(question, Answer::kNo);
  Press("&Start");
  EXPECT_TRUE(Says("The laboratory does not run."));
  EXPECT_EQ(MailServer(), "mail.example.org");
  Script().ExpectMessage(question, Answer::kYes);
  Press("&Start");
  EXPECT_EQ(MailServer(), "127.0.0.1");
  Press("S&top");
  EXPECT_EQ(MailServer(), "mail.example.org");
  EXPECT_FALSE(Says("go to the laboratory"));
}

TEST_F(LaboratoryWindowTest, OneThatEndsByItselfOrWithItsConsoleIsPutBackAndToldOf) {
  OpenLaboratory();
  Press("&Start");
  pid_t process = 0;
  std::ifstream("/proc/thread-self/children") >> process;
  ASSERT_GT(process, 0);
  kill(process, SIGKILL);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Says("The laboratory has ended by itself"); }, kArrivesWithin));
  EXPECT_EQ(MailServer(), "");
  Press("OK");
  EXPECT_FALSE(Says("The laboratory has ended by itself"));

  {
    site::Laboratory of_another;
    of_another.Start();
    Window().LookForChanges();
    EXPECT_TRUE(Says("This site is pointed at the laboratory of another console."));
    Press("Put &Back");
    EXPECT_TRUE(Says("stop it there first"));
    EXPECT_EQ(MailServer(), "127.0.0.1");
  }
  Open();
  EXPECT_TRUE(
      Says("A console was ended while its laboratory ran. The site's own values have been put back."));
  EXPECT_EQ(MailServer(), "");
}

}  // namespace
}  // namespace alertconsole
