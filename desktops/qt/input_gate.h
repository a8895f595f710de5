// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace desktops::qt {

/// While it is shut, what a person does with keyboard and mouse is lost: a program that waits must not find
/// it all afterwards.
class InputGate : public QObject {
 public:
  explicit InputGate(bool open);
  ~InputGate() override;

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;

  bool open_;
  InputGate* outer_;
};

}  // namespace desktops::qt
