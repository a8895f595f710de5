// SPDX-License-Identifier: MIT
// Whoever answers a telephone call may say anything. A whole session is had with it, and nothing that it says makes a page
// delivered but its signs of acceptance.
#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "server/serial/pager_blocks.h"
#include "server/serial/pager_session.h"
#include "tests/fuzz/replies.h"
#include "tests/serial/scripted_line.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using namespace alertserver;

constexpr char kAck = 0x06;

/// As many as a page of that length takes blocks, each sent four times at most.
constexpr std::size_t kMostWritten = 5 + 3 + 2 * 4 + 1;

bool HadEnoughSigns(const std::uint8_t* data, std::size_t size, std::ptrdiff_t blocks) {
  return std::count_if(data, data + size, [](std::uint8_t byte) { return (byte & 0x7F) == kAck; }) >= blocks;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  ScriptedTalk script(RepliesIn(data, size));
  PagerSession session;
  const std::string page(300, 'x');
  StepOutcome outcome = session.Greet(script.talk);
  if (outcome.kind == StepOutcome::Kind::kDone) outcome = session.LogIn(script.talk);
  if (outcome.kind == StepOutcome::Kind::kDone) outcome = session.Send(script.talk, "123", {page});
  const bool is_delivered = outcome.settles && outcome.verdict == Verdict::kDelivered;
  if (is_delivered && !HadEnoughSigns(data, size, 2)) std::abort();
  if (outcome.kind == StepOutcome::Kind::kFailed && outcome.explanation.empty()) std::abort();
  session.SignOff(script.talk);
  if (script.line.written.size() > kMostWritten) std::abort();
  return 0;
}
