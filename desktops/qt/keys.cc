// SPDX-License-Identifier: MIT
#include "desktops/qt/keys.h"

#include <QKeySequence>
#include <array>
#include <utility>

#include "platform/ui/edit.h"

namespace desktops::qt {
namespace {

using platform::ui::Key;

constexpr std::array<std::pair<Qt::Key, Key>, 14> kKeys{{{Qt::Key_Left, Key::kLeft},
                                                         {Qt::Key_Right, Key::kRight},
                                                         {Qt::Key_Up, Key::kUp},
                                                         {Qt::Key_Down, Key::kDown},
                                                         {Qt::Key_Home, Key::kHome},
                                                         {Qt::Key_End, Key::kEnd},
                                                         {Qt::Key_PageUp, Key::kPageUp},
                                                         {Qt::Key_PageDown, Key::kPageDown},
                                                         {Qt::Key_Delete, Key::kDelete},
                                                         {Qt::Key_Space, Key::kSpace},
                                                         {Qt::Key_Tab, Key::kTab},
                                                         {Qt::Key_Return, Key::kEnter},
                                                         {Qt::Key_Escape, Key::kEscape},
                                                         {Qt::Key_F1, Key::kF1}}};

bool IsEnter(int key) { return key == Qt::Key_Return || key == Qt::Key_Enter; }

}  // namespace

std::optional<Key> KeyOf(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Enter) return Key::kEnter;
  for (const auto& [qt_key, key] : kKeys) {
    if (qt_key == event.key()) return key;
  }
  return std::nullopt;
}

Qt::Key QtKeyOf(Key wanted) {
  for (const auto& [qt_key, key] : kKeys) {
    if (key == wanted) return qt_key;
  }
  return Qt::Key_unknown;
}

bool MovesCaret(int qt_key) {
  switch (qt_key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      return true;
    default:
      return false;
  }
}

std::u32string TypedText(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers();
  const bool control = modifiers.testFlag(Qt::ControlModifier), alt = modifiers.testFlag(Qt::AltModifier);
  // Control and Alt together are the AltGr of some systems, which types characters.
  if (control != alt || modifiers.testFlag(Qt::MetaModifier)) return {};
  const QString text = event.text();
  if (text.isEmpty() || text.at(0).unicode() < 32 || text.at(0).unicode() == 127) return {};
  const QList<uint> characters = text.toUcs4();
  return std::u32string(characters.begin(), characters.end());
}

char32_t EditCommand(const QKeyEvent& event, bool multi_line) {
  using namespace platform::ui;
  if (event.matches(QKeySequence::SelectAll)) return kCharSelectAll;
  if (event.matches(QKeySequence::Copy)) return kCharCopy;
  if (event.matches(QKeySequence::Paste)) return kCharPaste;
  if (event.matches(QKeySequence::Cut)) return kCharCut;
  if (event.matches(QKeySequence::Undo)) return kCharUndo;
  const bool plain = (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
  if (event.key() == Qt::Key_Backspace && plain) return kCharBackspace;
  if (multi_line && IsEnter(event.key()) && plain) return kCharEnter;
  return 0;
}

}  // namespace desktops::qt
