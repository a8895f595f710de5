// SPDX-License-Identifier: MIT
#include "server/serial/port_settings.h"

#include <sys/ioctl.h>

namespace alertserver {
namespace {

tcflag_t CharacterBits(const LineSettings& wanted) {
  const tcflag_t size = wanted.dataBits == 6 ? CS6 : wanted.dataBits == 7 ? CS7 : CS8;
  const tcflag_t parity = wanted.parityCode == 0 ? 0 : wanted.parityCode == 1 ? PARENB | PARODD : PARENB;
  // There is no one and a half with six bits and more; who hears one sees the second as silence.
  return size | parity | (wanted.stopBitsCode == 0 ? 0 : CSTOPB);
}

}  // namespace

std::optional<PortSettings> ReadPort(int port) {
  PortSettings settings{};
  if (ioctl(port, TCGETS2, &settings) != 0) return std::nullopt;
  return settings;
}

bool WritePort(int port, const PortSettings& settings) { return ioctl(port, TCSETSW2, &settings) == 0; }

bool IsSending(int port) {
  int count = 0;
  return ioctl(port, TIOCOUTQ, &count) == 0 && count > 0;
}

PortSettings RawSettings(PortSettings settings, const LineSettings& wanted) {
  settings.c_iflag = wanted.pauses ? IXON : 0;
  settings.c_oflag = 0;
  settings.c_lflag = 0;
  settings.c_cflag = CREAD | CLOCAL | HUPCL | CharacterBits(wanted) | BOTHER | (BOTHER << IBSHIFT);
  settings.c_ispeed = settings.c_ospeed = wanted.baudRate;
  settings.c_cc[VMIN] = 1;
  settings.c_cc[VTIME] = 0;
  return settings;
}

bool RunsAt(const PortSettings& port, std::uint32_t baud_rate) {
  const std::uint32_t difference =
      port.c_ospeed > baud_rate ? port.c_ospeed - baud_rate : baud_rate - port.c_ospeed;
  constexpr std::uint32_t kTolerance = 33;  // a thirty-third: characters of ten bits are still read right
  return baud_rate != 0 && difference <= baud_rate / kTolerance;
}

void FlushPort(int port) { ioctl(port, TCFLSH, 2); }

void DropReadySignal(int port) {
  const int signals = TIOCM_DTR | TIOCM_RTS;
  ioctl(port, TIOCMBIC, &signals);
}

bool MakeExclusive(int port) { return ioctl(port, TIOCEXCL) == 0; }
void EndExclusive(int port) { ioctl(port, TIOCNXCL); }

}  // namespace alertserver
