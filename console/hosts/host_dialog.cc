// SPDX-License-Identifier: MIT
#include "console/hosts/host_dialog.h"

#include <cctype>

#include "companions/ctxhelp/ctxhelp.h"
#include "platform/ui/message.h"

namespace hosts {

void ShowHelp(ui::Form& form, const ui::HelpEvent& event, ctxhelp::HelpPage page) {
  ctxhelp::MakeContextHelp()->QEVDlgOnContextHelp(form, event, ctxhelp::HelpTableOf(form, page).data());
}

std::string Trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// What failed is told as a part of a sentence by those who log it, too.
std::string Sentence(std::string text) {
  if (!text.empty()) text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
  return text.empty() || text.ends_with('.') ? text : text + ".";
}

void Tell(const std::string& text) { ui::MessageBox(Sentence(text)); }

bool Ask(const std::string& question) {
  return ui::MessageBox(question, ui::Buttons::kNoYes, ui::MessageIcon::kQuestion) == ui::Answer::kYes;
}

}  // namespace hosts
