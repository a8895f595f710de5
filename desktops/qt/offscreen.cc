// SPDX-License-Identifier: MIT
#include "desktops/qt/offscreen.h"

namespace desktops::qt {
namespace {

constexpr char kVariable[] = "QT_QPA_PLATFORM";
constexpr char kScreen[] =
    R"({"screens": [{"name": "screen", "x": 0, "y": 0, "width": 1920, "height": 1080,
                     "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";

}  // namespace

OffscreenScreen::OffscreenScreen() : platform_(qgetenv(kVariable)) {
  if (platform_ != "offscreen" || !configuration_.open()) return;
  configuration_.write(kScreen);
  configuration_.close();
  qputenv(kVariable, "offscreen:configfile=" + configuration_.fileName().toLocal8Bit());
}

// Programs that this one starts would not find the file any more.
OffscreenScreen::~OffscreenScreen() {
  if (!platform_.isNull()) qputenv(kVariable, platform_);
}

}  // namespace desktops::qt
