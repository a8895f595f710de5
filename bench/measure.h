// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "platform/base/guid.h"

namespace bench {

inline void Require(bool condition, const char* what) {
  if (condition) return;
  std::fprintf(stderr, "bench: %s\n", what);
  std::exit(1);
}

inline double Milliseconds(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

struct Timing {
  double minimum;
  double median;
};

inline Timing Summarise(std::vector<double> times) {
  std::sort(times.begin(), times.end());
  return {times.front(), times[times.size() / 2]};
}

/// A connection to the store's database with the store's settings, for the reference work.
class RawConnection {
 public:
  explicit RawConnection(const std::string& directory) {
    Require(sqlite3_open_v2((directory + "/alerting.db").c_str(), &connection_,
                            SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr) == SQLITE_OK,
            "cannot open the database");
    Execute("PRAGMA synchronous=FULL; PRAGMA mmap_size=0; PRAGMA cache_size=-65536");
  }
  ~RawConnection() {
    for (sqlite3_stmt* statement : statements_) sqlite3_finalize(statement);
    sqlite3_close(connection_);
  }
  RawConnection(const RawConnection&) = delete;
  RawConnection& operator=(const RawConnection&) = delete;

  /// Lives as long as the connection.
  sqlite3_stmt* Prepare(const char* sql) {
    sqlite3_stmt* statement = nullptr;
    Require(
        sqlite3_prepare_v3(connection_, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr) == SQLITE_OK,
        sqlite3_errmsg(connection_));
    statements_.push_back(statement);
    return statement;
  }

  void Execute(const char* sql) {
    Require(sqlite3_exec(connection_, sql, nullptr, nullptr, nullptr) == SQLITE_OK,
            sqlite3_errmsg(connection_));
  }

  /// The next row's record; false at the end.
  template <class Record>
  static bool Read(sqlite3_stmt* statement, Record& record) {
    if (sqlite3_step(statement) != SQLITE_ROW) return false;
    const void* bytes = sqlite3_column_blob(statement, 0);
    if (sqlite3_column_bytes(statement, 0) != sizeof record) return false;
    std::memcpy(&record, bytes, sizeof record);
    return true;
  }

  /// The one record of a key.
  template <class Record>
  static bool Find(sqlite3_stmt* statement, const platform::GUID& key, Record& record) {
    sqlite3_bind_blob(statement, 1, &key, sizeof key, SQLITE_STATIC);
    const bool found = Read(statement, record);
    sqlite3_reset(statement);
    return found;
  }

 private:
  sqlite3* connection_ = nullptr;
  std::vector<sqlite3_stmt*> statements_;
};

}  // namespace bench
