// SPDX-License-Identifier: MIT
// Holds the byte counts of exports.def against the functions: they are part of the names under which a
// console finds them.
#include "alerting/alerting.h"

namespace {

template <class Argument>
constexpr int kBytesOf = 4;
template <>
constexpr int kBytesOf<platform::GUID> = 16;

template <class Result, class... Arguments>
constexpr int ArgumentBytes(Result (*)(Arguments...)) {
  return (0 + ... + kBytesOf<Arguments>);
}

#define ALERTING_EXPORT(result, name, arguments, bytes) \
  static_assert(ArgumentBytes(static_cast<result(*) arguments>(nullptr)) == bytes, #name);
#define ALERTING_PLAIN_EXPORT(result, name, arguments)
#include "alerting/exports.def"
#undef ALERTING_EXPORT
#undef ALERTING_PLAIN_EXPORT

}  // namespace
