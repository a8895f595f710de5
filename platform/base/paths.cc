// SPDX-License-Identifier: MIT
#include "platform/base/paths.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <mutex>
#include <utility>

#include "platform/base/private_file.h"

namespace platform {
namespace {

std::string EnvironmentValue(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

// The value of the environment that names the directory.
std::string NamedDirectory() {
  if (std::string own = EnvironmentValue("ALERTING_DATA"); !own.empty()) return own;
  // A relative value counts as none: XDG has it ignored.
  if (std::string xdg = EnvironmentValue("XDG_DATA_HOME"); xdg.starts_with('/')) return xdg + "/alerting";
  if (std::string home = EnvironmentValue("HOME"); !home.empty()) return home + "/.local/share/alerting";
  return "./alerting-data";
}

std::string Absolute(const std::string& path) {
  std::error_code error;
  const std::filesystem::path absolute = std::filesystem::absolute(path, error);
  return error ? path : absolute.lexically_normal().string();
}

// What a relative name meant when it was first met.
const std::string& FirstMeaning(const std::string& relative) {
  static std::mutex mutex;
  static auto* meanings = new std::map<std::string, std::string>;  // outlives static objects that ask
  const std::lock_guard lock(mutex);
  return meanings->try_emplace(relative, Absolute(relative)).first->second;
}

bool MakeDirectory(const std::string& path) {
  if (mkdir(path.c_str(), 0700) != 0) return errno == EEXIST;
  const Descriptor made(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  if (made.IsOpen()) GiveToDirectoryOwner(made.Get(), path);
  FlushDirectory(ParentOf(path));
  return true;
}

}  // namespace

std::string DataDirectory() {
  const std::string named = NamedDirectory();
  return named.starts_with('/') ? named : FirstMeaning(named);
}

bool ReadWholeFile(const std::string& path, std::string& bytes) {
  const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!file.IsOpen()) return false;
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
  int failure = ENOTDIR;
  for (std::size_t slash = path.find('/', 1);; slash = path.find('/', slash + 1)) {
    if (!MakeDirectory(path.substr(0, slash))) {  // the last check tells what came of it
      failure = errno;
      break;
    }
    if (slash == std::string::npos) break;
  }
  std::error_code error;
  const bool there = std::filesystem::is_directory(path, error);
  if (!there) errno = failure;
  return there;
}

}  // namespace platform
