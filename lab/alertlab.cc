// SPDX-License-Identifier: MIT
// alertlab: pretended devices to rehearse the delivery of alerts with.
#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <iostream>

#include "lab/laboratory.h"

namespace {

/// A device must not take the place of a standard stream that is closed.
void ReserveStandardStreams() {
  int fd = open("/dev/null", O_RDWR);
  while (fd >= 0 && fd < STDERR_FILENO) fd = open("/dev/null", O_RDWR);
  if (fd > STDERR_FILENO) close(fd);
}

}  // namespace

int main(int argc, char** argv) {
  ReserveStandardStreams();
  std::signal(SIGPIPE, SIG_IGN);
  lab::Options options;
  int exit_code = 0;
  if (!lab::ParseOptions(argc, argv, options, exit_code)) return exit_code;
  lab::Laboratory laboratory(options);
  if (const std::string problem = laboratory.Open(); !problem.empty()) {
    std::cerr << "alertlab: " << problem << "\n";
    return 1;
  }
  laboratory.Run();
  return 0;
}
