// SPDX-License-Identifier: MIT
#pragma once

#include <netinet/in.h>

#include <deque>
#include <string>

#include "lab/arrival.h"
#include "lab/faults.h"
#include "lab/host/source.h"
#include "platform/base/descriptor.h"

namespace lab {

struct TrapSetup {
  std::string community;  ///< the one that is listened to; "" for any
  Millis slow = 2000;
};

/// Receives traps, and answers informs.
class TrapSocket : public Source {
 public:
  TrapSocket(platform::Descriptor socket, TrapSetup setup, DeviceFaults& faults, ArrivalSink sink)
      : socket_(std::move(socket)), setup_(std::move(setup)), faults_(faults), sink_(std::move(sink)) {}

  int Get() const override { return socket_.Get(); }
  void Ready(short events, Millis now) override;
  bool Pass(Millis now) override;
  bool Waits() const override { return !answers_.empty(); }

 private:
  struct Answer {
    Millis at;
    sockaddr_in to;
    std::string datagram;
  };
  void Take(const std::string& datagram, const sockaddr_in& from, Millis now);

  const platform::Descriptor socket_;
  const TrapSetup setup_;
  DeviceFaults& faults_;
  const ArrivalSink sink_;
  std::deque<Answer> answers_;
};

}  // namespace lab
