// SPDX-License-Identifier: MIT
#include "lab/host/log.h"

#include <fcntl.h>

#include <cerrno>
#include <cstring>

#include "platform/base/utc_time.h"

namespace lab {

bool WriteAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(file, bytes.data(), bytes.size());
    if (count < 0 && errno != EINTR) return false;
    if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

bool Log::KeepIn(const std::string& path) {
  file_ =
      platform::Descriptor(open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
  return file_.IsOpen();
}

/// A file that cannot be written to any more is said once, and left.
void Log::Show(const Arrival& arrival) {
  const std::string time = platform::ToUtcText(std::chrono::system_clock::now());
  const std::string line = ToJsonLine(arrival, time);
  WriteAll(STDOUT_FILENO, as_json_ ? line : ToText(arrival, time));
  if (!file_.IsOpen() || WriteAll(file_.Get(), line)) return;
  WriteAll(STDERR_FILENO, "alertlab: cannot keep what arrives: " + std::string(std::strerror(errno)) + "\n");
  file_.Close();
}

}  // namespace lab
