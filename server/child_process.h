// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "server/transport.h"

namespace alertserver {

/// How a program that was started ended.
struct ChildResult {
  enum class End { kExited, kKilled, kStopped, kNotStarted };

  End end = End::kNotStarted;
  int status = 0;      ///< the exit status, the signal, or the error number of the start
  std::string output;  ///< the beginning of what it wrote
};

/// Runs a program by its whole path, the first of `arguments`, without a shell, in a process group and with an
/// environment of its own (no secrets, no more than programs need), `input` on its standard input. What has not ended
/// when `limit` is over is killed with all that it started. No descriptor of this process is open in it.
ChildResult RunChild(const std::vector<std::string>& arguments, const std::string& input,
                     std::chrono::milliseconds limit);

/// The path of a program in PATH; "" where there is none.
std::string FindProgram(const std::string& name);

/// Puts the output into the transcript, line by line.
void NoteOutput(const ChildResult& result, Transcript& transcript);
/// A failed step that tells how the program ended. `what`: "player".
StepOutcome ChildFailure(const ChildResult& result, const std::string& what, Field field);

}  // namespace alertserver
