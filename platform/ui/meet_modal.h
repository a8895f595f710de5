// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "platform/ui/modal.h"

namespace platform::ui {

/// Runs `open`, and `meet` with the first modal window that opens meanwhile, once it is there. So a program can go on in a
/// window that others make. Messages and file dialogs are not met.
void MeetNextModal(const std::function<void()>& open, std::function<void(Modal&)> meet);

}  // namespace platform::ui
