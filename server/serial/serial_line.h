// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "server/field.h"

namespace alertserver {

/// How a line is set, with the codes of the modem records: `stopBitsCode` 0 one, 1 one and a half, 2 two; `parityCode` 0
/// none, 1 odd, 2 even.
struct LineSettings {
  std::uint32_t baudRate = 9600, dataBits = 8, stopBitsCode = 0, parityCode = 0;
  bool pauses = false;  ///< the other side may hold back what is sent (XON/XOFF)
};

/// A serial line that is open. Waits are bounded by the caller.
class SerialLine {
 public:
  using Limit = std::chrono::milliseconds;

  virtual ~SerialLine() = default;
  /// True when all bytes were sent in time, which does not mean that anybody has them.
  virtual bool Write(std::string_view bytes, Limit limit) = 0;
  /// What has arrived, at most `most` bytes, as soon as there is some; "" when nothing came in time or the line is gone.
  virtual std::string Read(std::size_t most, Limit limit) = 0;
};

/// Why a line cannot be had, and what to correct.
struct LineProblem {
  std::string text;
  Field field = Field::kNothing;
};

/// Opens the line of a device; null with the problem told where it cannot be had.
using LineOpener =
    std::function<std::unique_ptr<SerialLine>(const std::string& device, const LineSettings&, LineProblem&)>;

}  // namespace alertserver
