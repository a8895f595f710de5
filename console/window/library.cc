// SPDX-License-Identifier: MIT
#include "console/window/library.h"

#include "companions/alertstore/left_out.h"
#include "companions/alertstore/problem.h"

namespace alertconsole {

std::string StoresCannotBeOpened() {
  return "The record stores cannot be opened: " + alertstore::LastProblem().text +
         ".\n\nMend that, or name another data directory with --data.";
}

std::string LeftOutNote() {
  const std::string left_out = alertstore::DescribeLeftOut(alertstore::LeftOutRecords());
  return left_out.empty() ? left_out : left_out + ": restore a backup";
}

AlertingLibrary::AlertingLibrary(const std::string& path) {
  if (!library_.Load(path))
    throw StartFailure("The alerting library cannot be loaded: " + library_.Error() +
                       ". Install it beside this console, or name it with --library.");
  if (const std::string missing = site::FindCalls(library_, *this); !missing.empty())
    throw StartFailure("The alerting library has no function " + missing +
                       ". Install the library that belongs to this console.");
}

AlertingLibrary::~AlertingLibrary() { CloseDBs(); }

}  // namespace alertconsole
