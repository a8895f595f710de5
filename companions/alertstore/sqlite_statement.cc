// SPDX-License-Identifier: MIT
#include "companions/alertstore/sqlite_statement.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

#include "companions/alertstore/problem.h"
#include "companions/alertstore/status_text.h"

namespace alertstore {

namespace {

Status StatusOfFamily(int result) {
  switch (result & 0xFF) {
    case SQLITE_OK:
    case SQLITE_ROW:
    case SQLITE_DONE:
      return kOk;
    case SQLITE_CONSTRAINT:
      return kNotUnique;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return kLockTimeout;
    case SQLITE_NOMEM:
      return kNoMemory;
    case SQLITE_FULL:
      return kDiskFull;
    case SQLITE_READONLY:
      return kReadOnly;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
    case SQLITE_ERROR:  // a statement that does not fit the tables of a foreign database
      return kCorrupt;
    default:
      return kIoError;
  }
}

const char* FileOf(sqlite3* connection) {
  const char* file = sqlite3_db_filename(connection, "main");
  return file != nullptr ? file : "the database";
}

// What the system said when a file could not be opened, read or written; 0 where it said nothing.
int ErrorNumber(Status status, sqlite3* connection) {
  if (status == kReadOnly) return access(FileOf(connection), W_OK) == 0 ? 0 : errno;
  return status == kIoError ? sqlite3_system_errno(connection) : 0;
}

}  // namespace

Status StatusOfResult(int result, sqlite3* connection) {
  const Status status = StatusOfFamily(result);
  if (status == kOk) return kOk;
  if (const int number = ErrorNumber(status, connection); number != 0)
    return Fail(StatusOfErrorNumber(number),
                std::string("cannot read or write ") + FileOf(connection) + ": " + std::strerror(number));
  return Fail(status, StatusText(status));
}

Status Statement::Start(sqlite3* connection) {
  if (statement_ != nullptr && sqlite3_db_handle(statement_) == connection) return kOk;
  sqlite3_finalize(std::exchange(statement_, nullptr));
  return StatusOfResult(sqlite3_prepare_v3(connection, sql_.c_str(), static_cast<int>(sql_.size()) + 1,
                                           SQLITE_PREPARE_PERSISTENT, &statement_, nullptr),
                        connection);
}

void Statement::Bind(int parameter, std::string_view bytes) {
  // A null pointer would bind NULL, which equals nothing, in place of an empty key.
  sqlite3_bind_blob64(statement_, parameter, bytes.empty() ? "" : bytes.data(), bytes.size(), SQLITE_STATIC);
}

void Statement::Bind(int parameter, std::int64_t number) {
  sqlite3_bind_int64(statement_, parameter, number);
}

Status Statement::Execute() {
  int result = Step();
  while (result == SQLITE_ROW) result = Step();
  const Status status = StatusOf(result);
  sqlite3_reset(statement_);
  return status;
}

std::string_view Statement::Bytes(int column) const {
  // The order matters: asking for the blob first keeps it a blob.
  const void* bytes = sqlite3_column_blob(statement_, column);
  const int size = sqlite3_column_bytes(statement_, column);
  if (bytes == nullptr) return {};
  return {static_cast<const char*>(bytes), static_cast<std::size_t>(size)};
}

}  // namespace alertstore
