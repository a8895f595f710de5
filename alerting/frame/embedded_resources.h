// SPDX-License-Identifier: MIT
#pragma once

#include "platform/base/module.h"

namespace alerting {

/// Registers the pictures that are built into the library, by their paths below resources/.
void AddEmbeddedResources(platform::Module& module);

}  // namespace alerting
