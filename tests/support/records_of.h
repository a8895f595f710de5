// SPDX-License-Identifier: MIT
#pragma once

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

}  // namespace test_support
