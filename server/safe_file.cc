// SPDX-License-Identifier: MIT
#include "server/safe_file.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "platform/base/private_file.h"

namespace alertserver {
namespace {

bool Fail(std::string& problem) {
  problem = std::strerror(errno);
  return false;
}

}  // namespace

platform::Descriptor OpenSafeFile(const std::string& path, std::string& problem) {
  problem.clear();
  for (;;) {
    platform::FileError error;
    if (!platform::CheckPrivateFile(path, error)) {
      problem = error.text;
      return platform::Descriptor();
    }
    platform::Descriptor file(open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!file.IsOpen()) {
      if (errno != ENOENT) problem = platform::SystemError("open", path).text;
      return file;
    }
    if (platform::IsFileAt(path, file.Get())) return file;  // else it was replaced behind the check
  }
}

bool ReadOpenFile(int file, std::size_t limit, std::string& text, std::string& problem) {
  text.clear();
  char block[16384];
  for (;;) {
    const ssize_t count = pread(file, block, sizeof block, static_cast<off_t>(text.size()));
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return Fail(problem);
    if (count == 0) return true;
    text.append(block, static_cast<std::size_t>(count));
    if (text.size() <= limit) continue;
    problem = "it is longer than " + std::to_string(limit) + " bytes";
    return false;
  }
}

bool ReadSafeFile(const std::string& path, std::size_t limit, std::string& text, std::string& problem) {
  const platform::Descriptor file = OpenSafeFile(path, problem);
  if (!file.IsOpen() && problem.empty()) problem = "there is no file " + path;
  return file.IsOpen() && ReadOpenFile(file.Get(), limit, text, problem);
}

}  // namespace alertserver
