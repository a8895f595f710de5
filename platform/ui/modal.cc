// SPDX-License-Identifier: MIT
#include "platform/ui/modal.h"

#include "platform/ui/desktop.h"

namespace platform::ui {

int Modal::RunModal() {
  ended_ = false;
  result_ = kCancel;
  return Desktop::Current().RunModal(*this);
}

void Modal::EndModal(int result) {
  if (ended_) return;
  ended_ = true;
  result_ = result;
  AsWindow().Notify(Change::kEnded);
}

}  // namespace platform::ui
