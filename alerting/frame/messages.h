// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "alerting/frame/strings.h"
#include "platform/ui/message.h"

namespace alerting {

/// Shows a text of the string table in a message box with OK and the library's title.
void ShowMessage(int string_id, platform::ui::Window* parent = nullptr);

/// The same, for a failing operation that answers false: `return Fail(kIds...)`.
bool Fail(int string_id, platform::ui::Window* parent = nullptr);

/// Asks a question of the string table with Yes and No: true for Yes.
bool Ask(int string_id, platform::ui::Window* parent = nullptr);

/// Shows a record-store status as "%08x is the error code.".
void ShowErrorCode(std::uint32_t status);

}  // namespace alerting
