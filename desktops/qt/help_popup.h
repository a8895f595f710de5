// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace desktops::qt {

/// A help text beside what it is about, until a key is pressed or the mouse clicked anywhere. Lines break between words; the
/// text stays on the screen. Deletes itself.
class HelpPopup : public QLabel {
 public:
  /// `owner`: the window in front; null where there is none.
  HelpPopup(const QString& text, QWidget* owner);

  /// Opens it below `area` (on the screen), or above where there is no room.
  void ShowBeside(const QRect& area);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace desktops::qt
