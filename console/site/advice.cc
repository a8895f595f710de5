// SPDX-License-Identifier: MIT
#include "console/site/advice.h"

#include <cstdio>

#include "companions/alertstore/problem.h"
#include "platform/base/paths.h"

namespace site {

const char* Advice(alertstore::Status status) {
  switch (status) {
    case alertstore::kNoPermission:
      return "; check the permissions or choose another directory with --data";
    case alertstore::kIoError:
    case alertstore::kReadOnly:
    case alertstore::kPathTooLong:
      return "; choose another directory with --data";
    case alertstore::kDiskFull:
      return "; make room and try again";
    case alertstore::kCorrupt:
      return "; put a backup in its place (\"alertctl restore FILE\")";
    case alertstore::kLockTimeout:
      return "; try again in a moment";
    case alertstore::kNotFound:
      return "; another console may have deleted it";
    default:
      return "";
  }
}

std::string FailureText(const std::string& what, alertstore::Status status, const std::string& cause) {
  char code[16];
  std::snprintf(code, sizeof code, "0x%x", status);
  return "cannot " + what + " in " + platform::DataDirectory() + ": " +
         (cause.empty() ? alertstore::ProblemText(status) : cause) + Advice(status) + " (status " + code +
         ")";
}

}  // namespace site
