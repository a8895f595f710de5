// SPDX-License-Identifier: MIT
// Two consoles and a command line on one site, each a process of its own.
#include <QElapsedTimer>
#include <QProcess>

#include "companions/alertstore/console_users.h"
#include "tests/window/main_window_test.h"

namespace alertconsole {
namespace {

constexpr int kSeenWithin = 2000;  // milliseconds, as promised
constexpr int kStartWithin = 30'000;

class TwoConsolesTest : public MainWindowTest {
 protected:
  bool Sees(const char* user, int milliseconds) {
    return QTest::qWaitFor([&] { return RowOf("Users", user).isValid(); }, milliseconds);
  }
};

/// The other console: run by the test below on its site.
TEST(SecondConsole, DISABLED_AnswersAUserByAnother) {
  desktops::QtTestDesktop::EnsureApplication();
  const desktops::QtTestDesktop desktop;
  alerting::Load();
  {
    const site::LibraryCalls calls = test_support::StaticCalls();
    MainWindow window(calls);
    window.ReadSite();
    const auto has = [&](const std::string& name) {
      for (const site::User& user : window.Site().users)
        if (user.name == name) return true;
      return false;
    };
    std::puts("ready");
    std::fflush(stdout);
    ASSERT_TRUE(QTest::qWaitFor([&] { return has("First"); }, kStartWithin));
    test_support::MakeUser("Second");
    EXPECT_TRUE(QTest::qWaitFor([&] { return has("Third"); }, kStartWithin));
  }
  alerting::TheApp().CloseStores();
  alerting::Unload();
}

TEST_F(TwoConsolesTest, EachSeesWhatTheOthersChangeAndStaysWhereItIs) {
  for (int i = 0; i < 60; ++i) test_support::MakeUser("User " + std::to_string(100 + i));
  OpenSetUp();
  ShowPage("&Users");
  Choose("Users", "User 140");
  const QString top = Table("Users").indexAt(QPoint(1, 1)).data().toString();
  QProcess second;
  second.setProcessChannelMode(QProcess::MergedChannels);
  second.start(QCoreApplication::applicationFilePath(),
               {"--gtest_also_run_disabled_tests", "--gtest_filter=SecondConsole.*"});
  ASSERT_TRUE(QTest::qWaitFor([&] { return second.readAll().contains("ready"); }, kStartWithin));
  test_support::MakeUser("First");
  EXPECT_TRUE(Sees("Second", 2 * kSeenWithin)) << "the other one had to see the first before";
  EXPECT_EQ(std::system(ALERTCTL " user add Third >/dev/null"), 0);
  EXPECT_TRUE(Sees("Third", kSeenWithin));
  EXPECT_EQ(Chosen("Users"), "User 140");
  EXPECT_EQ(Table("Users").indexAt(QPoint(1, 1)).data().toString(), top);
  EXPECT_TRUE(QTest::qWaitFor([&] { return second.state() == QProcess::NotRunning; }, kStartWithin));
  EXPECT_EQ(second.exitCode(), 0) << second.readAll().toStdString();
}

}  // namespace
}  // namespace alertconsole
