// SPDX-License-Identifier: MIT
#include "alerting/frame/messages.h"

#include <cstdio>

namespace alerting {

void ShowMessage(int string_id, platform::ui::Window* parent) {
  const platform::ModuleScope scope(TheModule());
  platform::ui::MessageBox(Text(string_id), platform::ui::Buttons::kOk, platform::ui::MessageIcon::kWarning,
                           parent);
}

bool Fail(int string_id, platform::ui::Window* parent) {
  ShowMessage(string_id, parent);
  return false;
}

bool Ask(int string_id, platform::ui::Window* parent) {
  const platform::ModuleScope scope(TheModule());
  return platform::ui::MessageBox(Text(string_id), platform::ui::Buttons::kYesNo,
                                  platform::ui::MessageIcon::kQuestion,
                                  parent) == platform::ui::Answer::kYes;
}

void ShowErrorCode(std::uint32_t status) {
  char text[64];
  std::snprintf(text, sizeof(text), Text(kIdsErrorCode).c_str(), status);
  const platform::ModuleScope scope(TheModule());
  platform::ui::MessageBox(text);
}

}  // namespace alerting
