// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <chrono>
#include <string>
#include <vector>

#include "console/site/console_settings.h"
#include "platform/base/descriptor.h"

namespace site {

/// A running `alertlab` (docs/laboratory.md). It ends with its object, and by itself where this process ends without one: its
/// standard input is then at its end.
class LaboratoryProcess {
 public:
  /// Starts the program that ALERTING_LABORATORY names, else the one beside this program, else the one in PATH. Throws a
  /// Failure when it is not installed, ends at once, or has not opened its devices within `limit`.
  explicit LaboratoryProcess(std::chrono::milliseconds limit);
  ~LaboratoryProcess();
  LaboratoryProcess(const LaboratoryProcess&) = delete;
  LaboratoryProcess& operator=(const LaboratoryProcess&) = delete;

  /// Where its devices are.
  const Json& Places() const { return places_; }
  /// Becomes readable when something arrives, and when it ends.
  int Arrivals() const { return output_.Get(); }
  /// What has arrived since the last call, an object each.
  std::vector<Json> TakeArrivals();
  /// Whether it has ended by itself, as far as TakeArrivals has seen.
  bool HasEnded() const { return has_ended_; }
  /// Gives it a line of its control and answers what it says to that.
  std::string Ask(const std::string& line);
  pid_t Process() const { return process_; }

 private:
  void Start();
  void WaitUntilReady(std::chrono::milliseconds limit);
  void End();

  Json places_;
  pid_t process_ = -1;
  platform::Descriptor control_, output_, errors_;
  std::string line_;  ///< what has come of a line that is not whole
  bool has_ended_ = false;
};

}  // namespace site
