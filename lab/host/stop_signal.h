// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "lab/host/source.h"
#include "platform/base/descriptor.h"

namespace lab {

/// SIGTERM, SIGINT and SIGHUP as something to wait on, so that they end the laboratory between two looks.
class StopSignal : public Source {
 public:
  explicit StopSignal(std::function<void()> stop);
  int Get() const override { return signals_.Get(); }
  void Ready(short, Millis) override { stop_(); }

 private:
  const platform::Descriptor signals_;
  const std::function<void()> stop_;
};

}  // namespace lab
