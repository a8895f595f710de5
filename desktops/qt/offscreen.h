// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QTemporaryFile>

namespace desktops::qt {

/// Gives windows that are shown on no display a screen of an ordinary size; the platform's own is so small
/// that large windows are cut. Lives while the application is made. Other platforms stay as they are.
class OffscreenScreen {
 public:
  OffscreenScreen();
  ~OffscreenScreen();
  OffscreenScreen(const OffscreenScreen&) = delete;
  OffscreenScreen& operator=(const OffscreenScreen&) = delete;

 private:
  const QByteArray platform_;
  QTemporaryFile configuration_;
};

}  // namespace desktops::qt
