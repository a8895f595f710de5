// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

namespace bench {

/// Shows a modal window until it is closed.
using Open = std::function<void()>;

/// Opens the window and a bare copy of it `repetitions` times in turn, closing each once it is painted, and prints the
/// medians, their ratio and whether it is at most `aim`. A message that comes in the window's place ends the program.
///
/// An opening lasts from the call until the window and all in it has been painted for the first time.
void CompareOpenings(const std::string& title, double aim, int repetitions, const Open& open);

/// The line that stands over those of CompareOpenings.
void PrintHeading();

}  // namespace bench
