// SPDX-License-Identifier: MIT
#pragma once

#include "server/serial/serial_line.h"
#include "server/transport.h"

// The transports over serial ports. How a line is opened can be given, so that tests bring lines of their own.

namespace alertserver {

TransportPtr MakeNumericPager(LineOpener opener);
TransportPtr MakeAlphanumericPager(LineOpener opener);
TransportPtr MakeGenericPort(LineOpener opener);

/// Over the ports of this machine.
TransportPtr MakeNumericPager();
TransportPtr MakeAlphanumericPager();
TransportPtr MakeGenericPort();

}  // namespace alertserver
