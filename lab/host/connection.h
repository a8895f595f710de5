// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "lab/host/source.h"
#include "platform/base/descriptor.h"

namespace lab {

/// A session on a TCP connection. It ends with either side, after two minutes in which nothing arrives, and after ten
/// minutes whatever happens.
class Connection : public Source {
 public:
  Connection(platform::Descriptor socket, std::unique_ptr<Session> session, Millis now);

  int Get() const override { return socket_.Get(); }
  short Wants() const override;
  void Ready(short events, Millis now) override;
  bool Pass(Millis now) override;
  bool Waits() const override { return session_->Waits(); }

 private:
  void Read(Millis now);
  void Write();

  const platform::Descriptor socket_;
  const std::unique_ptr<Session> session_;
  const Millis opened_;
  Millis heard_;
  std::string unsent_;
  bool is_closed_ = false;
};

}  // namespace lab
