// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "companions/agentui/spool.h"

namespace agentui {

/// Alert servers that this console started, each for one test.
class StartedServers {
 public:
  /// Starts one for the job, where this machine is one of its alert managers and no alert server is there that serves
  /// it. The program is the one that ALERTING_SERVER names, else `alertserver` beside this program, else in PATH; where
  /// there is none, or it cannot be started, the test stays unanswered.
  void StartWhereNeeded(const std::string& spool, const Job& job);
  /// Takes note of those that have ended.
  void TakeNote();

 private:
  std::vector<pid_t> running_;
};

}  // namespace agentui
