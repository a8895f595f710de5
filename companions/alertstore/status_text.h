// SPDX-License-Identifier: MIT
#pragma once

#include "companions/alertstore/status.h"

namespace alertstore {

/// What a status means, in words that can follow "because": "the disk is full".
const char* StatusText(Status status);

}  // namespace alertstore
