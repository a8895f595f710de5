// SPDX-License-Identifier: MIT
// Goes through all windows of the library on the Qt desktop, on a site with examples, as a person would who presses every
// button, and holds each to what every window owes to those who use it. The list of all windows is the one of the help
// pages, so a window that nobody reaches is missed here.
#include <gmock/gmock.h>
#include <stdlib.h>

#include <QApplication>
#include <QFileDialog>
#include <map>
#include <set>

#include "alerting/alert_page.h"
#include "alerting/alerting.h"
#include "alerting/api/load.h"
#include "alerting/frame/app.h"
#include "alerting/services/service_list.h"
#include "companions/agentui/results_dialog.h"
#include "companions/ctxhelp/help_pages.h"
#include "companions/ctxhelp/help_texts.h"
#include "console/window/laboratory_window.h"
#include "console/window/main_window.h"
#include "console/window/samples.h"
#include "console/window/tour.h"
#include "desktops/qt/cut_controls.h"
#include "desktops/qt/form_view.h"
#include "desktops/qt/qt_desktop.h"
#include "desktops/qt/qt_test_desktop.h"
#include "desktops/qt/window_faults.h"
#include "tests/support/static_calls.h"
#include "tests/support/temporary.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Faults = std::vector<std::string>;

/// Tells what help was asked for instead of showing it.
class HelpDesktop : public desktops::QtDesktop {
 public:
  void ShowHelpText(platform::ui::Window*, const std::string& text) override { shown = text; }

  std::string HelpOn(platform::ui::Form& form, platform::ui::Control* control) {
    shown.clear();
    form.OnHelp({platform::ui::HelpEvent::Kind::kHelpKey, control});
    return shown;
  }

  std::string shown;
};

/// A site as a first start leaves it, which the console's examples are copied from.
class Site {
 public:
  Site() {
    setenv("ALERTING_DATA", directory_.Path().c_str(), 1);
    EXPECT_EQ(std::system(ALERTCTL " init >/dev/null"), 0);
    samples_.emplace();
    EXPECT_TRUE(alerting::Load());
    alerting::TheApp().EnsureStoresOpen();
    EXPECT_TRUE(alerting::TheServices().Read());
  }
  ~Site() {
    alerting::TheApp().CloseStores();
    alerting::Unload();
  }

 private:
  const test_support::TemporaryDirectory directory_;
  std::optional<alertconsole::SampleSite> samples_;
};

class Inspector {
 public:
  explicit Inspector(HelpDesktop& desktop) : desktop_(desktop) {}

  void Look(QWidget& window, const std::string& name) {
    const bool is_ours = qobject_cast<QFileDialog*>(&window) == nullptr;
    Note(name, desktops::qt::NameFaults(window));
    if (is_ours) {
      Note(name, desktops::qt::CutControls(window));
      Note(name, desktops::qt::AccessKeyFaults(window));
      Note(name, desktops::qt::TabOrderFaults(window));
      NoteDefault(window, name);
    }
    for (QWidget* widget : window.findChildren<QWidget*>()) {
      const auto* view = dynamic_cast<desktops::qt::FormView*>(widget);
      if (view != nullptr && view->isVisible() && !view->ShownForm().Controls().empty())
        LookForHelp(view->ShownForm(), name);
    }
  }

  Faults faults;
  std::set<std::string> pages;  ///< the help texts of the windows seen

 private:
  void Note(const std::string& name, const Faults& found) {
    for (const std::string& fault : found) faults.push_back(name + ": " + fault);
  }

  // Enter must do what the window is for, once that can be done.
  void NoteDefault(QWidget& window, const std::string& name) {
    if (qobject_cast<QDialog*>(&window) == nullptr) return;
    for (const auto* button : window.findChildren<QPushButton*>()) {
      const bool waits = button->text() == "Finish" && !button->isEnabled();
      if (button->isVisible() && (button->isDefault() || waits)) return;
    }
    faults.push_back(name + ": Enter presses nothing");
  }

  void LookForHelp(platform::ui::Form& form, const std::string& name) {
    const std::string page = desktop_.HelpOn(form, nullptr);
    pages.insert(page);
    std::map<std::string, std::string> texts = {{"", "nothing"},
                                                {"There is no help on this item.", "nothing"}};
    texts.emplace(page, "the whole window");
    for (platform::ui::Control* control : form.Controls()) {
      if (!control->Visible() || !control->TakesFocus()) continue;
      const auto [owner, is_new] = texts.emplace(desktop_.HelpOn(form, control), control->Label());
      if (!is_new)
        faults.push_back(name + ": the help on \"" + control->Label() + "\" is that on " + owner->second);
    }
  }

  HelpDesktop& desktop_;
};

/// Has the results of a test show all their buttons.
struct Host : agentui::Corrections {
  Host() { agentui::RegisterCorrections(this); }
  ~Host() override { agentui::RegisterCorrections(nullptr); }
  bool CanOpen(const agentui::Correction&) const override { return true; }
  bool Open(const agentui::Correction&) override { return true; }
};

/// A console's wizard around a panel for a new response.
void ShowResponsePanel(int index) {
  alertstore::ALERTRESPREC response{};
  platform::ui::PropertySheet wizard("New Response", nullptr);
  wizard.SetWizardMode();
  const std::unique_ptr<alerting::CAlertPage> panel(
      ResponseGetAddServicePanel(index, 0, &response, platform::ui::kWizardFinish, &wizard));
  wizard.AddPage(*panel);
  wizard.RunModal();
}

/// The console's window, each of its views, and what their commands open.
void VisitConsole(alertconsole::Tour& tour) {
  const site::LibraryCalls calls = test_support::StaticCalls();
  alertconsole::MainWindow window(calls);
  window.show();
  window.ReadSite();
  QString last;
  window.VisitCommands([&](const QString& page, QAction& command) {
    if (page != std::exchange(last, page)) tour.Look(window, page);
    if (command.text().endsWith("...")) tour.Visit(page + " " + command.text(), [&] { command.trigger(); });
  });
  tour.Look(window.ShowLaboratory(), "Laboratory");
  EXPECT_EQ(last, "Tools") << "not all views were come by";
}

std::vector<std::string> HelpFilesNotSeen(const std::set<std::string>& pages) {
  std::vector<std::string> missed;
#define HELP_PAGE(name, number, file) \
  if (pages.count(ctxhelp::HelpText(number)) == 0) missed.push_back(file);
#include "companions/ctxhelp/help_pages.def"
#undef HELP_PAGE
  return missed;
}

TEST(AllWindows, AreWholeAndWorkWithoutAMouseOrASight) {
  desktops::QtTestDesktop::EnsureApplication();
  Site site;
  HelpDesktop desktop;
  Inspector inspector(desktop);
  alertconsole::Tour tour(
      [&](QWidget& window, const QString& name) { inspector.Look(window, name.toStdString()); });
  alerting::CNtfyServiceList& services = alerting::TheServices();
  for (int i = 0; i < services.GetCount(); ++i) {
    alerting::CNtfyService& service = *services.GetAt(i);
    const auto name = QString::fromStdString(service.Name());
    tour.Visit(name, [&] { DomainServicePropertySheet(nullptr, i); });
    if (service.HasBackupModem())
      tour.Visit(name + " with another modem", [&] { DomainServiceBackupPropertySheet(nullptr, i); });
    tour.Visit(name + " response", [&] { ShowResponsePanel(i); });
    if (service.GetAddUserPanelCount() > 0)
      tour.Visit(name + " user", [&] { UserServicePropertySheet(nullptr, i, platform::GUID::Generate()); });
  }
  char same_area[16] = {}, long_distance[16] = {}, international[16] = {};
  tour.Visit("rules", [&] { RulesDialog(nullptr, same_area, long_distance, international); });
  char path[4096] = {};
  std::uint32_t icon = 0;
  tour.Visit("sound", [&] { SelectWAVFileDialog(nullptr, path); });
  tour.Visit("icon", [&] { SelectIconFileDialog(nullptr, path, &icon); });
  const agentui::Report report{agentui::Report::Verdict::kFailed,
                               "The mail server refused the login.",
                               "CONSOLE",
                               "2026-03-01T08:30:05Z",
                               "2026-03-01T08:30:07Z",
                               {{"Log in", "failed", 40, "535 authentication failed", "password"}},
                               "EHLO console\n535 authentication failed",
                               "password"};
  {
    const Host host;
    tour.Visit("results", [&] {
      agentui::ShowTestResults(nullptr, report, {platform::GUID::Generate(), {}});
    });
  }
  VisitConsole(tour);
  EXPECT_THAT(inspector.faults, ElementsAre());
  EXPECT_THAT(HelpFilesNotSeen(inspector.pages), IsEmpty());
  EXPECT_THAT(tour.DeafToEscape(), IsEmpty());
}

}  // namespace
