// SPDX-License-Identifier: MIT
#include "lab/session.h"

namespace lab {

std::string Session::Due(Millis now) {
  Pass(now);
  std::string bytes;
  while (!outbox_.empty() && outbox_.front().first <= now) {
    bytes += outbox_.front().second;
    outbox_.pop_front();
  }
  return bytes;
}

}  // namespace lab
