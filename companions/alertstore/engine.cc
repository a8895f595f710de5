// SPDX-License-Identifier: MIT
#include "companions/alertstore/engine.h"

#include <mutex>
#include <utility>

#include "companions/alertstore/sqlite_engine.h"

namespace alertstore {
namespace {

std::mutex mutex;
std::shared_ptr<Engine> chosen_engine;

}  // namespace

std::shared_ptr<Engine> CurrentEngine() {
  static const std::shared_ptr<Engine> embedded = std::make_shared<SqliteEngine>();
  const std::lock_guard lock(mutex);
  return chosen_engine != nullptr ? chosen_engine : embedded;
}

void SetEngine(std::shared_ptr<Engine> engine) {
  const std::lock_guard lock(mutex);
  chosen_engine.swap(engine);
}

}  // namespace alertstore
