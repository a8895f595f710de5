// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <functional>

class QLabel;
class QPushButton;

namespace alertconsole {

/// What stands in place of the views while there is nothing to show: a headline, what can be done, and the button that
/// does it.
class StartPage : public QWidget {
 public:
  explicit StartPage(QWidget* parent);

  void Say(const QString& headline, const QString& text, const QString& button, std::function<void()> act);

 private:
  QLabel *headline_, *text_;
  QPushButton* button_;
  std::function<void()> act_;
};

}  // namespace alertconsole
