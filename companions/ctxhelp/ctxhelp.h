// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <vector>

#include "companions/ctxhelp/help_pages.h"
#include "platform/ui/form.h"

namespace ctxhelp {

/// One row of a form's help table: the control with that id has that topic.
struct HelpPair {
  int control_id;
  int topic;
};

/// The help table of a form: the form itself, each of its controls, the end.
std::vector<HelpPair> HelpTableOf(const platform::ui::Form& form, HelpPage page);

/// The control id of a help table's first row, which names the form itself.
inline constexpr int kFormItself = -1;
/// The last row of every help table.
inline constexpr HelpPair kEndOfHelpTable{0, 0};

/// Shows help on the control that a person asked about.
class ContextHelp {
 public:
  virtual ~ContextHelp() = default;

  /// Answers a help request of `form` with the topic that `table` (ended by kEndOfHelpTable) has for the
  /// control asked about. A control without a row, or no control, gets the topic of the form itself.
  virtual void QEVDlgOnContextHelp(platform::ui::Form& form, const platform::ui::HelpEvent& event,
                                   const HelpPair* table) = 0;
};

/// The real component: shows the help texts among the resource files beside the control.
std::unique_ptr<ContextHelp> MakeContextHelp();

}  // namespace ctxhelp
