// SPDX-License-Identifier: MIT
#include "lab/host/loop.h"

#include <algorithm>
#include <chrono>

namespace lab {

Millis Now() {
  using std::chrono::duration_cast, std::chrono::milliseconds, std::chrono::steady_clock;
  return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

void Loop::Run() {
  while (!stopped_) {
    TakeAdded();
    DropFinished();
    Wait();
  }
}

void Loop::TakeAdded() {
  std::move(added_.begin(), added_.end(), std::back_inserter(sources_));
  added_.clear();
}

void Loop::DropFinished() {
  const Millis now = Now();
  std::erase_if(sources_, [now](const auto& source) { return !source->Pass(now); });
}

/// A port that is opened again is noticed at the next look, so looks are never far apart.
int Loop::Timeout() const {
  const bool waits = std::any_of(sources_.begin(), sources_.end(), [](const auto& x) { return x->Waits(); });
  return waits ? 10 : 50;
}

void Loop::Wait() {
  std::vector<pollfd> polled;
  for (const auto& source : sources_) polled.push_back({source->Get(), source->Wants(), 0});
  if (poll(polled.data(), polled.size(), Timeout()) <= 0) return;
  const Millis now = Now();
  for (std::size_t i = 0; i < polled.size(); ++i)
    if (polled[i].revents != 0) sources_[i]->Ready(polled[i].revents, now);
}

}  // namespace lab
