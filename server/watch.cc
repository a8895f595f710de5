// SPDX-License-Identifier: MIT
#include "server/watch.h"

#include <poll.h>
#include <pthread.h>
#include <sys/inotify.h>
#include <sys/signalfd.h>

#include <csignal>

namespace alertserver {
namespace {

sigset_t StopSignals() {
  sigset_t set;
  sigemptyset(&set);
  sigaddset(&set, SIGTERM);
  sigaddset(&set, SIGINT);
  return set;
}

/// Reads away what is there; how much does not matter.
bool Drain(int fd) {
  char bytes[4096];
  bool any = false;
  while (read(fd, bytes, sizeof bytes) > 0) any = true;
  return any;
}

}  // namespace

void HoldSignals() {
  const sigset_t set = StopSignals();
  pthread_sigmask(SIG_BLOCK, &set, nullptr);
  std::signal(SIGPIPE, SIG_IGN);
}

Watch::Watch(const std::string& directory) : files_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
  const sigset_t set = StopSignals();
  signals_ = platform::Descriptor(signalfd(-1, &set, SFD_NONBLOCK | SFD_CLOEXEC));
  // Whoever wrote a file still holds it when it gets its name, and lets go of it after that.
  if (files_.IsOpen()) inotify_add_watch(files_.Get(), directory.c_str(), IN_MOVED_TO | IN_CLOSE_WRITE);
}

void Watch::Wait(std::chrono::milliseconds limit) {
  pollfd both[] = {{files_.Get(), POLLIN, 0}, {signals_.Get(), POLLIN, 0}};
  poll(both, 2, static_cast<int>(limit.count()));
  Drain(files_.Get());
  if (Drain(signals_.Get())) stop_ = true;
}

}  // namespace alertserver
