// SPDX-License-Identifier: MIT
#pragma once

#include "console/site/library_calls.h"

namespace test_support {

/// The functions of the library that a test is linked with.
inline site::LibraryCalls StaticCalls() {
  site::LibraryCalls calls;
#define ALERTING_EXPORT(result, name, arguments, bytes) calls.name = &::name;
#define ALERTING_PLAIN_EXPORT(result, name, arguments) calls.name = &::name;
#include "alerting/exports.def"
#undef ALERTING_EXPORT
#undef ALERTING_PLAIN_EXPORT
  return calls;
}

}  // namespace test_support
