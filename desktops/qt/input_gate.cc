// SPDX-License-Identifier: MIT
#include "desktops/qt/input_gate.h"

#include <QCoreApplication>
#include <QEvent>
#include <utility>

namespace desktops::qt {
namespace {

// The last one made; those before it wait.
InputGate* current_gate = nullptr;

bool IsInput(const QEvent& event) {
  switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchEnd:
      return true;
    case QEvent::Close:
      return event.spontaneous();  // the close box
    default:
      return false;
  }
}

}  // namespace

InputGate::InputGate(bool open) : open_(open), outer_(std::exchange(current_gate, this)) {
  QCoreApplication::instance()->installEventFilter(this);
}

InputGate::~InputGate() { current_gate = outer_; }

bool InputGate::eventFilter(QObject*, QEvent* event) {
  if (open_ || current_gate != this || !IsInput(*event)) return false;
  event->ignore();
  return true;
}

}  // namespace desktops::qt
