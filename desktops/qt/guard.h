// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <functional>

namespace desktops::qt {

/// Tells the log, or who asked to hear of it instead, what a handler threw.
void ReportFailedHandler(const char* what) noexcept;
/// Null goes back to the log.
void SetFailedHandlerReport(std::function<void(const char* what)> report);

/// Runs what a person's action set off. Qt's event loop must see no exception; what a handler throws (memory
/// that ran out) ends that action only, and the window stays.
template <typename Action>
void Guarded(Action&& action) noexcept {
  try {
    action();
  } catch (const std::exception& failure) {
    ReportFailedHandler(failure.what());
  } catch (...) {
    ReportFailedHandler("unknown exception");
  }
}

}  // namespace desktops::qt
