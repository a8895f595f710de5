// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <string>

namespace test_support {

/// A connection behind the stores' back.
class RawDatabase {
 public:
  explicit RawDatabase(const std::string& directory) {
    EXPECT_EQ(sqlite3_open((directory + "/alerting.db").c_str(), &connection_), SQLITE_OK);
  }
  ~RawDatabase() { sqlite3_close(connection_); }
  RawDatabase(const RawDatabase&) = delete;
  RawDatabase& operator=(const RawDatabase&) = delete;

  /// Runs statements; what the last row began with.
  std::string Ask(const std::string& sql) {
    std::string answer;
    const auto take = [](void* out, int, char** values, char**) {
      if (values[0] != nullptr) *static_cast<std::string*>(out) = values[0];
      return 0;
    };
    EXPECT_EQ(sqlite3_exec(connection_, sql.c_str(), take, &answer, nullptr), SQLITE_OK)
        << sqlite3_errmsg(connection_);
    return answer;
  }

 private:
  sqlite3* connection_ = nullptr;
};

}  // namespace test_support
