// SPDX-License-Identifier: MIT
#include "server/serial/conversation.h"

namespace alertserver {

bool Conversation::Say(std::string_view bytes) {
  constexpr Limit kLimit(10'000);
  context_.transcript.Sent(bytes);
  return line_.Write(bytes, std::min(kLimit, Left()));
}

std::string Conversation::Hear(Clock::time_point end) {
  constexpr std::size_t kMost = 256;
  const auto left = std::chrono::ceil<Limit>(end - Clock::now());
  const std::string bytes = line_.Read(kMost, std::max(left, Limit(0)));
  if (!bytes.empty()) context_.transcript.Received(bytes);
  return bytes;
}

void Conversation::KeepSilent(Limit limit) {
  const Clock::time_point end = Clock::now() + std::min(limit, Left());
  while (!Hear(end).empty()) continue;
}

}  // namespace alertserver
