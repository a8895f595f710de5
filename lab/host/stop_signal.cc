// SPDX-License-Identifier: MIT
#include "lab/host/stop_signal.h"

#include <signal.h>
#include <sys/signalfd.h>

namespace lab {
namespace {

int OpenSignals() {
  sigset_t set;
  sigemptyset(&set);
  for (const int number : {SIGTERM, SIGINT, SIGHUP}) sigaddset(&set, number);
  sigprocmask(SIG_BLOCK, &set, nullptr);
  return signalfd(-1, &set, SFD_NONBLOCK | SFD_CLOEXEC);
}

}  // namespace

StopSignal::StopSignal(std::function<void()> stop) : signals_(OpenSignals()), stop_(std::move(stop)) {}

}  // namespace lab
