// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "companions/ctxhelp/help_pages.h"
#include "platform/ui/dialog.h"
#include "platform/ui/property_sheet.h"

namespace hosts {

namespace ui = platform::ui;

/// Answers a help request in a window of the console's own with the texts of its help page.
void ShowHelp(ui::Form& form, const ui::HelpEvent& event, ctxhelp::HelpPage page);

/// A dialog of the console's own.
class HostDialog : public ui::Dialog {
 public:
  HostDialog(ui::Window* parent, std::string caption, ctxhelp::HelpPage help_page)
      : Dialog(parent, std::move(caption)), help_page_(help_page) {}
  void OnHelp(const ui::HelpEvent& event) override { ShowHelp(*this, event, help_page_); }

 private:
  const ctxhelp::HelpPage help_page_;
};

/// A page of a wizard of the console's own.
class HostPage : public ui::PropertyPage {
 public:
  HostPage(std::string caption, ctxhelp::HelpPage help_page)
      : PropertyPage(std::move(caption)), help_page_(help_page) {}
  void OnHelp(const ui::HelpEvent& event) override { ShowHelp(*this, event, help_page_); }

 private:
  const ctxhelp::HelpPage help_page_;
};

/// What was typed, without the blanks around it.
std::string Trimmed(const std::string& text);

/// The text as a person reads it, with a capital letter and a full stop.
std::string Sentence(std::string text);
/// Says something that keeps a window from going on, as a sentence, with the console's title.
void Tell(const std::string& text);
/// The same with Yes and No, of which No is the default.
bool Ask(const std::string& question);

}  // namespace hosts
