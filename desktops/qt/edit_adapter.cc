// SPDX-License-Identifier: MIT
#include "desktops/qt/edit_adapter.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QTimer>

#include "desktops/qt/guard.h"
#include "desktops/qt/help_menu.h"
#include "desktops/qt/keys.h"
#include "desktops/qt/texts.h"

namespace desktops::qt {

using platform::ui::Change;
using platform::ui::Edit;
using platform::ui::Key;

namespace {

// A number field stays as narrow as what fits into it.
constexpr int kNumberFieldCharacters = 10;

QWidget* MakeField(const Edit& model, QWidget* parent) {
  if (model.MultiLine()) return new TextField(parent);
  auto* line = new LineField(parent);
  if (model.DigitsOnly()) {
    line->setFixedWidth(line->fontMetrics().horizontalAdvance('0') * kNumberFieldCharacters);
  }
  return line;
}

}  // namespace

EditAdapter::EditAdapter(Edit& model, QWidget* parent)
    : ControlAdapter(model, MakeField(model, parent)), model_(model) {
  if (model.MultiLine()) {
    view_ = text_ = static_cast<TextField*>(OwnedWidget());
    text_->SetEvents(this);
    connect(text_, &QPlainTextEdit::textChanged, this, [this] { OnTextChanged(); });
  } else {
    view_ = line_ = static_cast<LineField*>(OwnedWidget());
    line_->SetEvents(this);
    connect(line_, &QLineEdit::textChanged, this, [this] { OnTextChanged(); });
  }
}

EditAdapter::~EditAdapter() {
  if (line_ != nullptr) line_->SetEvents(nullptr);
  if (text_ != nullptr) text_->SetEvents(nullptr);
}

void EditAdapter::Refresh(Change change) {
  if (change == Change::kStyle) {
    view_->SetMasked(model_.Masked());
    view_->SetReadOnly(model_.ReadOnly());
  } else if (change == Change::kText) {
    ShowModelText();
  } else if (change == Change::kSelection) {
    ShowModelSelection();
    view_->RevealCaret();
  }
}

void EditAdapter::ShowModelText() {
  const QScopedValueRollback<bool> showing(showing_, true);
  const QString text = ShownText(model_.Text(), model_.MultiLine());
  if (view_->Shown() != text) view_->Show(text);
  ShowModelSelection();
}

void EditAdapter::ShowModelSelection() {
  const auto [start, end] = model_.Selection();
  const int from = ShownPosition(model_.Text(), start, model_.MultiLine());
  const int to = ShownPosition(model_.Text(), end, model_.MultiLine());
  view_->Select(model_.CaretAtStart() ? ShownSelection{to, from} : ShownSelection{from, to});
}

void EditAdapter::TellSelection() {
  const ShownSelection shown = view_->Selection();
  const std::size_t anchor = BytePosition(model_.Text(), shown.anchor, model_.MultiLine());
  const std::size_t caret = BytePosition(model_.Text(), shown.caret, model_.MultiLine());
  const bool caret_at_start = caret < anchor;
  const std::pair selection{std::min(anchor, caret), std::max(anchor, caret)};
  if (selection == model_.Selection() && caret_at_start == model_.CaretAtStart()) return;
  model_.OnSelectionMoved(selection.first, selection.second, caret_at_start);
}

// The widget changed its text by a way of its own (a drag out of the field); the model's text stands.
void EditAdapter::OnTextChanged() {
  if (!showing_) QTimer::singleShot(0, this, [this] { ShowModelText(); });
}

bool EditAdapter::BeforeEvent(QEvent& event) {
  bool done = false;
  Guarded([&] {
    switch (event.type()) {
      case QEvent::KeyPress:
        done = OnKeyPress(static_cast<QKeyEvent&>(event));
        break;
      case QEvent::InputMethod:
        done = OnInputMethod(static_cast<QInputMethodEvent&>(event));
        break;
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonRelease:
        done = OnMiddleButton(event);
        break;
      case QEvent::Drop:
        OnDrop(static_cast<QDropEvent&>(event));
        done = true;
        break;
      case QEvent::ContextMenu:
        ShowMenu(static_cast<QContextMenuEvent&>(event).globalPos());
        done = true;
        break;
      default:
        break;
    }
  });
  return done;
}

void EditAdapter::AfterEvent(QEvent& event) {
  Guarded([&] {
    switch (event.type()) {
      case QEvent::KeyPress:
      case QEvent::MouseButtonPress:
      case QEvent::MouseMove:
      case QEvent::MouseButtonDblClick:
        TellSelection();
        break;
      case QEvent::MouseButtonRelease:
        TellSelection();
        model_.OnMouseUp();
        break;
      case QEvent::KeyRelease:
        if (const auto key = KeyOf(static_cast<QKeyEvent&>(event))) model_.OnKeyUp(*key);
        break;
      case QEvent::FocusIn:
        OnFocusIn(static_cast<QFocusEvent&>(event).reason());
        break;
      default:
        break;
    }
  });
}

// Answers true for all but the keys that move the caret or the focus: nothing else may act on the widget
// itself. What is not for the field goes on to the window.
bool EditAdapter::OnKeyPress(QKeyEvent& event) {
  if (OnEditingKey(event)) {
    event.accept();
    return true;
  }
  if (MovesCaret(event.key())) return false;
  if (const auto key = KeyOf(event)) model_.OnKeyDown(*key);
  if (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab) return false;
  event.ignore();
  return true;
}

bool EditAdapter::OnEditingKey(QKeyEvent& event) {
  if (const char32_t command = EditCommand(event, model_.MultiLine())) {
    model_.OnChar(command);
  } else if (event.matches(QKeySequence::DeleteStartOfWord) || event.matches(QKeySequence::DeleteEndOfWord)) {
    if (view_->Selection().anchor == view_->Selection().caret) {
      view_->SelectWord(event.matches(QKeySequence::DeleteEndOfWord));
      TellSelection();
    }
    DeleteSelection();
  } else if (event.key() == Qt::Key_Delete || LeavesSelection(event)) {
    model_.OnKeyDown(*KeyOf(event));
  } else if (const std::u32string text = TypedText(event); !text.empty()) {
    for (const char32_t c : text) model_.OnChar(c);
  } else {
    return false;
  }
  return true;
}

// A plain arrow puts the caret to its side of what is selected; the line widget of some systems steps on from
// there.
bool EditAdapter::LeavesSelection(const QKeyEvent& event) const {
  const bool arrow = event.key() == Qt::Key_Left || event.key() == Qt::Key_Right;
  const bool plain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  return arrow && plain && model_.Selection().first != model_.Selection().second;
}

void EditAdapter::DeleteSelection() {
  const auto [start, end] = model_.Selection();
  if (start != end) model_.OnChar(platform::ui::kCharBackspace);
}

// A composed text arrives as characters. While it is being composed the widget shows it, except over a
// selection, which the widget would delete.
bool EditAdapter::OnInputMethod(QInputMethodEvent& event) {
  if (event.commitString().isEmpty()) return model_.Selection().first != model_.Selection().second;
  const QString text = event.commitString();
  const QScopedValueRollback<bool> showing(showing_, true);
  view_->EndComposition();
  for (const uint c : text.toUcs4()) model_.OnChar(c);
  event.accept();
  return true;
}

// Some systems paste the selected text of another window with the middle button.
bool EditAdapter::OnMiddleButton(QEvent& event) {
  auto& mouse = static_cast<QMouseEvent&>(event);
  if (mouse.button() != Qt::MiddleButton) return false;
  const QClipboard* clipboard = QGuiApplication::clipboard();
  if (event.type() == QEvent::MouseButtonRelease && clipboard->supportsSelection()) {
    PasteAt(mouse.position().toPoint(), clipboard->text(QClipboard::Selection));
  }
  return true;
}

void EditAdapter::OnDrop(QDropEvent& event) {
  if (!event.mimeData()->hasText()) return;
  PasteAt(event.position().toPoint(), event.mimeData()->text());
  event.setDropAction(Qt::CopyAction);
  event.accept();
}

void EditAdapter::PasteAt(const QPoint& point, const QString& text) {
  const std::size_t caret = BytePosition(model_.Text(), view_->PositionAt(point), model_.MultiLine());
  OwnedWidget()->setFocus(Qt::MouseFocusReason);
  model_.OnSelectionMoved(caret, caret, false);
  ShowModelSelection();
  if (!text.isEmpty()) model_.OnPaste(FromQt(text));
}

// Tab and access keys select the whole line; any other way leaves the selection as it was, which a widget
// forgets.
void EditAdapter::OnFocusIn(Qt::FocusReason reason) {
  const bool selects_all =
      reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
  if (selects_all && line_ != nullptr) {
    TellSelection();
  } else {
    ShowModelSelection();
  }
}

void EditAdapter::ShowMenu(const QPoint& global) {
  auto* menu = new QMenu(OwnedWidget());
  menu->setAttribute(Qt::WA_DeleteOnClose);
  FillMenu(*menu);
  menu->addSeparator();
  AddWhatsThis(*menu, model_.OwnerForm(), &model_);
  menu->popup(global);
}

void EditAdapter::FillMenu(QMenu& menu) {
  using namespace platform::ui;
  const bool editable = !model_.ReadOnly(), selected = model_.Selection().first != model_.Selection().second;
  const auto add = [&](const QString& text, bool enabled, char32_t command) {
    QAction* action =
        menu.addAction(text, this, [this, command] { Guarded([&] { model_.OnChar(command); }); });
    action->setEnabled(enabled);
  };
  add(tr("&Undo"), editable, kCharUndo);
  menu.addSeparator();
  add(tr("Cu&t"), editable && selected && !model_.Masked(), kCharCut);
  add(tr("&Copy"), selected && !model_.Masked(), kCharCopy);
  add(tr("&Paste"), editable, kCharPaste);
  add(tr("&Delete"), editable && selected, kCharBackspace);
  menu.addSeparator();
  add(tr("Select &All"), !model_.Text().empty(), kCharSelectAll);
}

}  // namespace desktops::qt
