// SPDX-License-Identifier: MIT
#include "desktops/qt/panel_host.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>

#include "alerting/alert_page.h"
#include "alerting/alerting.h"
#include "desktops/qt/qt_test_desktop.h"
#include "platform/base/module.h"
#include "platform/ui/edit.h"
#include "tests/support/service_fixture.h"

namespace desktops::qt {
namespace {

class NumberPanel : public platform::ui::PropertyPage {
 public:
  NumberPanel() : PropertyPage("General") {
    button.SetOnClick([this] { title = platform::Module::Current().Title(); });
  }
  bool OnSetActive() override { return ++activations, PropertyPage::OnSetActive(); }
  void Exchange(platform::ui::DataExchange& x) override { x.Integer(number, value, 1, 9); }

  int activations = 0;
  std::uint32_t value = 5;
  std::string title;
  platform::ui::Edit number{*this, 1, "&Number:"};
  platform::ui::Button button{*this, 2, "&Press"};
};

/// Notes the titles of messages.
class TitleDesktop : public QtTestDesktop {
 public:
  platform::ui::Answer ShowMessage(const platform::ui::Message& message) override {
    title = message.title;
    return platform::ui::Answer::kOk;
  }
  std::string title;
};

class PanelHostTest : public testing::Test {
 protected:
  static void SetUpTestSuite() { QtTestDesktop::EnsureApplication(); }
  PanelHostTest() {
    const platform::ModuleScope scope(library);
    panel = std::make_unique<NumberPanel>();
    host = std::make_unique<PanelHost>(*panel, *place);
    place->show();
  }
  static void Settle() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

  TitleDesktop desktop;
  const platform::Module library{"Library"};
  std::unique_ptr<NumberPanel> panel;
  std::unique_ptr<QWidget> place = std::make_unique<QWidget>();
  std::unique_ptr<PanelHost> host;
};

TEST_F(PanelHostTest, APanelWorksInAWindowThatIsNotOfItsMaking) {
  auto& field = *place->findChild<QLineEdit*>();
  EXPECT_EQ(field.text(), "5");
  QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(&field, "12");
  EXPECT_EQ(panel->number.Text(), "12");
  EXPECT_FALSE(panel->UpdateData(true));
  EXPECT_EQ(desktop.title, "Library") << "messages are the panel's library's, wherever it stands";
  panel->button.OnClick();
  EXPECT_EQ(panel->title, "Library");
  EXPECT_TRUE(host->Activate());
  EXPECT_EQ(panel->activations, 2);
}

TEST_F(PanelHostTest, APageMayGoWhileItsSheetIsOpen) {
  platform::ui::PropertySheet sheet("Sheet", nullptr);
  auto first = std::make_unique<NumberPanel>();
  NumberPanel second;
  sheet.AddPage(*first);
  sheet.AddPage(second);
  desktop.script.ExpectWindow("Sheet", [&](Person& p) {
    first.reset();
    Settle();
    p.Press("Cancel");
  });
  EXPECT_EQ(sheet.RunModal(), platform::ui::kCancel);
  EXPECT_TRUE(desktop.script.Failures().empty());
}

TEST_F(PanelHostTest, TheHostMayGoFirst) {
  host.reset();
  EXPECT_FALSE(panel->Created());
  EXPECT_EQ(place->findChild<QLineEdit*>(), nullptr);
  panel->number.SetText("8");
  EXPECT_EQ(panel->number.Observer(), nullptr);
  const auto another = std::make_unique<QWidget>();
  host = std::make_unique<PanelHost>(*panel, *another);
  EXPECT_TRUE(panel->Created()) << "it can be shown again";
}

/// A panel of the library in a console's window, of which one or the other goes first.
class LibraryPanelTest : public PanelHostTest {
 protected:
  using Update = std::uint32_t (*)(alerting::CAlertPage*);

  void Show(alerting::CAlertPage* made) {
    library_panel.reset(made);
    place = std::make_unique<QWidget>();
    host = std::make_unique<PanelHost>(*made, *place);
    place->show();
  }
  /// Types into the one field that can be written.
  void Enter(const char* text) {
    QLineEdit* field = nullptr;
    for (QLineEdit* each : place->findChildren<QLineEdit*>())
      if (!each->isReadOnly()) field = each;
    ASSERT_NE(field, nullptr);
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, text);
  }
  /// The panel writes what was typed, in a window and once that is gone.
  void WriteAndGo(Update update, bool window_first) {
    Enter("911");
    EXPECT_EQ(update(library_panel.get()), 1U);
    if (window_first) {
      Enter("912");
      place.reset();
      EXPECT_TRUE(host->Activate());
      EXPECT_EQ(update(library_panel.get()), 1U);
    }
    library_panel.reset();
    EXPECT_FALSE(host->Activate());
    Settle();
    EXPECT_TRUE(place == nullptr || place->findChild<QLineEdit*>() == nullptr);
    host.reset();
  }

  test_support::LibraryUnderTest alerting;
  std::unique_ptr<alerting::CAlertPage> library_panel;
};

TEST_F(LibraryPanelTest, ItIsFilledInAndWritesWhicheverGoesFirst) {
  const platform::GUID user = test_support::MakeUser("Ann Operator");
  auto& service = test_support::NewService(alerting::kTypeNumeric);
  for (const bool window_first : {false, true}) {
    const std::string typed = window_first ? "912" : "911";
    Show(UserGetAddServicePanel(0, 0, user, 0, nullptr));
    WriteAndGo(UserUpdatePanelData, window_first);
    alerting::UserEntry entry;
    ASSERT_TRUE(test_support::Users(service).GetUserEntry(user, entry));
    EXPECT_EQ(entry.address, typed);
    alertstore::ALERTRESPREC response{};
    Show(ResponseGetAddServicePanel(0, 0, &response, 0, nullptr));
    WriteAndGo(ResponseUpdatePanelData, window_first);
    EXPECT_EQ(response.message.View(), typed);
  }
}

}  // namespace
}  // namespace desktops::qt
