// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "companions/alertstore/sqlite_engine.h"
#include "tests/support/opened_store.h"
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
  /// Stores that are opened from now on are another console's, with a connection of their own.
  void BecomeAnotherConsole() {
    alertstore::SetEngine(std::make_shared<alertstore::SqliteEngine>(directory_));
  }

  const test_support::TemporaryDirectory temporary_;
  const std::string& directory_ = temporary_.Path();
};

using test_support::Opened;
using Services = Opened<alertstore::CAlertNtfyServDB>;

/// The names of the records that a scan gives, as "a b c".
template <class Store>
std::string NamesOf(Store& store, std::uint32_t selector) {
  std::string names;
  for (const auto& record : test_support::RecordsOf(store, selector))
    names.append(names.empty() ? "" : " ").append(record.name.View());
  return names;
}

/// A record of that name and identity.
template <class Record>
Record Named(std::string_view name, const platform::GUID& id = {}) {
  Record record{};
  record.name.Assign(name);
  alertstore::SetIdentity(record, id);
  return record;
}

/// What the store answers to an add of the record, or of both records.
template <class Record>
alertstore::Status Add(alertstore::RecordStore<Record>& store, Record record) {
  platform::GUID id{};
  return store.DBAlertRecAdd(record, id);
}
template <class Store, class Record, class Specific>
alertstore::Status Add(Store& store, Record record, Specific specific) {
  platform::GUID id{}, specific_id{};
  return store.DBAlertRecAdd(record, id, specific, specific_id);
}

/// Adds a record of that name and answers its identity; a failure fails the test.
template <class Store>
platform::GUID AddNamed(Store& store, std::string_view name) {
  auto record = Named<typename Store::RecordType>(name);
  platform::GUID id{};
  EXPECT_EQ(store.DBAlertRecAdd(record, id), alertstore::kOk) << name;
  return id;
}

/// The stored record of that identity; a failure fails the test.
template <class Store>
auto Stored(Store& store, const platform::GUID& id) {
  typename Store::RecordType record{};
  alertstore::SetIdentity(record, id);
  EXPECT_EQ(store.DBAlertRecRetrieve(id, record), alertstore::kOk);
  return record;
}
