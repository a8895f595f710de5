// SPDX-License-Identifier: MIT
#include <QClipboard>
#include <QGuiApplication>

#include "desktops/qt/qt_test_desktop.h"
#include "tests/stories/test_desktop.h"

namespace stories {
namespace {

class QtStoriesDesktop : public TestDesktop {
 public:
  desktops::Script& Script() override { return desktop_.script; }
  void ClearClipboard() override { QGuiApplication::clipboard()->clear(); }
  void SetSystemMajorVersion(int version) override { desktop_.system_major_version = version; }
  std::string LastHelpText() override { return desktop_.last_help_text; }

 private:
  desktops::QtTestDesktop desktop_;
};

}  // namespace

std::unique_ptr<TestDesktop> MakeTestDesktop() {
  desktops::QtTestDesktop::EnsureApplication();
  return std::make_unique<QtStoriesDesktop>();
}

}  // namespace stories
