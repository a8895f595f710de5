// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <functional>
#include <map>

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace alertconsole {

/// What a person has to know for as long as it holds, above everything else in the window.
class Notices : public QWidget {
 public:
  enum Kind { kNotTold, kLaboratory, kLeftOut, kReadOnly, kNoResources };

  explicit Notices(QWidget* parent);

  /// Shows a notice, with a button where `button` has a text. An empty text takes it away.
  void Set(Kind kind, const QString& text, const QString& button = {}, std::function<void()> act = {});
  QString Text(Kind kind) const;

 private:
  struct Notice {
    QFrame* frame;
    QLabel* text;
    QPushButton* button;
    std::function<void()> act;
  };

  Notice& Make(Kind kind);

  QVBoxLayout* column_;
  std::map<Kind, Notice> notices_;
};

}  // namespace alertconsole
