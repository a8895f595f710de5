// SPDX-License-Identifier: MIT
#include "desktops/qt/guard.h"

#include <cstdio>
#include <utility>

namespace desktops::qt {
namespace {

std::function<void(const char*)>& Report() {
  static std::function<void(const char*)> report;
  return report;
}

}  // namespace

void SetFailedHandlerReport(std::function<void(const char*)> report) { Report() = std::move(report); }

// Not Qt's own log: it allocates, and memory may be what is missing.
void ReportFailedHandler(const char* what) noexcept {
  if (Report() != nullptr) return Report()(what);
  std::fprintf(stderr, "A handler failed: %s\n", what);
}

}  // namespace desktops::qt
