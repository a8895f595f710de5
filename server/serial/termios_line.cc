// SPDX-License-Identifier: MIT
#include "server/serial/termios_line.h"

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>

#include <cerrno>
#include <cstring>
#include <string>
#include <thread>

#include "platform/base/descriptor.h"
#include "server/serial/line_lock.h"
#include "server/serial/port_settings.h"

namespace alertserver {
namespace {

using Clock = std::chrono::steady_clock;

constexpr char kLockDirectory[] = "/run/lock";

class TermiosLine : public SerialLine {
 public:
  TermiosLine(std::unique_ptr<LineLock> lock, platform::Descriptor port, const PortSettings& before)
      : lock_(std::move(lock)), port_(std::move(port)), before_(before) {}
  ~TermiosLine() override;

  /// False when the port cannot be as it is asked to be.
  bool SetUp(const LineSettings& settings) const;
  bool Write(std::string_view bytes, Limit limit) override;
  std::string Read(std::size_t most, Limit limit) override;

 private:
  bool Wait(short events, Clock::time_point end) const;
  bool WaitUntilSent(Clock::time_point end) const;

  const std::unique_ptr<LineLock> lock_;
  const platform::Descriptor port_;
  const PortSettings before_;
};

/// What a device holds back for good would hold back the port's end too.
TermiosLine::~TermiosLine() {
  if (IsSending(port_.Get())) FlushPort(port_.Get());
  WritePort(port_.Get(), before_);
  DropReadySignal(port_.Get());
  EndExclusive(port_.Get());
}

/// Drivers take what they cannot do without a word, so the port is asked afterwards.
bool TermiosLine::SetUp(const LineSettings& settings) const {
  if (!WritePort(port_.Get(), RawSettings(before_, settings))) return false;
  const auto now = ReadPort(port_.Get());
  FlushPort(port_.Get());
  return now && RunsAt(*now, settings.baudRate);
}

bool TermiosLine::Wait(short events, Clock::time_point end) const {
  for (;;) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
    pollfd polled{port_.Get(), events, 0};
    const int count = poll(&polled, 1, static_cast<int>(left < 0 ? 0 : left));
    if (count < 0 && errno == EINTR) continue;
    return count > 0 && (polled.revents & events) != 0;
  }
}

bool TermiosLine::Write(std::string_view bytes, Limit limit) {
  const Clock::time_point end = Clock::now() + limit;
  while (!bytes.empty()) {
    const ssize_t count = write(port_.Get(), bytes.data(), bytes.size());
    if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
    if (count < 0 && errno != EAGAIN && errno != EINTR) return false;
    if (!bytes.empty() && !Wait(POLLOUT, end)) return false;
  }
  return WaitUntilSent(end);
}

/// The port takes more than it sends: thousands of bytes, of which a printer that is out of paper wants none.
bool TermiosLine::WaitUntilSent(Clock::time_point end) const {
  while (IsSending(port_.Get())) {
    if (Clock::now() >= end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return true;
}

std::string TermiosLine::Read(std::size_t most, Limit limit) {
  if (!Wait(POLLIN, Clock::now() + limit)) return "";
  std::string bytes(most, '\0');
  const ssize_t count = read(port_.Get(), bytes.data(), bytes.size());
  bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
  return bytes;
}

/// A link, such as /dev/modem, stands for one port, which bears the lock.
std::string RealDevice(const std::string& device) {
  char* resolved = realpath(device.c_str(), nullptr);
  const std::string path = resolved == nullptr ? device : resolved;
  free(resolved);
  return path;
}

std::string WhyNotOpened(const std::string& device) {
  const std::string why = errno == EBUSY ? "another program uses it" : std::strerror(errno);
  return "The serial port " + device + " cannot be opened: " + why + ".";
}

}  // namespace

std::unique_ptr<SerialLine> OpenTermiosLine(const std::string& device, const LineSettings& settings,
                                            LineProblem& problem) {
  const std::string path = RealDevice(device);
  auto lock = std::make_unique<LineLock>(path, kLockDirectory);
  if (lock->Holder() != 0) {
    problem = {"The serial port " + path + " is in use by process " + std::to_string(lock->Holder()) + ".",
               Field::kComPort};
    return nullptr;
  }
  platform::Descriptor port(open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC));
  const auto before = port.IsOpen() ? ReadPort(port.Get()) : std::nullopt;
  if (!before || !MakeExclusive(port.Get())) {
    problem = {WhyNotOpened(path), Field::kComPort};
    return nullptr;
  }
  auto line = std::make_unique<TermiosLine>(std::move(lock), std::move(port), *before);
  if (!line->SetUp(settings)) {
    problem = {"The serial port " + path + " cannot run at " + std::to_string(settings.baudRate) +
                   " bits per second.",
               Field::kBaudRate};
    return nullptr;
  }
  return line;
}

}  // namespace alertserver
