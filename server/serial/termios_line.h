// SPDX-License-Identifier: MIT
#pragma once

#include "server/serial/serial_line.h"

namespace alertserver {

/// Opens a serial port raw, for this process alone, and sets it. When the line ends the port is put down (a modem hangs up)
/// and set as it was found. A pseudo-terminal does too.
std::unique_ptr<SerialLine> OpenTermiosLine(const std::string& device, const LineSettings& settings,
                                            LineProblem& problem);

}  // namespace alertserver
