// SPDX-License-Identifier: MIT
#pragma once

#include <poll.h>

#include "lab/session.h"

namespace lab {

/// Something open that the loop waits on.
class Source {
 public:
  virtual ~Source() = default;
  /// The descriptor; -1 while there is nothing to wait on.
  virtual int Get() const = 0;
  virtual short Wants() const { return POLLIN; }
  virtual void Ready(short events, Millis now) = 0;
  /// Called before each wait. False when the source is done with.
  virtual bool Pass(Millis) { return true; }
  /// True while Pass has something to do soon without anything arriving.
  virtual bool Waits() const { return false; }
};

}  // namespace lab
