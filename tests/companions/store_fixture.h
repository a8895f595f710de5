// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include "companions/alertstore/engine.h"
#include "companions/alertstore/stores.h"
#include "tests/support/temporary.h"

/// A data directory of the test's own, with the embedded engine.
class StoreTest : public testing::Test {
 protected:
  StoreTest() {
    UseDirectory(directory_);
    alertstore::SetEngine(nullptr);
  }
  ~StoreTest() override { alertstore::SetEngine(nullptr); }

  static void UseDirectory(const std::string& directory) { setenv("ALERTING_DATA", directory.c_str(), 1); }

 private:
  const test_support::TemporaryDirectory temporary_;

 protected:
  const std::string& directory_ = temporary_.Path();
};

/// A store that is open; a failure fails the test.
template <class Store>
struct Opened : Store {
  template <class... Arguments>
  explicit Opened(Arguments... arguments) : Store(arguments...) {
    EXPECT_EQ(this->DBOpen(), alertstore::kOk);
  }
};

/// The names of the records that a scan gives, as "a b c".
template <class Store>
std::string NamesOf(Store& store, std::uint32_t selector) {
  std::string names;
  typename Store::RecordType record{};
  alertstore::Status status = store.DBAlertRecFindFirst(selector, 0, nullptr, record);
  for (; status == alertstore::kOk; status = store.DBAlertRecFindNext(record)) {
    if (!names.empty()) names += ' ';
    names += record.name.View();
  }
  return names;
}

/// Adds a record of that name and answers its identity; a failure fails the test.
template <class Store>
platform::GUID AddNamed(Store& store, std::string_view name) {
  typename Store::RecordType record{};
  record.name.Assign(name);
  platform::GUID id{};
  EXPECT_EQ(store.DBAlertRecAdd(record, id), alertstore::kOk) << name;
  return id;
}

/// A connection behind the stores' back.
class RawDatabase {
 public:
  explicit RawDatabase(const std::string& directory) {
    EXPECT_EQ(sqlite3_open((directory + "/alerting.db").c_str(), &connection_), SQLITE_OK);
  }
  ~RawDatabase() { sqlite3_close(connection_); }
  RawDatabase(const RawDatabase&) = delete;
  RawDatabase& operator=(const RawDatabase&) = delete;

  /// Runs statements; the number that the last row began with.
  std::size_t Ask(const std::string& sql) {
    std::size_t answer = 0;
    const auto take = [](void* out, int, char** values, char**) {
      if (values[0] != nullptr) *static_cast<std::size_t*>(out) = std::strtoul(values[0], nullptr, 10);
      return 0;
    };
    EXPECT_EQ(sqlite3_exec(connection_, sql.c_str(), take, &answer, nullptr), SQLITE_OK)
        << sqlite3_errmsg(connection_);
    return answer;
  }

 private:
  sqlite3* connection_ = nullptr;
};
