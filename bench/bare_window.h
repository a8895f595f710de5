// SPDX-License-Identifier: MIT
#pragma once

#include <QLayout>
#include <QWidget>
#include <functional>

namespace bench {

/// A copy of a window's contents as a program would write it straight against the toolkit: the toolkit's own widgets, with
/// the same texts and rows, in the toolkit's own layouts. Nothing is connected, nothing follows a model.
///
/// Copied is what the window shows when the copy is taken: hidden widgets, and pages behind the one in front, are not.
class BareWindow {
 public:
  explicit BareWindow(const QWidget& shown);
  /// Makes the window anew and shows it until it is closed.
  void Exec() const;

 private:
  std::function<QLayout*(QWidget*)> make_layout_;
};

}  // namespace bench
