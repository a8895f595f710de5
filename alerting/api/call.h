// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "alerting/frame/strings.h"
#include "alerting/services/service_list.h"

namespace alerting {

/// Runs the body of an exported function in the library's own resource context. What it throws (memory ran
/// out) becomes the function's failure value.
template <class Result, class Body>
Result Call(Result failure, Body&& body) noexcept {
  try {
    const platform::ModuleScope scope(TheModule());
    return static_cast<Result>(body());
  } catch (...) {
    return failure;
  }
}

/// The same after the list was read; `unread` where it could not be.
template <class Result, class Body>
Result CallWithList(Result unread, Body&& body) noexcept {
  return Call(unread,
              [&]() -> Result { return TheServices().Read() ? static_cast<Result>(body()) : unread; });
}

/// The same on the service at an index; `invalid` where there is none.
template <class Result, class Body>
Result CallOnService(int index, Result unread, Result invalid, Body&& body) noexcept {
  return CallWithList(unread, [&]() -> Result {
    CNtfyService* service = TheServices().GetAt(index);
    return service != nullptr ? static_cast<Result>(body(*service)) : invalid;
  });
}

/// The same where every failure answers 0 or null.
template <class Result, class Body>
Result CallOnService(int index, Body&& body) noexcept {
  return CallOnService(index, Result{}, Result{}, body);
}

}  // namespace alerting
