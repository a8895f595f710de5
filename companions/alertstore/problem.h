// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "companions/alertstore/status.h"
#include "platform/base/private_file.h"

// Callers of the stores learn from a status that something failed. Those who tell people about it ask here what it was.

namespace alertstore {

/// What failed last on this thread, and why, in words that can follow "because".
struct Problem {
  Status status = kOk;
  std::string text;
};

/// The last failure of an engine on this thread. A read that found nothing is none.
const Problem& LastProblem();

/// Why an operation that answered `status` failed: what LastProblem says where it is of that status, else StatusText.
std::string ProblemText(Status status);

/// For engines: notes a failure with its cause and answers its status.
Status Fail(Status status, std::string text);
/// The same for a file or directory that cannot be used.
Status Fail(const platform::FileError& error);
/// The status that stands for one of the system's error numbers.
Status StatusOfErrorNumber(int number);

}  // namespace alertstore
