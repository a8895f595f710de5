// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/ui/dialog.h"
#include "platform/ui/lists.h"

namespace agentui {

/// Offers the entries of a recently used list.
class RecentDialog : public platform::ui::Dialog {
 public:
  /// `empty_text` is what the dialog says when there are no entries.
  RecentDialog(platform::ui::Window* parent, std::string caption, std::vector<std::string> entries,
               std::string empty_text);

  /// The entry chosen, or "" when the dialog was cancelled.
  const std::string& Chosen() const { return chosen_; }

 private:
  void OnInitDialog() override;
  void OnOk() override;
  void OnHelp(const platform::ui::HelpEvent& event) override;
  void UpdateOk();

  std::vector<std::string> entries_;
  std::string chosen_;
  platform::ui::StaticText empty_;
  platform::ui::ListBox list_;
  platform::ui::OkCancelButtons buttons_;
};

}  // namespace agentui
