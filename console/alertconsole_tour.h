// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <set>

namespace alertconsole {

/// Goes through the windows that a window opens and takes a picture of each: every page of a sheet, then whatever its
/// buttons open, and so on. It presses no button that stores, deletes or sends something, and closes each window by
/// Escape. It works while the windows' own event loops run, so whoever opens the first one starts it before.
class Tour : public QObject {
 public:
  explicit Tour(const QString& folder);

  /// Goes through what `open` opens; pictures of pages begin with that name.
  void Visit(const QString& name, const std::function<void()>& open);
  /// Takes a picture of a window that is not modal.
  void Take(QWidget& window, const QString& name);

  bool Failed() const { return failed_; }
  void Fail(const QString& what);

 private:
  /// A window in front: which of its pages and buttons are still to be gone through.
  struct Stop {
    QPointer<QWidget> window;  // null once it is gone: a front window may close two at a time
    QString name;
    int page = 0;
    int button = 0;
    bool pictured = false;
  };

  void LookLater(int visit);
  void Look();
  void Arrive(QWidget& window);
  void TakePage(Stop& stop);
  bool PressNext(Stop& stop);
  bool NextPage(Stop& stop);
  void Leave(Stop& stop);

  QDir folder_;
  QString first_name_;
  std::vector<Stop> stops_;
  std::set<QString> seen_;
  int visit_ = 0;  // what a look that comes late belongs to
  bool looking_ = false, failed_ = false;
};

}  // namespace alertconsole
