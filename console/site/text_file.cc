// SPDX-License-Identifier: MIT
#include "console/site/text_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstring>

#include "console/site/failure.h"
#include "platform/base/descriptor.h"

namespace site {
namespace {

Failure Unreadable(const std::string& path) {
  if (errno == ENOENT || errno == ENOTDIR)
    return Failure(kNothingMatched, "there is no file " + path + ": correct its name");
  return Failure(kStoreFailure, "cannot read " + path + ": " + std::strerror(errno));
}

/// Does not wait for the writer of a pipe.
platform::Descriptor Open(const std::string& path) {
  platform::Descriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  if (!file.IsOpen()) throw Unreadable(path);
  struct stat status {};
  if (fstat(file.Get(), &status) != 0) throw Unreadable(path);
  if (!S_ISREG(status.st_mode)) throw Failure(kInvalid, path + " is no regular file: choose a file");
  return file;
}

/// Reads no more than one byte beyond the limit, however large the file is and becomes.
std::string ReadUpTo(const platform::Descriptor& file, const std::string& path, std::size_t most) {
  std::string bytes(most + 1, '\0');
  std::size_t have = 0;
  while (have < bytes.size()) {
    const ssize_t count = read(file.Get(), bytes.data() + have, bytes.size() - have);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) throw Unreadable(path);
    if (count == 0) break;
    have += static_cast<std::size_t>(count);
  }
  bytes.resize(have);
  return bytes;
}

}  // namespace

std::string ReadTextFile(const std::string& path, std::size_t limit) {
  constexpr std::size_t kMegabyte = std::size_t{1024} * 1024;
  std::string text = ReadUpTo(Open(path), path, limit * kMegabyte);
  if (text.size() > limit * kMegabyte)
    throw Failure(kInvalid, path + " is larger than " + std::to_string(limit) + " MB: split it");
  if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF"))
    throw Failure(kInvalid, path + " is written in UTF-16: save it as UTF-8");
  if (text.starts_with("\xEF\xBB\xBF")) text.erase(0, 3);
  return text;
}

}  // namespace site
