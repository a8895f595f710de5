// SPDX-License-Identifier: MIT
#include <QClipboard>
#include <QGuiApplication>
#include <filesystem>

#include "desktops/qt/qt_test_desktop.h"
#include "tests/stories/test_desktop.h"

namespace stories {
namespace {

/// Plays without a sound, since machines that build have no loudspeaker.
class PretendedSound : public platform::ui::Sound {
 public:
  struct State {
    std::string playing;
    std::function<void()> finished;
  };
  PretendedSound(State& state, std::string path) : state_(state), path_(std::move(path)) {}
  ~PretendedSound() override { Stop(); }

  bool Play(std::function<void()> finished) override {
    if (!std::filesystem::is_regular_file(path_)) return false;
    state_ = {path_, std::move(finished)};
    return true;
  }
  void Stop() override { state_ = {}; }

 private:
  State& state_;
  const std::string path_;
};

class SoundlessDesktop : public desktops::QtTestDesktop {
 public:
  std::unique_ptr<platform::ui::Sound> OpenSound(const std::string& path) override {
    return std::make_unique<PretendedSound>(sound, path);
  }
  PretendedSound::State sound;
};

class QtStoriesDesktop : public TestDesktop {
 public:
  desktops::Script& Script() override { return desktop_.script; }
  void ClearClipboard() override { QGuiApplication::clipboard()->clear(); }
  void SetSystemMajorVersion(int version) override { desktop_.system_major_version = version; }
  std::string LastHelpText() override { return desktop_.last_help_text; }
  std::vector<std::string> CutControls() override { return desktop_.CutControls(); }
  bool ShowsWaitCursor() override { return desktop_.ShowsWaitCursor(); }
  std::string PlayingSound() override { return desktop_.sound.playing; }
  void FinishSound() override { std::exchange(desktop_.sound, {}).finished(); }

 private:
  SoundlessDesktop desktop_;
};

}  // namespace

std::unique_ptr<TestDesktop> MakeTestDesktop() {
  desktops::QtTestDesktop::EnsureApplication();
  return std::make_unique<QtStoriesDesktop>();
}

}  // namespace stories
