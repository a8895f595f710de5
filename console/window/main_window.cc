// SPDX-License-Identifier: MIT
#include "console/window/main_window.h"

#include <QAction>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QStackedWidget>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QTreeWidget>

#include "companions/dbconfig/strings.h"
#include "desktops/qt/icons.h"
#include "desktops/qt/texts.h"
#include "platform/ui/image.h"

namespace alertconsole {
namespace {

using desktops::qt::ToQt;

enum TableColumn { kName, kType, kEnabled, kColumns };

// An image of the strip; the strip's width is not a whole number of images.
constexpr int kIconSize = 18;
// The strip has no transparency; magenta stands for what is not painted.
constexpr QRgb kBackground = qRgb(255, 0, 255);
constexpr int kLongestName = 32;
constexpr char kNoServices[] =
    "There are no notification services here yet.\n\n"
    "Run \"alertctl init\" to set up one service of each type, then choose Refresh (F5).";

}  // namespace

MainWindow::MainWindow(AlertingLibrary& library)
    : library_(library), pages_(new QStackedWidget(this)), table_(new QTreeWidget(pages_)) {
  setWindowTitle(tr("Alerting Console"));
  as_owner_.SetLabel(desktops::qt::FromQt(windowTitle()));
  as_owner_.SetObserver(this);
  LoadIcons();
  MakeTable();
  pages_->addWidget(table_);
  pages_->addWidget(MakeEmptyNote());
  setCentralWidget(pages_);
  MakeActions();
  statusBar();
  resize(760, 480);
  EnableActions();
}

MainWindow::~MainWindow() { as_owner_.SetObserver(nullptr); }

void MainWindow::LoadIcons() {
  platform::ui::Bitmap* strip = library_.GetIconBitmapObject();
  if (strip == nullptr) return;  // a table without pictures is still a table
  QImage image = desktops::qt::ToImage(*strip);
  image.setAlphaChannel(image.createMaskFromColor(kBackground, Qt::MaskOutColor));
  icons_ = QPixmap::fromImage(image);
  library_.DeleteIconBitmapObject(strip);
}

void MainWindow::MakeTable() {
  table_->setColumnCount(kColumns);
  table_->setHeaderLabels({tr("Service"), tr("Type"), tr("Enabled")});
  table_->setRootIsDecorated(false);
  table_->setUniformRowHeights(true);
  table_->setAllColumnsShowFocus(true);
  table_->setAlternatingRowColors(true);
  table_->setIconSize(QSize(kIconSize, kIconSize));
  table_->header()->resizeSection(kName, 300);
  table_->header()->resizeSection(kType, 240);
  connect(table_, &QTreeWidget::itemActivated, this, [this] { OpenSheet(Chosen()); });
  connect(table_, &QTreeWidget::itemSelectionChanged, this, [this] { EnableActions(); });
}

QWidget* MainWindow::MakeEmptyNote() {
  note_ = new QLabel(tr(kNoServices), pages_);
  note_->setAlignment(Qt::AlignCenter);
  note_->setWordWrap(true);
  note_->setMargin(40);
  return note_;
}

void MainWindow::MakeActions() {
  QMenu* service = menuBar()->addMenu(tr("&Service"));
  QToolBar* bar = addToolBar(tr("Services"));
  bar->setMovable(false);
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  const auto add = [&](const QString& text, QStyle::StandardPixmap icon, const QKeySequence& key, auto act) {
    QAction* action = service->addAction(style()->standardIcon(icon), text, this, act);
    action->setShortcut(key);
    bar->addAction(action);
    return action;
  };
  // Enter in the table opens the sheet already; a shortcut would take it away from the table.
  properties_ =
      add(tr("&Properties..."), QStyle::SP_FileDialogDetailedView, {}, [this] { OpenSheet(Chosen()); });
  copy_ = add(tr("&Copy..."), QStyle::SP_FileIcon, {}, [this] { Copy(); });
  delete_ = add(tr("&Delete"), QStyle::SP_TrashIcon, QKeySequence::Delete, [this] { Delete(); });
  add(tr("&Refresh"), QStyle::SP_BrowserReload, QKeySequence::Refresh, [this] { Refresh(); });
  service->addSeparator();
  service->addAction(tr("E&xit"), QKeySequence::Quit, this, &QWidget::close);
}

void MainWindow::ShowServices() {
  const int chosen = Chosen(), count = library_.DomainServiceGetCount();
  {
    const QSignalBlocker quiet(table_);
    table_->clear();
    for (int index = 0; index < count; ++index) {
      table_->addTopLevelItem(new QTreeWidgetItem);
      ShowRow(index);
    }
    table_->setCurrentItem(table_->topLevelItem(std::clamp(chosen, 0, std::max(count - 1, 0))));
  }
  pages_->setCurrentIndex(count == 0 ? 1 : 0);
  const QString shown = count == 1 ? tr("1 service") : tr("%1 services").arg(count),
                note = ToQt(LeftOutNote());
  statusBar()->showMessage(note.isEmpty() ? shown : shown + ". " + note);
  EnableActions();
}

void MainWindow::ShowRow(int index) {
  QTreeWidgetItem* row = table_->topLevelItem(index);
  const alertstore::ALRTNTFYSERV* service = library_.DomainServiceGetInfo(index);
  if (row == nullptr || service == nullptr) return;
  row->setText(kName, ToQt(service->name.View()));
  row->setText(kType, QString::fromUtf8(dbconfig::ServiceTypeName(service->recordType)));
  row->setText(kEnabled, service->enabled != 0 ? tr("Yes") : tr("No"));
  const int offset = library_.DomainServiceGetIconOffset(index);
  if (offset >= 0) row->setIcon(kName, icons_.copy(offset * kIconSize, 0, kIconSize, kIconSize));
}

int MainWindow::Chosen() const {
  const QList<QTreeWidgetItem*> chosen = table_->selectedItems();
  return chosen.isEmpty() ? -1 : table_->indexOfTopLevelItem(chosen.first());
}

// The library keeps the first service of each type, so that a type never vanishes.
void MainWindow::EnableActions() {
  const int chosen = Chosen();
  properties_->setEnabled(chosen >= 0);
  copy_->setEnabled(chosen >= 0);
  delete_->setEnabled(chosen >= 0 && library_.DomainServiceIsFirstOfType(chosen) == 0);
}

void MainWindow::OpenSheet(int index) {
  if (index < 0) return;
  library_.DomainServicePropertySheet(&as_owner_, index);
  ShowRow(index);
}

void MainWindow::Refresh() {
  const bool opened = library_.Reopen();
  note_->setText(opened ? tr(kNoServices) : QString::fromStdString(StoresCannotBeOpened()));
  ShowServices();
}

void MainWindow::Copy() {
  const int index = Chosen();
  if (index < 0) return;
  bool accepted = false;
  const QString name =
      QInputDialog::getText(this, tr("Copy Service"), tr("&Name of the copy:"), QLineEdit::Normal,
                            tr("Copy of %1").arg(table_->topLevelItem(index)->text(kName)), &accepted);
  const std::string text = desktops::qt::FromQt(name.trimmed());
  if (!accepted || text.empty()) return;
  if (text.size() > kLongestName) {
    QMessageBox::warning(this, windowTitle(), tr("A service's name has at most %1 bytes.").arg(kLongestName));
    return;
  }
  if (!table_->findItems(ToQt(text), Qt::MatchFixedString, kName).isEmpty()) {
    QMessageBox::warning(this, windowTitle(), tr("There is a service named \"%1\" already.").arg(ToQt(text)));
    return;
  }
  // On failure the library has said why.
  if (library_.DomainServiceCopyService(index, text.c_str()) == 0) return;
  ShowServices();
  table_->setCurrentItem(table_->topLevelItem(library_.DomainServiceGetCount() - 1));
}

void MainWindow::Delete() {
  const int index = Chosen();
  if (index < 0) return;
  const QString question =
      tr("Delete the service \"%1\"?  This operation is immediate and cannot be canceled later.")
          .arg(table_->topLevelItem(index)->text(kName));
  if (QMessageBox::question(this, windowTitle(), question) != QMessageBox::Yes) return;
  library_.DomainServiceDeleteService(index, platform::kNullGuid);
  ShowServices();
}

}  // namespace alertconsole
