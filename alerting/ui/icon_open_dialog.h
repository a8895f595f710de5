// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/ui/icon_strip.h"
#include "alerting/ui/path_dialog.h"

namespace alerting {

/// Picks one of the icons of a file.
class CIconOpenDialog : public CPathDialog {
 public:
  /// `index` is the icon to begin with, and gets the one chosen when a file is accepted. It may be null.
  CIconOpenDialog(ui::Window* parent, std::string initial, std::uint32_t* index);

  void OnLayout(const ui::Rect& dialog) override;
  void OnFileHighlighted(const std::string& path) override;
  void OnFileAccepted(const std::string& path) override;
  const CIconStrip& Strip() const { return strip_; }

 private:
  std::uint32_t* const index_;
  std::string shown_;
  CIconStrip strip_;
};

}  // namespace alerting
