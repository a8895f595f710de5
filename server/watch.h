// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>

#include "platform/base/descriptor.h"

namespace alertserver {

/// Keeps SIGTERM and SIGINT from ending this process and the threads it starts afterwards: they are told by a Watch. A
/// program that closed its end of a pipe is no reason to end, either.
void HoldSignals();

/// Waits for files to come into a directory, and for the signals that are held.
class Watch {
 public:
  explicit Watch(const std::string& directory);

  /// Waits until a file came, a signal came or the time is over; hears nothing of files where the system has no watch to
  /// give, so nobody should wait for long.
  void Wait(std::chrono::milliseconds limit);
  bool IsAskedToStop() const { return stop_; }

 private:
  platform::Descriptor files_, signals_;
  bool stop_ = false;
};

}  // namespace alertserver
