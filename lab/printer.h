// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "lab/arrival.h"
#include "lab/faults.h"
#include "lab/session.h"

namespace lab {

/// Takes bytes as they come and answers nothing. What came before a pause is one arrival, a page that fills up too.
class Printer : public Session {
 public:
  static constexpr std::size_t kLargestPage = std::size_t{64} * 1024;

  Printer(DeviceFaults& faults, ArrivalSink sink, Millis pause)
      : faults_(faults), sink_(std::move(sink)), pause_(pause) {}

  void Take(std::string_view bytes, Millis now) override;
  void Pass(Millis now) override;
  void HangUp() override { Show(); }
  bool Waits() const override { return !page_.empty(); }

 private:
  void Show();

  DeviceFaults& faults_;
  const ArrivalSink sink_;
  const Millis pause_;
  std::string page_;
  Millis last_ = 0;
};

}  // namespace lab
