// SPDX-License-Identifier: MIT
#include "server/serial/line_lock.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include "platform/base/descriptor.h"
#include "platform/base/paths.h"

namespace alertserver {
namespace {

std::string PathOf(std::string device, const std::string& directory) {
  if (device.starts_with("/dev/")) device.erase(0, 5);
  std::replace(device.begin(), device.end(), '/', '_');
  return directory + "/LCK.." + device;
}

/// 0 for a file that names no process: one that was cut off while it was made.
int HolderIn(const std::string& path) {
  std::string text;
  if (!platform::ReadWholeFile(path, text)) return 0;
  return static_cast<int>(std::strtol(text.c_str(), nullptr, 10));
}

bool IsAlive(int process) { return process > 0 && (kill(process, 0) == 0 || errno == EPERM); }

}  // namespace

LineLock::LineLock(const std::string& device, const std::string& directory)
    : path_(PathOf(device, directory)) {
  is_ours_ = Make();
  if (!is_ours_ && errno == EEXIST) MakeOverDead();
}

void LineLock::MakeOverDead() {
  const int holder = HolderIn(path_);
  if (!IsAlive(holder) && unlink(path_.c_str()) == 0) is_ours_ = Make();
  if (!is_ours_ && IsAlive(holder)) holder_ = holder;
}

/// Ten characters and an end of line, as all who look at such files expect.
bool LineLock::Make() {
  const platform::Descriptor file(open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644));
  if (!file.IsOpen()) return false;
  char text[16];
  const int size = std::snprintf(text, sizeof text, "%10d\n", static_cast<int>(getpid()));
  return write(file.Get(), text, static_cast<std::size_t>(size)) == size;
}

LineLock::~LineLock() {
  if (is_ours_) unlink(path_.c_str());
}

}  // namespace alertserver
