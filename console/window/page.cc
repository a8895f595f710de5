// SPDX-License-Identifier: MIT
#include "console/window/page.h"

namespace alertconsole {

Page::Page(Console& console, QString title, QWidget* parent)
    : QWidget(parent), console_(console), title_(std::move(title)) {}

QAction* Page::Add(RecordView& view, const QString& text, const QKeySequence& key, Needs needs,
                   std::function<void()> act) {
  auto* command = new QAction(text, this);
  command->setShortcut(key);
  // Keys work wherever the keyboard is in the window, but for Delete, which a field and two tables may want.
  command->setShortcutContext(key == QKeySequence::Delete ? Qt::WidgetWithChildrenShortcut
                                                          : Qt::WindowShortcut);
  command->setEnabled(needs == Needs::kNothing);  // until something is chosen
  connect(command, &QAction::triggered, this, std::move(act));
  view.Table().addAction(command);
  bound_[command] = {&view, needs};
  commands_.push_back(command);
  return command;
}

void Page::EnableCommands() {
  for (const auto& [command, bound] : bound_) {
    const std::size_t chosen = bound.view->Selected().size();
    const bool enough =
        bound.needs == Needs::kNothing || (bound.needs == Needs::kOneRow ? chosen == 1 : chosen > 0);
    const auto condition = conditions_.find(command);
    command->setEnabled(enough && (condition == conditions_.end() || condition->second()));
  }
}

void Page::Remember(QSettings& settings) { MainView().Remember(settings); }

void Page::Recall(const QSettings& settings) { MainView().Recall(settings); }

QString Page::CountText(const RecordView& view, const QString& one, const QString& many) {
  const QString all = QString::number(view.Count()) + " " + (view.Count() == 1 ? one : many);
  return view.ShownCount() == view.Count() ? all : tr("%1 of %2").arg(view.ShownCount()).arg(all);
}

}  // namespace alertconsole
