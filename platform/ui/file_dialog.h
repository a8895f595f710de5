// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/ui/form.h"
#include "platform/ui/rect.h"

namespace platform::ui {

/// A description with its patterns, "Programs" and "*.exe;*.com".
struct FileFilter {
  std::string description;
  std::string patterns;
};

/// A control of the preview area and the rectangle it was given there.
struct PlacedControl {
  Control* control;
  int x, y, width, height;
};

/// A modal choice of a file. A preview area may stand in it: a form whose controls are placed by rectangle.
class FileDialog : public Form {
 public:
  explicit FileDialog(Window* parent) : Form(parent, {}) {}

  std::string title, default_extension, initial_path, initial_directory;
  std::vector<FileFilter> filters;
  bool must_exist = true;
  bool keep_current_directory = false;

  /// kOk or kCancel; the chosen full path is in Path().
  int RunModal();
  const std::string& Path() const { return path_; }

  bool HasPreview() const { return preview_width_ > 0; }
  int PreviewWidth() const { return preview_width_; }
  int PreviewHeight() const { return preview_height_; }
  const std::vector<PlacedControl>& Preview() const { return placed_; }

  /// Told by the desktop when the dialog opens and when it is resized: the whole dialog, in its own
  /// coordinates. The preview area spans its width below the file list; controls may be placed anew.
  virtual void OnLayout(const Rect& /*dialog*/) {}
  /// Told by the desktop, for the file that the dialog opens with too. Highlighted: another file name stands in the dialog. Accepted: the name was taken.
  virtual void OnFileHighlighted(const std::string& /*path*/) {}
  virtual void OnFileAccepted(const std::string& path) { path_ = path; }
  /// The file highlighted now, or "".
  const std::string& Highlighted() const { return highlighted_; }
  void SetHighlighted(const std::string& path);

 protected:
  void SetPreviewSize(int width, int height);
  /// Gives the control its rectangle in the preview area, in place of one that it had.
  void Place(Control& control, int x, int y, int width, int height);

 private:
  std::string path_, highlighted_;
  int preview_width_ = 0, preview_height_ = 0;
  std::vector<PlacedControl> placed_;
};

/// A modal choice of a folder of the file system.
class FolderDialog {
 public:
  FolderDialog(Window* parent, std::string title) : parent_(parent), title_(std::move(title)) {}
  /// kOk or kCancel; the chosen folder is in Path().
  int RunModal();
  const std::string& Path() const { return path_; }
  const std::string& Title() const { return title_; }
  Window* Parent() const { return parent_; }
  void SetPath(std::string path) { path_ = std::move(path); }

 private:
  Window* parent_;
  std::string title_, path_;
};

}  // namespace platform::ui
