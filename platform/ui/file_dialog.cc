// SPDX-License-Identifier: MIT
#include "platform/ui/file_dialog.h"

#include "platform/ui/desktop.h"

namespace platform::ui {

int FileDialog::RunModal() { return Desktop::Current().ChooseFile(*this) ? kOk : kCancel; }

void FileDialog::SetHighlighted(const std::string& path) {
  highlighted_ = path;
  OnFileHighlighted(path);
}

void FileDialog::SetPreviewSize(int width, int height) {
  preview_width_ = width;
  preview_height_ = height;
}

void FileDialog::Place(Control& control, int x, int y, int width, int height) {
  std::erase_if(placed_, [&control](const PlacedControl& placed) { return placed.control == &control; });
  placed_.push_back({&control, x, y, width, height});
}

int FolderDialog::RunModal() { return Desktop::Current().ChooseFolder(*this) ? kOk : kCancel; }

}  // namespace platform::ui
