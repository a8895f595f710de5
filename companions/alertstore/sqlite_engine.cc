// SPDX-License-Identifier: MIT
#include "companions/alertstore/sqlite_engine.h"

#include <filesystem>
#include <utility>

#include "companions/alertstore/guarded.h"
#include "companions/alertstore/sqlite_database.h"
#include "companions/alertstore/sqlite_table.h"
#include "platform/base/paths.h"

namespace alertstore {
namespace {

// One name for each directory, whatever links lead to it: names with links in them are refused further below.
std::string Canonical(const std::string& directory) {
  std::error_code error;
  const std::filesystem::path path = std::filesystem::weakly_canonical(directory, error);
  return error ? directory : path.string();
}

}  // namespace

SqliteEngine::SqliteEngine(std::string directory) : directory_(std::move(directory)) {}

SqliteEngine::~SqliteEngine() = default;

Status SqliteEngine::OpenDatabase(std::shared_ptr<Database>& database) {
  const std::string directory = Canonical(directory_.empty() ? platform::DataDirectory() : directory_);
  std::weak_ptr<Database>& shared = databases_[directory];
  database = shared.lock();
  if (database != nullptr) return kOk;
  const Status status = Database::Open(directory, database);
  if (status == kOk) shared = database;
  return status;
}

Status SqliteEngine::Open(const StoreSchema& schema, std::unique_ptr<Table>& table) {
  return Guarded([&] {
    const std::lock_guard lock(mutex_);
    std::shared_ptr<Database> database;
    if (const Status status = OpenDatabase(database); status != kOk) return status;
    auto opened = std::make_unique<SqliteTable>(database, schema);
    const std::lock_guard database_lock(database->Mutex());  // given back before a table that is refused ends
    if (const Status status = opened->Check(); status != kOk) return status;
    table = std::move(opened);
    return kOk;
  });
}

Status SqliteEngine::BeginRead() {
  return Guarded([&] {
    const std::lock_guard lock(mutex_);
    if (read_depth_ == 0) {
      std::shared_ptr<Database> database;
      if (const Status status = OpenDatabase(database); status != kOk) return status;
      const std::lock_guard database_lock(database->Mutex());
      if (const Status status = database->BeginRead(); status != kOk) return status;
      read_database_ = std::move(database);
    }
    ++read_depth_;
    return kOk;
  });
}

void SqliteEngine::EndRead() {
  const std::lock_guard lock(mutex_);
  if (read_depth_ == 0 || --read_depth_ > 0) return;
  {
    const std::lock_guard database_lock(read_database_->Mutex());
    read_database_->EndRead();
  }
  read_database_.reset();
}

}  // namespace alertstore
