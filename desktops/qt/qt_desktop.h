// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include "desktops/qt/wait_cursor.h"
#include "platform/ui/desktop.h"

namespace desktops {

/// The desktop of real windows. A QApplication must be there before it and outlive it. Makes itself current
/// while it lives. Windows are modal to the one that is active when they open.
class QtDesktop : public platform::ui::Desktop {
 public:
  QtDesktop();
  ~QtDesktop() override;

  int RunModal(platform::ui::Modal& modal) override;
  platform::ui::Answer ShowMessage(const platform::ui::Message& message) override;
  bool ChooseFile(platform::ui::FileDialog& dialog) override;
  bool ChooseFolder(platform::ui::FolderDialog& dialog) override;
  void ShowWaitCursor() override { wait_cursor_.Show(); }
  void HideWaitCursor() override { wait_cursor_.Hide(); }
  void RestoreWaitCursor() override { wait_cursor_.Restore(); }
  /// Goes on painting and running what was posted; a person's input is lost.
  void Sleep(std::uint32_t milliseconds) override;
  void Beep() override;
  std::optional<std::string> ClipboardText() override;
  void SetClipboardText(const std::string& text) override;
  platform::ui::Window* ForegroundWindow() override;
  std::unique_ptr<platform::ui::Sound> OpenSound(const std::string& path) override;
  std::vector<platform::ui::Bitmap> ExtractIcons(const std::string& path, std::size_t limit) override;
  int SystemMajorVersion() override;
  int IconSpacing() override;
  void ShowHelpText(platform::ui::Window* beside, const std::string& text) override;
  void Post(std::function<void()> task) override;

 protected:
  /// Shows a window and runs its event loop until it is closed. All modal windows go through here.
  virtual int Exec(QDialog& window);

 private:
  platform::ui::Desktop* before_;
  qt::WaitCursorCount wait_cursor_;
};

}  // namespace desktops
