// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QWidget>
#include <functional>
#include <vector>

#include "console/hosts/record_windows.h"
#include "console/site/library_calls.h"
#include "console/site/overview.h"
#include "console/window/record_view.h"

class QSettings;

namespace alertconsole {

/// What became of the stores in something that a person did.
enum class Outcome {
  kNothing,  ///< nothing was stored
  kStored,   ///< something was, and the alert managers are to learn of it
  kMayHaveStored  ///< a window of the library was open, which stores and tells the alert managers by itself; or not all
                  ///< that was asked for was done, which was told
};

/// What the pages of the main window work with.
class Console {
 public:
  virtual ~Console() = default;

  virtual const site::LibraryCalls& Calls() const = 0;
  /// The owner of the windows that are opened.
  virtual platform::ui::Window* Owner() = 0;
  /// The site as it was last read.
  virtual const site::Overview& Site() const = 0;
  /// The icon of the services of a type.
  virtual QIcon IconOf(std::uint32_t record_type) const = 0;

  /// The library's windows on records.
  virtual hosts::RecordWindows& Windows() = 0;

  /// Does something that a person asked for, on the site as it is now: reads it first where others changed it, then again,
  /// and tells the alert managers. `done` is what the status bar then says.
  virtual void Do(const std::function<Outcome()>& work, const QString& done = {}) = 0;
  /// Brings the choice of rows to everybody who shows it.
  virtual void SelectionChanged() = 0;
};

/// What a command needs to be chosen.
enum class Needs { kNothing, kOneRow, kRows };

/// One of the console's views: its tables, and the commands for what is in them.
class Page : public QWidget {
 public:
  Page(Console& console, QString title, QWidget* parent);

  const QString& Title() const { return title_; }
  /// Shows the site as it is now.
  virtual void ShowSite() = 0;
  /// "12 services" and how many of them are shown.
  virtual QString Summary() const = 0;
  virtual RecordView& MainView() = 0;
  virtual void Remember(QSettings& settings);
  virtual void Recall(const QSettings& settings);
  /// The commands in the order of the menu; null for a separator.
  const std::vector<QAction*>& Commands() const { return commands_; }
  void EnableCommands();
  /// Chooses the first row of each table.
  virtual void ChooseFirst() { MainView().SelectFirst(); }

 protected:
  /// A command of the menu, the tool bar and the table's own menu. It acts on `view`'s chosen rows.
  QAction* Add(RecordView& view, const QString& text, const QKeySequence& key, Needs needs,
               std::function<void()> act);
  void AddSeparator() { commands_.push_back(nullptr); }
  /// Further conditions on a command that the choice allows.
  void OnlyIf(QAction* command, std::function<bool()> condition) {
    conditions_[command] = std::move(condition);
  }
  /// The identity of the one chosen record of a view.
  static platform::GUID Chosen(const RecordView& view) { return view.Selected().front().id; }

  /// "3 services", "1 of 3 services".
  static QString CountText(const RecordView& view, const QString& one, const QString& many);

  Console& console_;

 private:
  struct Bound {
    RecordView* view;
    Needs needs;
  };

  const QString title_;
  std::vector<QAction*> commands_;
  std::map<QAction*, Bound> bound_;
  std::map<QAction*, std::function<bool()>> conditions_;
};

}  // namespace alertconsole
