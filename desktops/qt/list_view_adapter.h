// SPDX-License-Identifier: MIT
#pragma once

#include <QTreeWidget>

#include "desktops/qt/list_adapter.h"
#include "platform/ui/lists.h"

namespace desktops::qt {

/// Shows a report's rows. Rows are selected by the model alone: clicks and keys go there, and come back as
/// changes.
class ReportWidget : public QTreeWidget {
 public:
  ReportWidget(platform::ui::ListView& model, QWidget* parent);
  void TellScrolled();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent*) override {}
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  int RowAt(const QMouseEvent& event) const;

  platform::ui::ListView& model_;
};

class ListViewAdapter : public ListAdapter {
 public:
  ListViewAdapter(platform::ui::ListView& model, QWidget* parent);

 private:
  void Fill() override;
  void ShowCurrent() override;

  platform::ui::ListView& model_;
  ReportWidget* report_;
};

}  // namespace desktops::qt
