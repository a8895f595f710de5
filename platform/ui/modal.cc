// SPDX-License-Identifier: MIT
#include <utility>

#include "platform/ui/desktop.h"
#include "platform/ui/meet_modal.h"

namespace platform::ui {

namespace {

std::function<void(Modal&)> g_meet;

/// The window may have ended before its turn comes.
void MeetLater(Modal& modal, std::function<void(Modal&)> meet) {
  const Handle handle = modal.AsWindow().GetHandle();
  Desktop::Current().Post([handle, meet = std::move(meet)] {
    auto* const there = dynamic_cast<Modal*>(Window::FromHandle(handle));
    if (there != nullptr && !there->Ended()) meet(*there);
  });
}

}  // namespace

int Modal::RunModal() {
  ended_ = false;
  result_ = kCancel;
  if (auto meet = std::exchange(g_meet, nullptr)) MeetLater(*this, std::move(meet));
  return Desktop::Current().RunModal(*this);
}

void MeetNextModal(const std::function<void()>& open, std::function<void(Modal&)> meet) {
  g_meet = std::move(meet);
  open();
  g_meet = nullptr;
}

void Modal::EndModal(int result) {
  if (ended_) return;
  ended_ = true;
  result_ = result;
  AsWindow().Notify(Change::kEnded);
}

}  // namespace platform::ui
