// SPDX-License-Identifier: MIT
#include "server/log.h"

#include <unistd.h>

#include <chrono>
#include <string>

#include "platform/base/utc_time.h"
#include "server/plain_text.h"

namespace alertserver {

void Log(std::string_view line) {
  const std::string text =
      platform::ToUtcText(std::chrono::system_clock::now()) + " alertserver: " + PlainLine(line, 1000) + "\n";
  // One call, so that lines of several threads do not mix. There is nobody to tell that it failed.
  [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, text.data(), text.size());
}

}  // namespace alertserver
