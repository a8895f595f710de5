// SPDX-License-Identifier: MIT
#include "server/transport.h"

#include <algorithm>

#include "server/plain_text.h"

namespace alertserver {
namespace {

/// A report is read by people, and its file is read whole.
constexpr std::size_t kMaxTranscript = 32 * 1024;

}  // namespace

std::string Transcript::PlainLine(std::string_view said, std::size_t limit) const {
  return alertserver::PlainLine(secrets_.Mask(std::string(said)), limit);
}

void Transcript::Add(std::string_view mark, std::string_view line) {
  if (text_.size() >= kMaxTranscript) return;
  text_.append(mark).append(PlainLine(line, kMaxTranscript - text_.size())).append("\n");
  if (text_.size() >= kMaxTranscript) text_ += "* What was said behind this is left out.\n";
}

std::chrono::milliseconds Context::Left() const {
  if (deadline == Clock::time_point::max()) return std::chrono::hours(1);
  const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
  return std::max(left, std::chrono::milliseconds(0));
}

}  // namespace alertserver
