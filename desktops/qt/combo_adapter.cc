// SPDX-License-Identifier: MIT
#include "desktops/qt/combo_adapter.h"

#include <QLineEdit>
#include <QWheelEvent>
#include <algorithm>

#include "desktops/qt/guard.h"
#include "desktops/qt/texts.h"

namespace desktops::qt {

using platform::ui::Change;

namespace {

/// A combo box that the wheel scrolls past unless it has the focus: scrolling a page must not change its
/// values.
class QuietComboBox : public QComboBox {
 public:
  explicit QuietComboBox(QWidget* parent) : QComboBox(parent) { setFocusPolicy(Qt::StrongFocus); }

 protected:
  void wheelEvent(QWheelEvent* event) override {
    if (hasFocus()) {
      QComboBox::wheelEvent(event);
    } else {
      event->ignore();
    }
  }
};

}  // namespace

ComboAdapter::ComboAdapter(platform::ui::ComboBox& model, QWidget* parent)
    : ListAdapter(model, new QuietComboBox(parent)),
      model_(model),
      combo_(static_cast<QComboBox*>(OwnedWidget())) {
  combo_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  combo_->setEditable(model.Editable());
  WatchKeys(combo_);
  connect(combo_, &QComboBox::activated, this,
          [this](int index) { Guarded([this, index] { model_.OnChoose(index); }); });
  if (!model.Editable()) return;
  combo_->setInsertPolicy(QComboBox::NoInsert);
  combo_->setCompleter(nullptr);
  connect(combo_->lineEdit(), &QLineEdit::textEdited, this,
          [this](const QString& text) { Guarded([&] { model_.OnTextEdited(FromQt(text)); }); });
}

void ComboAdapter::Refresh(Change change) {
  ListAdapter::Refresh(change);
  if (change == Change::kText && model_.Editable()) ShowEditedText();
}

void ComboAdapter::Fill() {
  const QSignalBlocker quiet(combo_);
  QStringList items;
  for (int i = 0; i < model_.Count(); ++i) items << ToQt(model_.ItemText(i));
  combo_->clear();
  combo_->addItems(items);
}

// A change of the current item overwrites an editable box's field, and so moves its caret.
void ComboAdapter::ShowCurrent() {
  const QSignalBlocker quiet(combo_);
  const int caret = model_.Editable() ? combo_->lineEdit()->cursorPosition() : 0;
  combo_->setCurrentIndex(model_.Current());
  if (!model_.Editable()) return;
  ShowEditedText();
  combo_->lineEdit()->setCursorPosition(std::min(caret, static_cast<int>(combo_->lineEdit()->text().size())));
}

// Leaves the caret alone while the text is what was typed.
void ComboAdapter::ShowEditedText() {
  const QString text = ToQt(model_.Text());
  QLineEdit* line = combo_->lineEdit();
  if (line->text() == text) return;
  const int caret = line->cursorPosition();
  line->setText(text);
  line->setCursorPosition(std::min(caret, static_cast<int>(text.size())));
}

}  // namespace desktops::qt
