// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/base/guid.h"

namespace agentui {

/// What was tested: a service, with one of its users or, for files and speech, on a computer.
struct TestSubject {
  platform::GUID service{};  ///< null where this process did not send the test
  platform::GUID target{};   ///< null for tests to nobody
};

/// What is to be corrected after a test.
struct Correction {
  std::string field;   ///< as the report names it (docs/spool.md)
  std::string record;  ///< which of the field's list; "" where there is but one
  TestSubject subject;
};

/// Opens windows at fields. A host has its own windows around the library's, so it is the host that knows the way.
class Corrections {
 public:
  virtual ~Corrections() = default;
  /// Whether there is a window with the field. Opens nothing.
  virtual bool CanOpen(const Correction& correction) const = 0;
  /// Opens the window with the focus on the field, and comes back when it was closed or when an open one was turned there.
  /// False, after saying why, where it could not be opened: the report is shown again.
  virtual bool Open(const Correction& correction) = 0;
};

/// The results of a test offer "Correct..." while somebody is registered, who stays the caller's. Null ends that, as
/// unloading the library does. On the user-interface thread.
void RegisterCorrections(Corrections* corrections);
/// The one that is registered, or null.
Corrections* RegisteredCorrections();

}  // namespace agentui
