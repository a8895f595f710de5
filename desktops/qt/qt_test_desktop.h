// SPDX-License-Identifier: MIT
#pragma once

#include "desktops/qt/qt_desktop.h"
#include "desktops/scripted/script.h"

class QFileDialog;
class QMessageBox;

namespace desktops {

namespace qt {
class ModalWindow;
}

/// Real windows that a script's stories are played in. Each window, message and file dialog takes the next
/// expectation when it opens; messages are shown and their button is clicked. Sleeps are recorded, not slept.
class QtTestDesktop : public QtDesktop {
 public:
  /// Makes the process's application where there is none. Qt cannot make a second one, so it stays.
  static void EnsureApplication();

  QtTestDesktop();
  ~QtTestDesktop() override;

  Script script;
  std::string last_help_text;
  int system_major_version = 10;

  /// What is cut in the window in front.
  std::vector<std::string> CutControls() const;
  bool ShowsWaitCursor() const;

  platform::ui::Answer ShowMessage(const platform::ui::Message& message) override;
  /// What others post arrives meanwhile, as it does while a real desktop sleeps.
  void Sleep(std::uint32_t milliseconds) override;
  void Beep() override { ++script.beeps; }
  int SystemMajorVersion() override { return system_major_version; }
  void ShowHelpText(platform::ui::Window* beside, const std::string& text) override;

 protected:
  int Exec(QDialog& window) override;

 private:
  void Play(QDialog& window);
  void PlayWindow(qt::ModalWindow& window);
  void PlayMessage(QMessageBox& box);
  void PlayFileDialog(QFileDialog& dialog);
  /// Enters the path into the name field, then plays what is done in the preview area. False where the path
  /// cannot be chosen.
  bool PlayChoice(QFileDialog& dialog, const Script::Expectation& expected);

  const platform::ui::Message* message_ = nullptr;
};

}  // namespace desktops
