// SPDX-License-Identifier: MIT
#include "server/verdict.h"

namespace alertserver {

std::string_view WordOf(Verdict verdict) {
  constexpr std::string_view kWords[] = {"delivered", "sent", "refused", "notReached", "notPossible"};
  return kWords[static_cast<std::size_t>(verdict)];
}

}  // namespace alertserver
