// SPDX-License-Identifier: MIT
#include "server/serial/serial_transports.h"

#include "server/serial/termios_line.h"

namespace alertserver {

TransportPtr MakeNumericPager() { return MakeNumericPager(OpenTermiosLine); }
TransportPtr MakeAlphanumericPager() { return MakeAlphanumericPager(OpenTermiosLine); }
TransportPtr MakeGenericPort() { return MakeGenericPort(OpenTermiosLine); }

}  // namespace alertserver
