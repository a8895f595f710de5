// SPDX-License-Identifier: MIT
#include "desktops/scripted/scripted_desktop.h"
#include "tests/stories/test_desktop.h"

namespace stories {
namespace {

class ScriptedTestDesktop : public TestDesktop {
 public:
  desktops::Script& Script() override { return desktop_.script; }
  void ClearClipboard() override { desktop_.clipboard.reset(); }
  void SetSystemMajorVersion(int version) override { desktop_.system_major_version = version; }
  std::string LastHelpText() override { return desktop_.last_help_text; }
  std::vector<std::string> CutControls() override { return {}; }
  bool ShowsWaitCursor() override { return desktop_.wait_cursor_depth > 0; }
  std::string PlayingSound() override { return desktop_.playing_sound; }
  void FinishSound() override { desktop_.FinishSound(); }

 private:
  desktops::ScriptedDesktop desktop_;
};

}  // namespace

std::unique_ptr<TestDesktop> MakeTestDesktop() { return std::make_unique<ScriptedTestDesktop>(); }

}  // namespace stories
