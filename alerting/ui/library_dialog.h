// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "companions/ctxhelp/help_pages.h"
#include "platform/ui/dialog.h"

namespace alerting {

namespace ui = platform::ui;

/// A dialog of the library: it answers help requests with the texts of its help page.
class CLibraryDialog : public ui::Dialog {
 public:
  void OnHelp(const ui::HelpEvent& event) override;

 protected:
  CLibraryDialog(ui::Window* parent, std::string caption, ctxhelp::HelpPage help_page)
      : Dialog(parent, std::move(caption)), help_page_(help_page) {}

 private:
  const ctxhelp::HelpPage help_page_;
};

}  // namespace alerting
