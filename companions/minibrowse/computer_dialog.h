// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "companions/alertstore/computers.h"
#include "platform/ui/dialog.h"
#include "platform/ui/lists.h"

namespace minibrowse {

/// Offers the computers that the site knows.
class ComputerDialog : public platform::ui::Dialog {
 public:
  /// `empty_text` is what the dialog says when there are no computers.
  ComputerDialog(platform::ui::Window* parent, std::vector<alertstore::Computer> computers,
                 std::string empty_text);

  /// Null when the dialog was cancelled.
  const platform::GUID& Chosen() const { return chosen_; }

 private:
  void OnInitDialog() override;
  void OnOk() override;
  void OnHelp(const platform::ui::HelpEvent& event) override;

  const std::vector<alertstore::Computer> computers_;
  platform::GUID chosen_{};
  platform::ui::StaticText empty_;
  platform::ui::ListBox list_;
  platform::ui::OkCancelButtons buttons_;
};

}  // namespace minibrowse
