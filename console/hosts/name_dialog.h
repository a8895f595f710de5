// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "console/hosts/host_dialog.h"
#include "platform/ui/edit.h"

namespace hosts {

/// What is asked for when something gets a name.
struct NameQuestion {
  std::string caption;
  std::string label;  ///< of the field, with its access key
  std::string what;   ///< begins what is wrong with a name, as in "a user's name"
  std::string name;   ///< what the field begins with
  std::size_t limit;  ///< in bytes
  ctxhelp::HelpPage help_page;
  /// Takes the name and answers "", or why it cannot be taken; the person may then correct it.
  std::function<std::string(const std::string&)> take;
};

/// Runs the dialog until a name was taken, or it was cancelled: false. Blanks around the name count for nothing.
bool AskName(ui::Window* parent, const NameQuestion& question);

}  // namespace hosts
