// SPDX-License-Identifier: MIT
#include "console/window/main_window.h"

#include <QCloseEvent>
#include <QLabel>
#include <QScopedValueRollback>
#include <QScreen>
#include <QSettings>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <utility>

#include "companions/ctxhelp/resource_directory.h"
#include "console/hosts/correct_field.h"
#include "console/site/advice.h"
#include "console/site/backup_manager.h"
#include "console/site/data_directory.h"
#include "console/site/failure.h"
#include "console/site/starter.h"
#include "console/window/library.h"
#include "console/window/managers_page.h"
#include "console/window/notices.h"
#include "console/window/responses_page.h"
#include "console/window/services_page.h"
#include "console/window/start_page.h"
#include "console/window/users_page.h"
#include "desktops/qt/icons.h"
#include "desktops/qt/texts.h"
#include "platform/base/paths.h"
#include "platform/ui/image.h"

namespace alertconsole {
namespace {

using desktops::qt::ToQt;

// An image of the strip; the strip's width is not a whole number of images.
constexpr int kIconSize = 18;
// The strip has no transparency; magenta stands for what is not painted.
constexpr QRgb kBackground = qRgb(255, 0, 255);
constexpr int kLookEvery = 1000;  // milliseconds, for what others changed
/// The window's first size in letters of its font.
constexpr int kWidthInLetters = 165, kHeightInLines = 36;

bool MayBeWritten() {
  const std::string database = platform::DataDirectory() + "/alerting.db";
  return access(database.c_str(), F_OK) != 0 || access(database.c_str(), W_OK) == 0;
}

bool HasResources() { return access((ctxhelp::ResourceDirectory() + "/help").c_str(), R_OK) == 0; }

}  // namespace

MainWindow::MainWindow(const site::LibraryCalls& library)
    : library_(library),
      windows_(library),
      front_(new QStackedWidget(this)),
      tabs_(new QTabWidget(front_)),
      start_(new StartPage(front_)),
      notices_(new Notices(this)),
      summary_(new QLabel(this)),
      said_(new QLabel(this)) {
  setWindowTitle(tr("Alerting Console - %1").arg(ToQt(platform::DataDirectory())));
  as_owner_.SetLabel("Alerting Console");
  as_owner_.SetObserver(this);
  agentui::RegisterCorrections(this);
  LoadIcons();
  AddPage(services_ = new ServicesPage(*this, tabs_));
  AddPage(new UsersPage(*this, tabs_));
  AddPage(new ResponsesPage(*this, tabs_));
  AddPage(new ManagersPage(*this, tabs_));
  front_->addWidget(tabs_);
  front_->addWidget(start_);
  front_->setCurrentWidget(start_);  // until the site was read
  auto* middle = new QWidget(this);
  auto* column = new QVBoxLayout(middle);
  column->addWidget(notices_);
  column->addWidget(front_, 1);
  setCentralWidget(middle);
  statusBar()->addWidget(summary_);
  statusBar()->addWidget(said_, 1);
  said_->setSizePolicy(QSizePolicy::Ignored,
                       QSizePolicy::Preferred);  // a long text must not widen the window
  MakeMenus();
  connect(tabs_, &QTabWidget::currentChanged, this, [this] { ShowPageCommands(); });
  const QSize wanted(fontMetrics().averageCharWidth() * kWidthInLetters,
                     fontMetrics().lineSpacing() * kHeightInLines);
  resize(wanted.boundedTo(screen()->availableSize()));
  QSettings settings;
  restoreGeometry(settings.value("window").toByteArray());
  for (int i = 0; i < tabs_->count(); ++i) static_cast<Page*>(tabs_->widget(i))->Recall(settings);
  auto* look = new QTimer(this);
  connect(look, &QTimer::timeout, this, [this] {
    LookForChanges();
    LookAfterLaboratory();
  });
  look->start(kLookEvery);
  ShowPageCommands();
}

MainWindow::~MainWindow() {
  if (agentui::RegisteredCorrections() == this) agentui::RegisterCorrections(nullptr);
  as_owner_.SetObserver(nullptr);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  EndLaboratory();
  QSettings settings;
  settings.setValue("window", saveGeometry());
  for (int i = 0; i < tabs_->count(); ++i) static_cast<Page*>(tabs_->widget(i))->Remember(settings);
  QMainWindow::closeEvent(event);
}

void MainWindow::AddPage(Page* page) { tabs_->addTab(page, page->Title()); }

Page* MainWindow::FrontPage() const {
  return front_->currentWidget() == tabs_ ? static_cast<Page*>(tabs_->currentWidget()) : nullptr;
}

void MainWindow::LoadIcons() {
  platform::ui::Bitmap* strip = library_.GetIconBitmapObject();
  if (strip == nullptr) return;  // a table without pictures is still a table
  QImage image = desktops::qt::ToImage(*strip);
  image.setAlphaChannel(image.createMaskFromColor(kBackground, Qt::MaskOutColor));
  icon_strip_ = QPixmap::fromImage(image);
  library_.DeleteIconBitmapObject(strip);
}

// The place in the strip is known by service alone; it is the same for all of a type. The library warns of a store without
// services, so it is not asked about one.
void MainWindow::LearnIcons() {
  if (site_.services.empty()) return;
  const int count = library_.DomainServiceGetCount();
  for (int index = 0; index < count; ++index) {
    QIcon& icon = icons_[library_.DomainServiceGetInfo(index)->recordType];
    if (icon.isNull())
      icon =
          icon_strip_.copy(library_.DomainServiceGetIconOffset(index) * kIconSize, 0, kIconSize, kIconSize);
  }
}

QIcon MainWindow::IconOf(std::uint32_t record_type) const {
  const auto icon = icons_.find(record_type);
  return icon == icons_.end() ? QIcon() : icon->second;
}

void MainWindow::ReadSite() {
  if (!std::exchange(looked_for_laboratory_, true) && site::LaboratoryIsRemembered()) PutLaboratoryBack();
  if (!library_.Reopen()) return ShowProblem(StoresCannotBeOpened());
  if (const alertstore::Status status = site::ReadOverview(site_); status != alertstore::kOk)
    return ShowProblem("The site cannot be read: " + site::FailureText("read the records", status) + ".");
  library_.DomainServiceSetBackupServer(site::ReadBackupManager());
  if (site_.services.empty() && site_.users.empty()) return ShowNothingYet();
  LoadServices();
  ShowSite();
}

// The library adds backup records to services of the dial-out types that have none yet. Nobody has to be asked whether the
// alert managers are to be told of that, where they were up to date before.
void MainWindow::LoadServices() {
  if (!std::exchange(loaded_, true)) managers_file_.Look();
  const bool told = managers_file_.Told();
  LearnIcons();
  if (!told || !changes_.Changed()) return;
  managers_file_.Look();
  if (!managers_file_.Told()) managers_file_.Write();
}

void MainWindow::ShowSite() {
  for (int i = 0; i < tabs_->count(); ++i) static_cast<Page*>(tabs_->widget(i))->ShowSite();
  if (front_->currentWidget() != tabs_) {
    front_->setCurrentWidget(tabs_);
    FrontPage()->MainView().Table().setFocus();
  }
  ShowNotices();
  ShowPageCommands();
}

void MainWindow::ShowNothingYet() {
  const bool damaged = !LeftOutNote().empty();
  ShowNotices();
  front_->setCurrentWidget(start_);
  if (damaged)
    start_->Say(tr("The records cannot be read"), ToQt(LeftOutNote()), tr("&Try Again"),
                [this] { ReadSite(); });
  else
    start_->Say(tr("This site is not set up yet"),
                tr("There are no records in %1.\n\nSetting the site up makes this machine its alert manager "
                   "and adds one "
                   "service of each type with a default message, modem types, examples of paging "
                   "providers and a dialing "
                   "location. You then fill in what your services need.")
                    .arg(ToQt(platform::DataDirectory())),
                tr("&Set Up This Site"), [this] { SetUp(); });
  ShowPageCommands();
}

// What was shown before is not what is there now, and must not pass for it.
void MainWindow::ShowProblem(const std::string& problem) {
  site_ = {};
  front_->setCurrentWidget(start_);
  start_->Say(tr("The records cannot be read"), ToQt(problem), tr("&Try Again"), [this] { ReadSite(); });
  ShowPageCommands();
}

void MainWindow::SetUp() {
  try {
    site::MakeDataDirectory();
    const site::DirectoryTurn turn;
    site::AddStarterData();
  } catch (const site::Failure& failure) {
    hosts::Tell(failure.what());
  }
  managers_file_.Write();
  loaded_ = true;
  ReadSite();
}

void MainWindow::ShowNotices() {
  const QString why =
      managers_file_.Problem().empty() ? QString() : " (" + ToQt(managers_file_.Problem()) + ")";
  notices_->Set(Notices::kNotTold,
                managers_file_.Told()
                    ? QString()
                    : tr("What you see is not yet told to the alert managers: they work by the file "
                         "as it was before%1.")
                          .arg(why),
                tr("Tell &Them Now"), [this] { TellManagers(); });
  ShowLaboratoryNotice();
  const std::string left_out = LeftOutNote();
  notices_->Set(Notices::kLeftOut,
                left_out.empty() ? QString() : tr("The data are damaged: %1.").arg(ToQt(left_out)));
  notices_->Set(Notices::kReadOnly,
                MayBeWritten() ? QString()
                               : tr("The data can be read but not changed: this account may not write to %1.")
                                     .arg(ToQt(platform::DataDirectory())));
  notices_->Set(
      Notices::kNoResources,
      HasResources()
          ? QString()
          : tr("The console's help texts and starter data are not in %1. Install the resource files, "
               "or name their directory in ALERTING_RESOURCES.")
                .arg(ToQt(ctxhelp::ResourceDirectory())));
}

void MainWindow::TellManagers() {
  managers_file_.Write();
  said_->setText(managers_file_.Told() ? tr("The alert managers have been told.")
                                       : tr("The alert managers could not be told."));
  ShowNotices();
}

void MainWindow::LookForChanges() {
  if (busy_) return;
  const bool was_pointed = std::exchange(pointed_, site::LaboratoryIsRemembered());
  if (changes_.Changed() || pointed_ != was_pointed) Refresh();
}

void MainWindow::Refresh() {
  if (busy_) return;
  const QScopedValueRollback<bool> reading(busy_, true);
  changes_.Changed();  // what is read now
  ReadSite();
  if (FrontPage() == nullptr) return;
  managers_file_.Look();
  ShowNotices();
}

void MainWindow::Do(const std::function<Outcome()>& work, const QString& done) {
  if (busy_) return;
  LookForChanges();
  const QScopedValueRollback<bool> working(busy_, true);
  const Outcome outcome = work();
  if (outcome == Outcome::kStored) managers_file_.Write();
  if (outcome == Outcome::kMayHaveStored) managers_file_.Look();
  changes_.Changed();  // this console's own
  ReadSite();
  if (outcome == Outcome::kStored && !done.isEmpty()) said_->setText(done);
}

// What opened the window beneath reads the site again when that closes.
void MainWindow::DoOver(const std::function<Outcome()>& work) {
  if (!busy_) return Do(work, {});
  if (work() == Outcome::kStored) managers_file_.Write();
}

bool MainWindow::CanOpen(const agentui::Correction& correction) const { return hosts::HasWindow(correction); }

// The window of a user's entry leaves it to its host to tell the alert managers.
bool MainWindow::Open(const agentui::Correction& correction) {
  hosts::Corrected corrected = hosts::Corrected::kNotOpened;
  DoOver([&] {
    corrected = hosts::CorrectField(windows_, site_, correction, &as_owner_);
    return corrected == hosts::Corrected::kOpened ? Outcome::kStored : Outcome::kNothing;
  });
  return corrected != hosts::Corrected::kNotOpened;
}

void MainWindow::OpenSheet(const platform::GUID& service) { services_->OpenSheet(service); }

void MainWindow::SelectionChanged() {
  if (Page* page = FrontPage()) page->EnableCommands();
  ShowStatus();
}

void MainWindow::ShowStatus() {
  const Page* page = FrontPage();
  summary_->setText(page != nullptr ? page->Summary() : QString());
}

}  // namespace alertconsole
