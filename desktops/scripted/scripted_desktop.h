// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <mutex>

#include "desktops/scripted/script.h"
#include "platform/ui/desktop.h"

namespace desktops {

/// A desktop without a display: modal windows run the script's stories, messages are answered as written,
/// sleeps are recorded. Makes itself current while it lives.
class ScriptedDesktop : public platform::ui::Desktop {
 public:
  ScriptedDesktop();
  ~ScriptedDesktop() override;

  Script script;
  std::optional<std::string> clipboard;
  int system_major_version = 10;
  /// The waits that a person sees: those since the window in front was opened.
  int wait_cursor_depth = 0;
  /// The program waits in Sleep, where it takes no input.
  bool asleep = false;
  /// How a message was shown, besides its text, which the script notes.
  struct Shown {
    std::string title;
    int wait_cursors;
  };
  std::vector<Shown> shown;
  std::string last_help_text;
  /// Icons of files that are not there, for ExtractIcons; icon files that are there are read.
  std::map<std::string, std::vector<platform::ui::Bitmap>> icon_files;
  /// The file of the sound that is playing, or "". Every existing file can be played.
  std::string playing_sound;
  /// The sound that is playing comes to its end.
  void FinishSound();
  /// Runs what other threads have posted; RunModal does so too.
  void RunPosted();
  /// Forgets what has been posted, and whatever is from now on: the library whose code that is may be about to go.
  void ForgetPosted();

  int RunModal(platform::ui::Modal& modal) override;
  platform::ui::Answer ShowMessage(const platform::ui::Message& message) override;
  bool ChooseFile(platform::ui::FileDialog& dialog) override;
  bool ChooseFolder(platform::ui::FolderDialog& dialog) override;
  void ShowWaitCursor() override { ++wait_cursor_depth; }
  void HideWaitCursor() override { --wait_cursor_depth; }
  void RestoreWaitCursor() override {}
  void Sleep(std::uint32_t milliseconds) override;
  void Beep() override { ++script.beeps; }
  std::optional<std::string> ClipboardText() override { return clipboard; }
  void SetClipboardText(const std::string& text) override { clipboard = text; }
  platform::ui::Window* ForegroundWindow() override;
  std::unique_ptr<platform::ui::Sound> OpenSound(const std::string& path) override;
  std::vector<platform::ui::Bitmap> ExtractIcons(const std::string& path, std::size_t limit) override;
  int SystemMajorVersion() override { return system_major_version; }
  int IconSpacing() override { return 75; }
  void ShowHelpText(platform::ui::Window* beside, const std::string& text) override;
  void Post(std::function<void()> task) override;

 private:
  class Sound;

  void Play(platform::ui::Modal& modal);
  void Cancel(platform::ui::Modal& modal);
  void LayOut(platform::ui::FileDialog& dialog);
  std::string ChosenPath(const std::string& title, bool must_exist, platform::ui::FileDialog* dialog);

  platform::ui::Desktop* before_;
  std::vector<platform::ui::Window*> open_;
  std::mutex mutex_;
  std::vector<std::function<void()>> posted_;
  bool forgets_posted_ = false;
  std::function<void()> sound_finished_;
};

}  // namespace desktops
