// SPDX-License-Identifier: MIT
// The menus of the console's window and what their commands do beside the views.
#include <QMenuBar>
#include <QMessageBox>
#include <QToolBar>
#include <utility>

#include "console/hosts/computers_dialog.h"
#include "console/hosts/host_dialog.h"
#include "console/hosts/providers_dialog.h"
#include "console/site/dialing_rules.h"
#include "console/window/guide_window.h"
#include "console/window/main_window.h"
#include "desktops/qt/texts.h"
#include "platform/base/paths.h"
#include "platform/ui/modal.h"

namespace alertconsole {
namespace {

using desktops::qt::ToQt;

/// Room for what a person may enter as a rule: the fields have no limit of their own, so it is more than anybody pastes.
constexpr std::size_t kRuleBuffer = 1 << 20;
constexpr int kCommandsInBar = 6;

std::string BufferOf(std::string text) {
  text.resize(kRuleBuffer);
  return text;
}

QString KeyTable(const std::vector<QAction*>& commands) {
  QString rows;
  for (const QAction* command : commands) {
    if (command == nullptr || command->shortcut().isEmpty()) continue;
    const QString text = QString(command->text()).remove('&').remove("...");
    rows += "<tr><td>" + text.toHtmlEscaped() + "&nbsp;&nbsp;</td><td>" +
            command->shortcut().toString(QKeySequence::NativeText).toHtmlEscaped() + "</td></tr>";
  }
  return rows;
}

}  // namespace

void MainWindow::MakeMenus() {
  QMenu* console = menuBar()->addMenu(tr("&Console"));
  page_menu_ = menuBar()->addMenu(tr("&Actions"));
  MakeTools(*menuBar()->addMenu(tr("&Tools")));
  MakeHelp(*menuBar()->addMenu(tr("&Help")));
  console->addAction(tr("&Find"), QKeySequence::Find, this, [this] {
    if (Page* page = FrontPage()) page->MainView().FocusFilter();
  });
  console->addAction(tr("&Refresh"), QKeySequence::Refresh, this, [this] { Refresh(); });
  console->addAction(tr("&Tell the Alert Managers"), this, [this] { TellManagers(); });
  console->addSeparator();
  console->addAction(tr("E&xit"), QKeySequence::Quit, this, &QWidget::close);
  bar_ = addToolBar(tr("Commands"));
  bar_->setMovable(false);
  page_menu_->setEnabled(false);  // until there is a page
  bar_->setVisible(false);
}

// A page's commands take the place of those of the page before. They stay where they are while the page does: a menu may be
// open.
void MainWindow::ShowPageCommands() {
  Page* page = FrontPage();
  if (page != std::exchange(page_with_commands_, page)) FillPageCommands();
  SelectionChanged();
}

void MainWindow::FillPageCommands() {
  page_menu_->clear();
  bar_->clear();
  Page* page = FrontPage();
  page_menu_->setEnabled(page != nullptr);
  bar_->setVisible(page != nullptr);
  if (page == nullptr) return;
  for (QAction* command : page->Commands()) {
    if (command == nullptr) {
      page_menu_->addSeparator();
      continue;
    }
    page_menu_->addAction(command);
    if (bar_->actions().size() < kCommandsInBar) bar_->addAction(command);
  }
}

void MainWindow::VisitCommands(const std::function<void(const QString& page, QAction& command)>& visit) {
  for (int i = 0; i < tabs_->count(); ++i) {
    tabs_->setCurrentIndex(i);
    auto* page = static_cast<Page*>(tabs_->widget(i));
    for (std::size_t at = 0; at < page->Commands().size(); ++at) {
      page->ChooseFirst();
      if (QAction* command = page->Commands()[at]; command != nullptr && command->isEnabled())
        visit(QString(page->Title()).remove('&'), *command);
    }
  }
  for (QAction* command : tools_menu_->actions()) visit("Tools", *command);
}

void MainWindow::MakeTools(QMenu& menu) {
  tools_menu_ = &menu;
  menu.addAction(tr("&Dialing Properties..."), this, [this] {
    Do(
        [this] {
          library_.DialingPropertiesDialog(&as_owner_, "");
          return Outcome::kStored;
        },
        {});
  });
  menu.addAction(tr("Dialing &Rules..."), this, [this] { EditRules(); });
  menu.addAction(tr("&Paging Providers..."), this, [this] {
    Do([this] { return hosts::EditProviders(&as_owner_) ? Outcome::kStored : Outcome::kNothing; }, {});
  });
  menu.addAction(tr("&Computers..."), this, [this] {
    Do([this] { return hosts::EditComputers(&as_owner_) ? Outcome::kStored : Outcome::kNothing; }, {});
  });
  menu.addAction(tr("&Laboratory"), this, [this] { ShowLaboratory(); });
}

void MainWindow::EditRules() {
  const site::DialingRules rules = site::ReadDialingRules();
  std::string same_area = BufferOf(rules.same_area), long_distance = BufferOf(rules.long_distance),
              international = BufferOf(rules.international);
  Do(
      [&] {
        if (library_.RulesDialog(&as_owner_, same_area.data(), long_distance.data(), international.data()) !=
            platform::ui::kOk)
          return Outcome::kNothing;
        const std::string problem =
            site::WriteDialingRules({same_area.c_str(), long_distance.c_str(), international.c_str()});
        if (!problem.empty()) hosts::Tell("cannot keep the dialing rules: " + problem);
        return Outcome::kNothing;
      },
      {});
}

void MainWindow::MakeHelp(QMenu& menu) {
  menu.addAction(tr("&Contents"), QKeySequence::HelpContents, this, [this] { ShowGuide(); });
  menu.addAction(tr("&Keyboard Shortcuts"), this, [this] {
    std::vector<QAction*> commands;
    for (QMenu* shown : menuBar()->findChildren<QMenu*>())
      for (QAction* command : shown->actions()) commands.push_back(command);
    QMessageBox::information(this, tr("Keyboard Shortcuts"), "<table>" + KeyTable(commands) + "</table>");
  });
  menu.addAction(tr("&About"), this, [this] {
    QMessageBox::about(
        this, tr("About"),
        tr("Alerting Console %1\n\nShows and edits what decides how alerts reach people.\n\nData: %2")
            .arg(ALERTING_VERSION, ToQt(platform::DataDirectory())));
  });
}

void MainWindow::ShowGuide() {
  if (guide_ == nullptr) guide_ = new GuideWindow(this);
  guide_->ShowContents();
}

}  // namespace alertconsole
