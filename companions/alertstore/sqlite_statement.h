// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "companions/alertstore/status.h"

namespace alertstore {

/// What a result code of SQLite, plain or extended, means to a caller of the store. A failure is noted with the cause
/// that the connection knows (LastProblem).
Status StatusOfResult(int result, sqlite3* connection);

/// A prepared statement, prepared on first use and kept. It outlives its connection: used with another one it is
/// prepared again.
class Statement {
 public:
  explicit Statement(std::string sql) : sql_(std::move(sql)) {}
  ~Statement() { sqlite3_finalize(statement_); }
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  /// Prepares the statement where it is not for this connection. It can then be bound and stepped; whoever steps it resets it.
  Status Start(sqlite3* connection);

  /// Parameters count from 1. Bytes are not copied: they stay as they are until the statement is reset.
  void Bind(int parameter, std::string_view bytes);
  void Bind(int parameter, std::int64_t number);

  /// SQLITE_ROW, SQLITE_DONE or an error.
  int Step() { return sqlite3_step(statement_); }
  /// The status of what Step gave.
  Status StatusOf(int result) const { return StatusOfResult(result, sqlite3_db_handle(statement_)); }
  /// True between a step that gave a row and the end or a reset.
  bool Running() const { return sqlite3_stmt_busy(statement_) != 0; }
  void Reset() { sqlite3_reset(statement_); }
  /// Steps to the end, for a statement without rows, and resets.
  Status Execute();

  /// Columns count from 0; bytes are valid until the next step or reset.
  std::string_view Bytes(int column) const;
  std::int64_t Number(int column) const { return sqlite3_column_int64(statement_, column); }

 private:
  const std::string sql_;
  sqlite3_stmt* statement_ = nullptr;
};

/// Resets a statement when its block is left, so that it holds no read transaction open.
class ResetAtExit {
 public:
  explicit ResetAtExit(Statement& statement) : statement_(statement) {}
  ~ResetAtExit() { statement_.Reset(); }
  ResetAtExit(const ResetAtExit&) = delete;
  ResetAtExit& operator=(const ResetAtExit&) = delete;

 private:
  Statement& statement_;
};

}  // namespace alertstore
