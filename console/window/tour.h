// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <set>

namespace alertconsole {

/// Goes through the windows that a window opens and has a look at each: every page of a sheet, then whatever its buttons
/// open, and so on. It presses no button that stores, deletes or sends something, and closes each window by Escape. It works
/// while the windows' own event loops run, so whoever opens the first one starts it before.
class Tour : public QObject {
 public:
  /// Sees a window that has come to rest, with a name for it that is good for a file.
  using View = std::function<void(QWidget& window, const QString& name)>;

  explicit Tour(View view) : view_(std::move(view)) {}

  /// Goes through what `open` opens; names of pages begin with that name.
  void Visit(const QString& name, const std::function<void()>& open);
  /// Looks at a window that is not modal.
  void Look(QWidget& window, const QString& name);
  /// Windows that Escape did not close.
  const QStringList& DeafToEscape() const { return deaf_to_escape_; }

 private:
  /// A window in front: which of its pages and buttons are still to be gone through.
  struct Stop {
    QPointer<QWidget> window;  // null once it is gone: a front window may close two at a time
    QString name;
    int page = 0;
    int button = 0;
    bool viewed = false;
    bool left = false;
  };

  void LookLater(int visit);
  void GoOn();
  void Arrive(QWidget& window);
  void LookAtPage(Stop& stop);
  bool PressNext(Stop& stop);
  bool NextPage(Stop& stop);
  void Leave(Stop& stop);

  View view_;
  QString first_name_;
  std::vector<Stop> stops_;
  std::set<QString> seen_;
  QStringList deaf_to_escape_;
  int visit_ = 0;  // what a look that comes late belongs to
  bool looking_ = false;
};

}  // namespace alertconsole
