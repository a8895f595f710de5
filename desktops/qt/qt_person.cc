// SPDX-License-Identifier: MIT
#include "desktops/qt/qt_person.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTest>

#include "desktops/qt/keys.h"
#include "desktops/qt/texts.h"

namespace desktops {

using qt::FromQt;
using qt::ToQt;
using qt::WidgetFinder;

namespace {

bool TakesText(const QWidget* widget) {
  const auto* combo = qobject_cast<const QComboBox*>(widget);
  return qobject_cast<const QLineEdit*>(widget) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(widget) != nullptr || (combo != nullptr && combo->isEditable());
}

/// The widget of a field that mouse events are told in.
QWidget* MouseTarget(QWidget& field) {
  auto* area = qobject_cast<QAbstractScrollArea*>(&field);
  return area != nullptr ? area->viewport() : &field;
}

}  // namespace

QtPerson::QtPerson(QWidget& window, std::string& help_text)
    : window_(&window), finder_(window), help_text_(help_text) {}

void QtPerson::Fail(const std::string& what) { throw PersonError(what + " on the screen:\n" + Screen()); }

void QtPerson::Settle() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
  // Not every platform gives the keyboard back when a window in front has gone.
  if (window_ == nullptr || QApplication::activeModalWidget() != window_ || window_->isActiveWindow()) return;
  window_->activateWindow();
  if (!QTest::qWaitForWindowActive(window_)) Fail("The window does not become the active one");
}

QWidget& QtPerson::Any(const std::string& label) {
  Settle();
  QWidget* widget = window_ != nullptr ? finder_.ByLabel(label) : nullptr;
  if (widget == nullptr) Fail("There is no \"" + label + "\"");
  return *widget;
}

QWidget& QtPerson::Reachable(const std::string& label) {
  QWidget& widget = Any(label);
  if (!widget.isVisible()) Fail("\"" + label + "\" is hidden");
  if (!widget.isEnabled()) Fail("\"" + label + "\" is disabled");
  return widget;
}

void QtPerson::Send(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text) {
  QWidget* target = QApplication::focusWidget();
  if (target == nullptr || target->window() != window_) target = window_;
  if (target == nullptr) Fail("The window is gone; nothing takes the keys");
  QTest::sendKeyEvent(QTest::Click, target, key, text, modifiers);
  Settle();
}

void QtPerson::Click(QAbstractButton& button) {
  // A check box answers a click on its square and its text only, which may be shorter than the widget.
  const QPoint point = button.isCheckable() ? QPoint(8, button.height() / 2) : button.rect().center();
  QTest::mouseClick(&button, Qt::LeftButton, {}, point);
  Settle();
}

void QtPerson::Focus(const std::string& label) {
  QWidget& widget = Reachable(label);
  if (widget.focusPolicy() == Qt::NoFocus) Fail("\"" + label + "\" does not take the focus");
  widget.setFocus(Qt::TabFocusReason);
  Settle();
}

void QtPerson::Type(const std::string& label, const std::string& text) {
  Focus(label);
  Send(Qt::Key_A, Qt::ControlModifier);
  if (text.empty()) Send(Qt::Key_Delete);
  TypeHere(text);
}

void QtPerson::TypeHere(const std::string& text) {
  for (const uint c : ToQt(text).toUcs4()) {
    if (c > ' ' && !TakesText(QApplication::focusWidget())) Fail("The control with the focus takes no text");
    if (c == '\b') {
      Send(Qt::Key_Backspace);
    } else if (c == '\n') {
      Send(Qt::Key_Return);
    } else if (c < ' ') {
      Send(static_cast<Qt::Key>(Qt::Key_A + c - 1), Qt::ControlModifier);
    } else {
      const auto character = static_cast<char32_t>(c);
      Send(Qt::Key_unknown, {}, QString::fromUcs4(&character, 1));
    }
  }
}

void QtPerson::Press(platform::ui::Key key) { Send(qt::QtKeyOf(key)); }

void QtPerson::Paste(const std::string& label, const std::string& text) {
  Focus(label);
  QGuiApplication::clipboard()->setText(ToQt(text));
  Send(Qt::Key_V, Qt::ControlModifier);
}

QPoint QtPerson::PointInText(QWidget& field, std::size_t position) {
  if (auto* text = qobject_cast<QPlainTextEdit*>(&field)) {
    QTextCursor cursor(text->document());
    cursor.setPosition(qt::ShownPosition(WidgetFinder::TextOf(field), position, true));
    return text->cursorRect(cursor).center();
  }
  auto& line = dynamic_cast<QLineEdit&>(field);
  const int wanted = qt::ShownPosition(WidgetFinder::TextOf(field), position, false);
  for (int x = 0; x < line.width(); ++x) {
    if (line.cursorPositionAt(QPoint(x, line.height() / 2)) == wanted) return {x, line.height() / 2};
  }
  Fail("The text at that place cannot be seen");
}

void QtPerson::ClickInText(const std::string& label, std::size_t position) {
  SelectText(label, position, position);
}

void QtPerson::SelectText(const std::string& label, std::size_t start, std::size_t end) {
  QWidget& field = Reachable(label);
  QWidget* target = MouseTarget(field);
  field.setFocus(Qt::MouseFocusReason);
  QTest::mousePress(target, Qt::LeftButton, {}, PointInText(field, start));
  if (start != end) QTest::mouseMove(target, PointInText(field, end));
  QTest::mouseRelease(target, Qt::LeftButton, {}, PointInText(field, end));
  Settle();
}

void QtPerson::Press(const std::string& button) { Click(ReachableAs<QAbstractButton>(button)); }

void QtPerson::PressBeside(const std::string& label, const std::string& button) {
  QAbstractButton* found = finder_.ButtonBeside(Reachable(label), button);
  if (found == nullptr || !found->isEnabled())
    Fail("No \"" + button + "\" can be pressed beside \"" + label + "\"");
  Click(*found);
}

void QtPerson::AccessKey(char key) {
  const QChar character = QLatin1Char(key);
  if (!finder_.HasAccessKey(character.toLower().toLatin1()))
    Fail(std::string("Nothing has the access key ") + key);
  Send(static_cast<Qt::Key>(character.toUpper().unicode()), Qt::AltModifier, character.toLower());
  // A button pressed so stays down for a moment, so that it is seen.
  const auto released = [this] { return window_ == nullptr || !finder_.IsAnyButtonDown(); };
  if (!QTest::qWaitFor(released)) Fail("A button stays down");
  Settle();
}

void QtPerson::Check(const std::string& label, bool checked) {
  auto& box = ReachableAs<QAbstractButton>(label);
  if (box.isChecked() == checked) return;
  Click(box);
  if (box.isChecked() != checked) Fail("\"" + label + "\" does not stay as it was clicked");
}

void QtPerson::StepSpin(const std::string& buddy_label, int direction) {
  QAbstractButton* arrow = finder_.ArrowBeside(Reachable(buddy_label), direction);
  if (arrow == nullptr || !arrow->isEnabled()) Fail("No arrow can be pressed beside \"" + buddy_label + "\"");
  Click(*arrow);
}

void QtPerson::SelectTab(const std::string& caption) {
  auto* bar = window_->findChild<QTabBar*>();
  for (int i = 0; bar != nullptr && i < bar->count(); ++i) {
    if (FromQt(bar->tabText(i)) != caption) continue;
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(i).center());
    return Settle();
  }
  Fail("There is no tab \"" + caption + "\"");
}

// F1 where the focus goes, else "What's This?" of the context menu.
std::string QtPerson::HelpOn(const std::string& label) {
  QWidget& widget = Reachable(label);
  help_text_.clear();
  if (widget.focusPolicy() != Qt::NoFocus) {
    Focus(label);
    Send(Qt::Key_F1);
  } else {
    AskInMenu(widget);
  }
  return help_text_;
}

void QtPerson::AskInMenu(QWidget& widget) {
  const QPoint middle = widget.rect().center();
  QContextMenuEvent event(QContextMenuEvent::Mouse, middle, widget.mapToGlobal(middle));
  QApplication::sendEvent(&widget, &event);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  if (menu == nullptr) Fail("There is no context menu");
  menu->actions().last()->trigger();
  menu->close();
  Settle();
}

void QtPerson::CloseWindow() {
  window_->close();
  Settle();
}

}  // namespace desktops
