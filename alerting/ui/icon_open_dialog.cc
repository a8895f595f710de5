// SPDX-License-Identifier: MIT
#include "alerting/ui/icon_open_dialog.h"

#include <algorithm>
#include <filesystem>

#include "alerting/frame/strings.h"

namespace alerting {
namespace {

constexpr int kIdIconStrip = 100;
constexpr int kUsualWidth = 640, kUsualHeight = 420;
constexpr int kPreviewHeight = kUsualHeight - kUsualHeight * 26 / 35;

}  // namespace

CIconOpenDialog::CIconOpenDialog(ui::Window* parent, std::string initial, std::uint32_t* index)
    : CPathDialog(parent, std::move(initial), {kIdsIconFilters, kIdsIconExtension, kIdsIconTitle},
                  ctxhelp::kHelpChooseIcon),
      index_(index),
      strip_(*this, kIdIconStrip, index != nullptr ? *index : 0) {
  if (!CanPreview()) return;
  SetPreviewSize(kUsualWidth, kPreviewHeight);
  CIconOpenDialog::OnLayout({0, 0, kUsualWidth, kUsualHeight});
}

// The strip stands at 26 of 35 parts of the dialog's height and is 3 of 14 parts high, within the preview area, which
// takes the lowest 9 parts of a dialog of the usual size.
void CIconOpenDialog::OnLayout(const ui::Rect& dialog) {
  const int top = std::max(dialog.height * 26 / 35 - (dialog.height - kPreviewHeight), 0);
  const int height = std::min(dialog.height * 3 / 14, kPreviewHeight - top);
  if (HasPreview()) Place(strip_, dialog.width / 100 + 1, top, dialog.width * 49 / 50, height);
}

// The same name may be told twice; it would select the first icon again.
void CIconOpenDialog::OnFileHighlighted(const std::string& path) {
  if (path == shown_) return;
  shown_ = path;
  std::error_code error;
  std::filesystem::is_regular_file(path, error) ? strip_.Load(path) : strip_.Clear();
}

void CIconOpenDialog::OnFileAccepted(const std::string& path) {
  CPathDialog::OnFileAccepted(path);
  if (index_ != nullptr && HasPreview()) *index_ = static_cast<std::uint32_t>(strip_.Selected());
}

}  // namespace alerting
