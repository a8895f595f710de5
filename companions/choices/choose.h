// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "companions/ctxhelp/help_pages.h"
#include "platform/ui/window.h"

/// The dialog in which a person takes one of the texts that a component knows.
namespace choices {

struct Offer {
  std::string caption;
  std::string list_label;
  std::vector<std::string> texts;
  /// What the dialog says when there are no texts.
  std::string empty_text;
  ctxhelp::HelpPage help_page;
  /// Shows the texts in alphabetical order instead of their own.
  bool sorted = false;
};

/// Runs the dialog. Answers the index of the chosen text among the offer's, or nothing when it was cancelled.
std::optional<std::size_t> Choose(platform::ui::Window* parent, const Offer& offer);

}  // namespace choices
