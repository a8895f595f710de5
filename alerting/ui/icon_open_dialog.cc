// SPDX-License-Identifier: MIT
#include "alerting/ui/icon_open_dialog.h"

#include <filesystem>

#include "alerting/frame/strings.h"

namespace alerting {
namespace {

constexpr int kIdIconStrip = 100;

}  // namespace

CIconOpenDialog::CIconOpenDialog(ui::Window* parent, std::string initial, std::uint32_t* index)
    : CPathDialog(parent, std::move(initial), {kIdsIconFilters, kIdsIconExtension, kIdsIconTitle}),
      index_(index),
      strip_(*this, kIdIconStrip, index != nullptr ? *index : 0) {
  // The strip takes the lower part of a dialog of this size.
  constexpr int kWidth = 640, kHeight = 420, kTop = kHeight * 26 / 35;
  if (!CanPreview()) return;
  SetPreviewSize(kWidth, kHeight - kTop);
  Place(strip_, kWidth / 100 + 1, 0, kWidth * 49 / 50, kHeight * 3 / 14);
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
