// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>
#include <QPixmap>

#include "console/window/library.h"
#include "desktops/qt/control_adapter.h"

class QAction;
class QStackedWidget;
class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

namespace alertconsole {

/// The console's window: the site's notification services in a table, and what can be done to them. To the
/// library it is the owner of the sheets it opens.
class MainWindow : public QMainWindow, public platform::ui::WindowObserver, public desktops::qt::WidgetOwner {
 public:
  explicit MainWindow(AlertingLibrary& library);
  ~MainWindow() override;

  /// Reads the services again and shows them; the chosen one stays chosen.
  void ShowServices();
  /// Opens the sheet of the service with that index, then shows what has become of it.
  void OpenSheet(int index);

  QWidget* OwnedWidget() const override { return const_cast<MainWindow*>(this); }
  platform::ui::Window& ShownWindow() const override { return const_cast<platform::ui::Window&>(as_owner_); }
  void OnWindowChanged(platform::ui::Window&, platform::ui::Change) override {}

 private:
  void MakeTable();
  QWidget* MakeEmptyNote();
  void MakeActions();
  void LoadIcons();
  void ShowRow(int index);
  void EnableActions();
  int Chosen() const;
  void Refresh();
  void Copy();
  void Delete();

  AlertingLibrary& library_;
  platform::ui::Window as_owner_;
  QPixmap icons_;
  QStackedWidget* pages_;
  QTreeWidget* table_;
  QLabel* note_ = nullptr;  ///< in place of the table while there is nothing to show
  QAction *properties_, *copy_, *delete_;
};

}  // namespace alertconsole
