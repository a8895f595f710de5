// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "lab/faults.h"
#include "lab/host/source.h"
#include "lab/line_reader.h"

namespace lab {

/// Does what one line of the control says, and answers what to show. "quit" is left to the caller.
std::string Control(FaultBoard& faults, const std::string& line);

/// Reads such lines from standard input. Its end is the end of the laboratory where `end_with_input` says so: else it may have
/// been started without one.
class ControlInput : public Source {
 public:
  ControlInput(FaultBoard& faults, std::function<void()> quit, std::function<void(const std::string&)> show,
               bool end_with_input)
      : faults_(faults), quit_(std::move(quit)), show_(std::move(show)), end_with_input_(end_with_input) {}

  int Get() const override { return 0; }
  void Ready(short events, Millis now) override;
  bool Pass(Millis) override { return !is_at_end_; }

 private:
  FaultBoard& faults_;
  const std::function<void()> quit_;
  const std::function<void(const std::string&)> show_;
  const bool end_with_input_;
  LineReader lines_{200};
  bool is_at_end_ = false;
};

}  // namespace lab
