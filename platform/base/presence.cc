// SPDX-License-Identifier: MIT
#include "platform/base/presence.h"

#include <fcntl.h>

#include <cstdint>

namespace platform {
namespace {

/// Each name has a byte of the file of its own, by the 64-bit FNV-1a hash of its letters in lower case. Half the numbers
/// are no offsets.
off_t ByteOf(std::string_view name) {
  std::uint64_t hash = 0xCBF29CE484222325U;
  for (const char c : name) {
    hash ^= static_cast<std::uint8_t>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
    hash *= 0x100000001B3U;
  }
  return static_cast<off_t>(hash >> 2);
}

struct flock LockOn(std::string_view name, short type) {
  struct flock lock {};
  lock.l_type = type;
  lock.l_whence = SEEK_SET;
  lock.l_start = ByteOf(name);
  lock.l_len = 1;
  return lock;
}

}  // namespace

Presence::Presence(const std::string& path, std::string_view name) : file_(OpenPrivateFile(path, error_)) {
  struct flock shared = LockOn(name, F_RDLCK);
  if (!file_.IsOpen() || fcntl(file_.Get(), F_OFD_SETLK, &shared) == 0) return;
  error_ = SystemError("lock", path);
  file_.Close();
}

bool IsPresent(const std::string& path, std::string_view name) {
  FileError ignored;
  const Descriptor file = OpenExistingPrivateFile(path, ignored);
  struct flock asked = LockOn(name, F_WRLCK);
  return file.IsOpen() && fcntl(file.Get(), F_OFD_GETLK, &asked) == 0 && asked.l_type != F_UNLCK;
}

}  // namespace platform
