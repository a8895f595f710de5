// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QTextBrowser;

namespace alertconsole {

/// The guide for administrators, page by page.
class GuideWindow : public QDialog {
 public:
  explicit GuideWindow(QWidget* parent);

  /// Shows the window with the guide's first page.
  void ShowContents();

 private:
  QTextBrowser* text_;
};

}  // namespace alertconsole
