// SPDX-License-Identifier: MIT
#pragma once

#include <new>
#include <utility>

#include "companions/alertstore/status.h"

namespace alertstore {

/// The operation's status; kNoMemory or kIoError where it threw.
template <class Operation>
Status Guarded(Operation&& operation) noexcept {
  try {
    return std::forward<Operation>(operation)();
  } catch (const std::bad_alloc&) {
    return kNoMemory;
  } catch (...) {
    return kIoError;
  }
}

}  // namespace alertstore
