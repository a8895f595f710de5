// SPDX-License-Identifier: MIT
#pragma once

#include <asm/termbits.h>

#include <optional>

#include "server/serial/serial_line.h"

// The kernel's own form of a port's settings: the C library's knows a few speeds by name, and 14400, 28800 and 56000,
// which modem records offer, are not among them.

namespace alertserver {

using PortSettings = struct termios2;

std::optional<PortSettings> ReadPort(int port);
/// After what is being sent has left.
bool WritePort(int port, const PortSettings& settings);
/// True while there are bytes that the port has taken and not sent.
bool IsSending(int port);

/// Raw, no echo, no line editing, with the speed and the form of a character that a record asks for.
PortSettings RawSettings(PortSettings before, const LineSettings& wanted);
/// True when the port runs at that speed, or as near as clocks are divided.
bool RunsAt(const PortSettings& port, std::uint32_t baud_rate);

/// Throws away what came in and was not read, and what was not sent.
void FlushPort(int port);
/// Takes away the signal that the computer is there, on which a modem hangs up.
void DropReadySignal(int port);
/// For this process alone. False when another has it so.
bool MakeExclusive(int port);
void EndExclusive(int port);

}  // namespace alertserver
