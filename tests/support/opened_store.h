// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "companions/alertstore/stores.h"

namespace test_support {

/// What a scan of an open store gives.
template <class Store>
auto RecordsOf(Store& store, std::uint32_t selector, const platform::GUID* key = nullptr) {
  std::vector<typename Store::RecordType> records;
  typename Store::RecordType record{};
  auto status = store.DBAlertRecFindFirst(selector, key != nullptr ? 16 : 0, key, record);
  for (; status == alertstore::kOk; status = store.DBAlertRecFindNext(record)) records.push_back(record);
  return records;
}

/// Adds a record to an open store and answers its identity; a failure fails the test.
template <class Store>
platform::GUID AddRecord(Store&& store, typename std::remove_reference_t<Store>::RecordType record = {}) {
  platform::GUID id{};
  EXPECT_EQ(store.DBAlertRecAdd(record, id), alertstore::kOk);
  return id;
}

/// A store that is open; a failure fails the test.
template <class Store>
struct Opened : Store {
  template <class... Arguments>
  explicit Opened(Arguments... arguments) : Store(arguments...) {
    EXPECT_EQ(this->DBOpen(), alertstore::kOk);
  }
  /// The first record for which `wanted` holds; a missing one fails the test.
  template <class Wanted>
  typename Store::RecordType Find(Wanted wanted) {
    for (const auto& record : RecordsOf(*this, this->Schema().selectors.front().number))
      if (wanted(record)) return record;
    ADD_FAILURE() << "no such record in " << this->Schema().file;
    return {};
  }
  typename Store::RecordType First() {
    return Find([](const auto&) { return true; });
  }
};

}  // namespace test_support
