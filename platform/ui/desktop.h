// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/ui/canvas.h"
#include "platform/ui/file_dialog.h"
#include "platform/ui/message.h"
#include "platform/ui/modal.h"

namespace platform::ui {

/// A sound that is playing or may be played. Destroying it stops it.
class Sound {
 public:
  virtual ~Sound() = default;
  /// False when the file cannot be played. `finished` runs on the user-interface thread at a successful end.
  virtual bool Play(std::function<void()> finished) = 0;
  virtual void Stop() = 0;
};

/// The one seam between the program and whoever shows it to a person. One desktop is current in a process.
/// The base is the desktop of a process without one: messages go to standard error, questions are answered
/// No, and modal windows end as cancelled.
class Desktop {
 public:
  virtual ~Desktop();

  static Desktop& Current();
  /// Makes `desktop` current, null the base again; answers the one before. Not owned.
  static Desktop* SetCurrent(Desktop* desktop);

  virtual int RunModal(Modal& modal);
  virtual Answer ShowMessage(const Message& message);
  virtual bool ChooseFile(FileDialog& dialog);
  virtual bool ChooseFolder(FolderDialog& dialog);

  /// The wait cursor is counted: each Show takes a Hide. Restore shows it again after a message replaced it.
  virtual void ShowWaitCursor();
  virtual void HideWaitCursor();
  virtual void RestoreWaitCursor();
  virtual void Sleep(std::uint32_t milliseconds);
  virtual void Beep();

  /// Nothing where the clipboard holds no text or cannot be opened.
  virtual std::optional<std::string> ClipboardText();
  virtual void SetClipboardText(const std::string& text);

  virtual Window* ForegroundWindow();
  /// Never null. The base's sounds cannot be played.
  virtual std::unique_ptr<Sound> OpenSound(const std::string& path);
  /// Up to `limit` icons of a file; empty where it has none. The base reads icon files, programs and
  /// dynamic libraries.
  virtual std::vector<Bitmap> ExtractIcons(const std::string& path, std::size_t limit);
  virtual int SystemMajorVersion();
  /// Pixels from icon to icon in an icon view.
  virtual int IconSpacing();

  /// Shows a help text beside the control that was asked about (null: in the middle of the active window).
  virtual void ShowHelpText(Window* beside, const std::string& text);

  /// Runs `task` on the user-interface thread, soon; may be called on any thread. The base runs it when the
  /// next modal window is opened.
  virtual void Post(std::function<void()> task);
};

/// Shows the wait cursor while it lives.
class WaitCursor {
 public:
  WaitCursor() { Desktop::Current().ShowWaitCursor(); }
  ~WaitCursor() { Desktop::Current().HideWaitCursor(); }
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
  void Restore() { Desktop::Current().RestoreWaitCursor(); }
};

}  // namespace platform::ui
