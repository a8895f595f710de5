// SPDX-License-Identifier: MIT
#include "platform/base/paths.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <utility>

#include "platform/base/process_lock.h"

namespace platform {
namespace {

// How long a writer waits for another one of the same file.
constexpr std::chrono::seconds kWriterLimit(5);

std::string EnvironmentValue(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

// A file descriptor that is closed when its block is left.
class Descriptor {
 public:
  explicit Descriptor(int fd) : fd_(fd) {}
  ~Descriptor() {
    if (fd_ >= 0) close(fd_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  int Get() const { return fd_; }

 private:
  const int fd_;
};

bool WriteAll(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(fd, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

std::string ParentOf(const std::string& path) {
  const std::string parent = std::filesystem::path(path).parent_path();
  return parent.empty() ? "." : parent;
}

// Makes the rename itself last. File systems that cannot flush a directory answer EINVAL; the rename stands
// anyway.
bool FlushDirectory(const std::string& path) {
  Descriptor directory(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  return directory.Get() >= 0 && (fsync(directory.Get()) == 0 || errno == EINVAL);
}

// The mode comes first: what a killed writer left may have another one. The lock that the descriptor holds
// stays until it is closed, after the rename.
bool WriteAndFlush(int fd, const std::string& bytes, unsigned mode) {
  return fchmod(fd, mode) == 0 && ftruncate(fd, 0) == 0 && WriteAll(fd, bytes) && fsync(fd) == 0;
}

bool IsRegularFile(int fd) {
  struct stat opened {};
  return fstat(fd, &opened) == 0 && S_ISREG(opened.st_mode);
}

bool IsFileAt(const std::string& path, int fd) {
  struct stat named {};
  struct stat opened {};
  return lstat(path.c_str(), &named) == 0 && fstat(fd, &opened) == 0 && named.st_dev == opened.st_dev &&
         named.st_ino == opened.st_ino;
}

// The file of that name, locked, or -1. Whoever waited for another writer holds the file which that one has
// renamed meanwhile, and begins again with a file of its own.
int OpenLocked(const std::string& path) {
  const auto deadline = std::chrono::steady_clock::now() + kWriterLimit;
  for (;;) {
    const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600);
    if (fd < 0) return -1;
    const bool locked = IsRegularFile(fd) && LockOpenFile(fd, kWriterLimit) == LockOutcome::kHeld;
    if (locked && IsFileAt(path, fd)) return fd;
    close(fd);
    if (!locked || std::chrono::steady_clock::now() >= deadline) return -1;
  }
}

}  // namespace

std::string DataDirectory() {
  if (std::string own = EnvironmentValue("ALERTING_DATA"); !own.empty()) return own;
  // A relative value counts as none: XDG has it ignored.
  if (std::string xdg = EnvironmentValue("XDG_DATA_HOME"); xdg.starts_with('/')) return xdg + "/alerting";
  if (std::string home = EnvironmentValue("HOME"); !home.empty()) return home + "/.local/share/alerting";
  return "./alerting-data";
}

bool WriteFileAtomically(const std::string& path, const std::string& bytes, unsigned mode) {
  const std::string temporary = path + ".tmp";
  Descriptor file(OpenLocked(temporary));
  if (file.Get() < 0) return false;
  if (!WriteAndFlush(file.Get(), bytes, mode) || std::rename(temporary.c_str(), path.c_str()) != 0) {
    unlink(temporary.c_str());
    return false;
  }
  return FlushDirectory(ParentOf(path));
}

bool ReadWholeFile(const std::string& path, std::string& bytes) {
  Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (file.Get() < 0) return false;
  std::string read_so_far;
  char block[16384];
  for (;;) {
    const ssize_t count = read(file.Get(), block, sizeof block);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return false;
    if (count == 0) break;
    read_so_far.append(block, static_cast<std::size_t>(count));
  }
  bytes = std::move(read_so_far);
  return true;
}

bool MakeDirectories(const std::string& path) {
  for (std::size_t slash = path.find('/', 1);; slash = path.find('/', slash + 1)) {
    const std::string part = path.substr(0, slash);
    if (mkdir(part.c_str(), 0700) != 0 && errno != EEXIST) break;  // the last check tells what came of it
    if (slash == std::string::npos) break;
  }
  std::error_code error;
  return std::filesystem::is_directory(path, error);
}

}  // namespace platform
