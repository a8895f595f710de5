// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "alerting/alerting.h"
#include "platform/base/module.h"

namespace site {

/// The functions of the alerting library, as a console calls them: one member per export, by its own name.
struct LibraryCalls {
#define ALERTING_EXPORT(result, name, arguments, bytes) result(*name) arguments = nullptr;
#define ALERTING_PLAIN_EXPORT(result, name, arguments) result(*name) arguments = nullptr;
#include "alerting/exports.def"
#undef ALERTING_EXPORT
#undef ALERTING_PLAIN_EXPORT

  /// The index of a service in the library's list, or -1. Indices move with every deletion, so none is kept.
  int IndexOf(const platform::GUID& service) const;
  /// Drops what the library has read, so that it sees what others have changed. False when the stores cannot be opened.
  bool Reopen() const;
};

/// What OpenDBs answers when the stores were open already; more is a failure.
inline constexpr std::uint32_t kStoresWereOpen = 1;

/// The library file that is meant: `given`, else the environment's ALERTING_LIBRARY, else the one installed or built
/// beside this program, else wherever the loader finds it.
std::string LibraryPath(const std::string& given = {});

/// Finds all functions in a loaded library. Answers "" or the decorated name of one that is missing.
std::string FindCalls(const platform::DynamicLibrary& library, LibraryCalls& calls);

}  // namespace site
