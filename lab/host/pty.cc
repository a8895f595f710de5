// SPDX-License-Identifier: MIT
#include "lab/host/pty.h"

#include <fcntl.h>
#include <stdlib.h>
#include <termios.h>

#include <cerrno>

namespace lab {
namespace {

constexpr std::size_t kMostUnsent = std::size_t{64} * 1024;

/// No echo, no line editing: what a program writes before it sets up the port would come back to it.
void MakeRaw(int master) {
  termios settings{};
  if (tcgetattr(master, &settings) != 0) return;
  cfmakeraw(&settings);
  tcsetattr(master, TCSANOW, &settings);
}

std::string PathOf(int master) {
  char name[64];
  if (master < 0 || grantpt(master) != 0 || unlockpt(master) != 0) return "";
  return ptsname_r(master, name, sizeof name) == 0 ? name : "";
}

}  // namespace

Pty::Pty(std::unique_ptr<Session> session, const DeviceFaults& faults)
    : master_(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)),
      session_(std::move(session)),
      faults_(faults) {
  path_ = PathOf(master_.Get());
  if (!path_.empty()) MakeRaw(master_.Get());
}

void Pty::Ready(short events, Millis now) {
  if ((events & POLLIN) != 0) Read(now);
  if ((events & POLLOUT) != 0) Write();
  if ((events & POLLHUP) == 0 || (events & POLLIN) != 0) return;
  // Nobody has the port open, which the system goes on telling: look again a little later.
  if (is_open_) session_->HangUp();
  is_open_ = takes_bytes_ = false;
  look_again_ = now + 20;
  unsent_.clear();
}

void Pty::Read(Millis now) {
  char bytes[4096];
  const std::size_t most = faults_.Has(Fault::kSlow) && faults_.Device() == "printer" ? 16 : sizeof bytes;
  const ssize_t count = read(master_.Get(), bytes, most);
  if (count <= 0) return;
  is_open_ = true;
  session_->Take({bytes, static_cast<std::size_t>(count)}, now);
  if (most != sizeof bytes) takes_bytes_ = false, look_again_ = now + 50;
}

void Pty::Write() {
  const ssize_t count = write(master_.Get(), unsent_.data(), unsent_.size());
  if (count > 0) unsent_.erase(0, static_cast<std::size_t>(count));
}

bool Pty::Pass(Millis now) {
  const bool is_off = faults_.Has(Fault::kSilent) && faults_.Device() == "printer";
  if (is_off) look_again_ = now + 100;
  takes_bytes_ = now >= look_again_;
  unsent_ += session_->Due(now);
  if (!is_open_ || unsent_.size() > kMostUnsent) unsent_.clear();
  if (!unsent_.empty()) Write();
  return true;
}

}  // namespace lab
