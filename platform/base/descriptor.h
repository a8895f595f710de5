// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>

#include <utility>

namespace platform {

/// A file descriptor that is closed with its object; -1 when there is none.
class Descriptor {
 public:
  explicit Descriptor(int fd = -1) : fd_(fd) {}
  ~Descriptor() { Close(); }
  Descriptor(Descriptor&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(fd_, other.fd_);
    return *this;
  }

  int Get() const { return fd_; }
  bool IsOpen() const { return fd_ >= 0; }
  /// The descriptor, which is no longer closed here.
  int Release() { return std::exchange(fd_, -1); }
  void Close() {
    if (fd_ >= 0) close(std::exchange(fd_, -1));
  }

 private:
  int fd_;
};

}  // namespace platform
