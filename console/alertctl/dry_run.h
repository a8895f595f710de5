// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "console/alertctl/verbs.h"

namespace alertctl {

/// Runs `change` in a copy of the data directory, which is thrown away, and tells how the copy then differs. What `change`
/// throws is thrown. Throws a Failure (kStoreFailure) when the copy cannot be made.
Result DryRun(const std::function<void()>& change);

}  // namespace alertctl
