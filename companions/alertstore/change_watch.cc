// SPDX-License-Identifier: MIT
#include "companions/alertstore/change_watch.h"

#include <utility>

#include "companions/alertstore/sqlite_connection.h"
#include "platform/base/paths.h"

namespace alertstore {

ChangeWatch::ChangeWatch() { Changed(); }

ChangeWatch::~ChangeWatch() = default;

bool ChangeWatch::Connect() {
  connection_.reset();
  last_ = 0;
  return Connection::Open(platform::DataDirectory() + "/alerting.db", connection_) == kOk;
}

// The version that SQLite keeps for a connection moves with every commit of another one; this one never commits.
bool ChangeWatch::Changed() {
  const bool was_there = connection_ != nullptr, same = was_there && connection_->IsCurrent();
  if (!same && !Connect()) return was_there;
  if (version_.Start(connection_->Get()) != kOk) return false;
  const ResetAtExit reset(version_);
  if (version_.Step() != SQLITE_ROW) return false;
  return std::exchange(last_, version_.Number(0)) != last_ || !same;
}

}  // namespace alertstore
