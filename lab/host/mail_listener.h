// SPDX-License-Identifier: MIT
#pragma once

#include "lab/host/loop.h"
#include "lab/mail/smtp_session.h"
#include "platform/base/descriptor.h"

namespace lab {

/// Takes connections to the mail server, 32 at a time; more are closed at once.
class MailListener : public Source {
 public:
  MailListener(Loop& loop, platform::Descriptor socket, const MailSetup& setup, DeviceFaults& faults,
               ArrivalSink sink)
      : loop_(loop), socket_(std::move(socket)), setup_(setup), faults_(faults), sink_(std::move(sink)) {}

  int Get() const override { return socket_.Get(); }
  void Ready(short events, Millis now) override;

 private:
  Loop& loop_;
  const platform::Descriptor socket_;
  const MailSetup setup_;
  DeviceFaults& faults_;
  const ArrivalSink sink_;
  /// Each session holds a share of it, so that its count says how many there are.
  const std::shared_ptr<int> ticket_ = std::make_shared<int>();
};

}  // namespace lab
