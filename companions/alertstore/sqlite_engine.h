// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <string>

#include "companions/alertstore/engine.h"

namespace alertstore {

class Database;

/// The embedded engine: all record files of a data directory in one SQLite database, "alerting.db". All its
/// tables share one connection, which is closed with the last of them. An engine must not be used in a forked
/// child; a thread that reads for long takes an engine of its own, whose BeginRead then does not hold up
/// writes here.
class SqliteEngine : public Engine {
 public:
  /// Uses platform::DataDirectory(), as it is at each opening of a table.
  SqliteEngine() = default;
  explicit SqliteEngine(std::string directory);
  ~SqliteEngine() override;

  Status Open(const StoreSchema& schema, std::unique_ptr<Table>& table) override;
  Status BeginRead() override;
  void EndRead() override;

 private:
  Status OpenDatabase(std::shared_ptr<Database>& database);

  const std::string directory_;  // empty: the data directory
  std::mutex mutex_;
  std::map<std::string, std::weak_ptr<Database>> databases_;
  std::shared_ptr<Database> read_database_;  // while a consistent read is going on
  int read_depth_ = 0;
};

}  // namespace alertstore
