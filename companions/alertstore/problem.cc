// SPDX-License-Identifier: MIT
#include "companions/alertstore/problem.h"

#include <cerrno>
#include <utility>

#include "companions/alertstore/status_text.h"

namespace alertstore {
namespace {

Problem& Last() {
  static thread_local Problem last;
  return last;
}

}  // namespace

const Problem& LastProblem() { return Last(); }

std::string ProblemText(Status status) { return Last().status == status ? Last().text : StatusText(status); }

Status Fail(Status status, std::string text) {
  Last() = {status, std::move(text)};
  return status;
}

Status Fail(const platform::FileError& error) {
  return Fail(error.number == 0 ? kUnsafe : StatusOfErrorNumber(error.number), error.text);
}

Status StatusOfErrorNumber(int number) {
  switch (number) {
    case ENOSPC:
    case EDQUOT:
      return kDiskFull;
    case EACCES:
    case EPERM:
      return kNoPermission;
    case EROFS:
      return kReadOnly;
    case ENAMETOOLONG:
      return kPathTooLong;
    case ENOMEM:
      return kNoMemory;
    default:
      return kIoError;
  }
}

}  // namespace alertstore
