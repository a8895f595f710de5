// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <utility>

namespace agentui {

/// What this process knows of tests beside their files, by their numbers. Any thread.
template <class Value>
class ByTest {
 public:
  void Keep(std::uint32_t job, Value value) {
    const std::lock_guard lock(mutex_);
    values_[job] = std::move(value);
  }
  std::optional<Value> Find(std::uint32_t job) const {
    const std::lock_guard lock(mutex_);
    const auto found = values_.find(job);
    return found != values_.end() ? std::optional(found->second) : std::nullopt;
  }

 private:
  mutable std::mutex mutex_;
  std::map<std::uint32_t, Value> values_;
};

}  // namespace agentui
