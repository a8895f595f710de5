// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/base/descriptor.h"

// Sockets of this machine alone: the laboratory pretends to be servers and believes what it is told.

namespace lab {

/// A socket of `kind` (SOCK_STREAM, SOCK_DGRAM) on 127.0.0.1; port 0 takes a free one. Not open when it cannot be had, and
/// errno says why.
platform::Descriptor BindLoopback(int kind, int port);
/// The port that a socket has.
int PortOf(const platform::Descriptor& socket);

}  // namespace lab
