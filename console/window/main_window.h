// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>
#include <QPixmap>
#include <map>

#include "companions/agentui/corrections.h"
#include "companions/alertstore/change_watch.h"
#include "console/site/laboratory.h"
#include "console/site/managers_file.h"
#include "console/window/page.h"
#include "desktops/qt/control_adapter.h"

class QLabel;
class QMenu;
class QStackedWidget;
class QTabWidget;
class QToolBar;

namespace alertconsole {

class GuideWindow;
class LaboratoryWindow;
class Notices;
class ServicesPage;
class StartPage;

/// The console's window: the views of the site, what can be done in them, and what a person has to know. To the library it
/// is the owner of the windows that it opens.
class MainWindow : public QMainWindow,
                   public Console,
                   public agentui::Corrections,
                   public platform::ui::WindowObserver,
                   public desktops::qt::WidgetOwner {
 public:
  explicit MainWindow(const site::LibraryCalls& library);
  ~MainWindow() override;

  /// Reads the site and shows it. What cannot be read is told in place of the views.
  void ReadSite();
  /// Reads the site again where somebody changed it since the last time.
  void LookForChanges();
  /// Opens the properties of a service, as its row does.
  void OpenSheet(const platform::GUID& service);
  LaboratoryWindow& ShowLaboratory();

  /// Brings each view to the front with its first row chosen and shows `visit` each command that can then be given, and
  /// those of the Tools menu.
  void VisitCommands(const std::function<void(const QString& page, QAction& command)>& visit);

  const site::LibraryCalls& Calls() const override { return library_; }
  platform::ui::Window* Owner() override { return &as_owner_; }
  const site::Overview& Site() const override { return site_; }
  QIcon IconOf(std::uint32_t record_type) const override;
  void Do(const std::function<Outcome()>& work, const QString& done) override;
  void SelectionChanged() override;
  hosts::RecordWindows& Windows() override { return windows_; }
  bool CanOpen(const agentui::Correction& correction) const override;
  bool Open(const agentui::Correction& correction) override;

  QWidget* OwnedWidget() const override { return const_cast<MainWindow*>(this); }
  platform::ui::Window& ShownWindow() const override { return const_cast<platform::ui::Window&>(as_owner_); }
  void OnWindowChanged(platform::ui::Window&, platform::ui::Change) override {}

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void AddPage(Page* page);
  void MakeMenus();
  void MakeTools(QMenu& menu);
  void MakeHelp(QMenu& menu);
  void LoadIcons();
  void LearnIcons();
  Page* FrontPage() const;
  void ShowPageCommands();
  void FillPageCommands();
  void LoadServices();
  void ShowSite();
  void ShowNothingYet();
  void ShowProblem(const std::string& problem);
  void ShowNotices();
  void ShowStatus();
  void SetUp();
  void TellManagers();
  void DoOver(const std::function<Outcome()>& work);
  void Refresh();
  void EditRules();
  void ShowGuide();
  void StartLaboratory();
  void StopLaboratory();
  void PutLaboratoryBack();
  void LookAfterLaboratory();
  void EndLaboratory();
  void ShowLaboratoryNotice();

  const site::LibraryCalls& library_;
  hosts::RecordWindows windows_;
  platform::ui::Window as_owner_;
  site::Overview site_;
  site::ManagersFile managers_file_;
  alertstore::ChangeWatch changes_;
  site::Laboratory laboratory_;
  std::string laboratory_note_;         ///< what a person has to know of an earlier one
  bool looked_for_laboratory_ = false;  ///< that a console left which was ended early
  bool pointed_ = false;                ///< at a laboratory, when that was last looked at
  bool laboratory_ended_ = false;       ///< by itself, which was seen
  QPixmap icon_strip_;
  std::map<std::uint32_t, QIcon> icons_;  ///< by record type
  QStackedWidget* front_;                 ///< the views, or what stands in their place
  QTabWidget* tabs_;
  StartPage* start_;
  Notices* notices_;
  ServicesPage* services_ = nullptr;
  Page* page_with_commands_ = nullptr;  ///< whose commands are in menu and bar
  QMenu *page_menu_ = nullptr, *tools_menu_ = nullptr;
  QToolBar* bar_ = nullptr;
  QLabel *summary_, *said_;
  GuideWindow* guide_ = nullptr;
  LaboratoryWindow* laboratory_window_ = nullptr;
  bool loaded_ = false;  ///< the services, once
  bool busy_ = false;    ///< while a person works in a window that is modal to this one
};

}  // namespace alertconsole
