// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "companions/alertstore/status.h"

namespace site {

/// What to do about a failure of the stores, as the end of a sentence ("; make room and try again"), or "".
const char* Advice(alertstore::Status status);

/// "cannot add the user "Ann" in /data: the disk is full; make room and try again (status 0x20005)". `what` says what was
/// being done, `cause` why it failed; without one it is what the stores said last on this thread.
std::string FailureText(const std::string& what, alertstore::Status status, const std::string& cause = {});

}  // namespace site
