// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "lab/faults.h"
#include "lab/host/source.h"
#include "platform/base/descriptor.h"

namespace lab {

/// A pseudo-terminal as a serial port: a session sits at its end. Whoever closes the port has dropped the line that says
/// that the computer is there, so the session hangs up.
class Pty : public Source {
 public:
  /// Path() is "" when no pseudo-terminal can be had.
  Pty(std::unique_ptr<Session> session, const DeviceFaults& faults);

  const std::string& Path() const { return path_; }

  int Get() const override { return takes_bytes_ ? master_.Get() : -1; }
  short Wants() const override { return static_cast<short>(POLLIN | (unsent_.empty() ? 0 : POLLOUT)); }
  void Ready(short events, Millis now) override;
  bool Pass(Millis now) override;
  bool Waits() const override { return session_->Waits(); }

 private:
  void Read(Millis now);
  void Write();

  const platform::Descriptor master_;
  const std::unique_ptr<Session> session_;
  const DeviceFaults& faults_;
  std::string path_, unsent_;
  bool takes_bytes_ = true, is_open_ = false;
  Millis look_again_ = 0;
};

}  // namespace lab
