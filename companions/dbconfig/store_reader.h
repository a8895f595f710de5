// SPDX-License-Identifier: MIT
#pragma once

#include <cstring>
#include <memory>
#include <vector>

#include "companions/alertstore/stores.h"
#include "companions/dbconfig/site.h"

namespace dbconfig {

/// Reads one store whole. Opening comes first, for all stores, so that they are then read at one moment.
class StoreReader {
 public:
  virtual ~StoreReader() = default;
  virtual alertstore::Status Open() = 0;
  virtual alertstore::Status ReadAll() = 0;
};

inline void Append(Records& records, const void* record, std::size_t size) {
  records.emplace_back(static_cast<const char*>(record), size);
}
template <class Record>
void Append(std::vector<Record>& records, const Record* record, std::size_t) {
  records.push_back(*record);
}

/// Appends the records of a `Store` to `out`, as bytes or as records.
template <class Store, class Out>
class StoreReaderOf : public StoreReader {
 public:
  explicit StoreReaderOf(Out& out) : out_(out) {}

  alertstore::Status Open() override { return store_.DBOpen(); }

  alertstore::Status ReadAll() override {
    const auto record = std::make_unique<typename Store::RecordType>();
    const std::uint32_t selector = store_.Schema().selectors.front().number;
    alertstore::Status status = store_.DBAlertRecFindFirst(selector, 0, nullptr, *record);
    while (status == alertstore::kOk) {
      Append(out_, record.get(), sizeof *record);
      status = store_.DBAlertRecFindNext(*record);
    }
    const bool complete = status == alertstore::kNotFound || status == alertstore::kEndOfScan;
    return complete ? alertstore::kOk : status;
  }

 private:
  Out& out_;
  Store store_;
};

template <class Store, class Out>
std::unique_ptr<StoreReader> MakeReader(Out& out) {
  return std::make_unique<StoreReaderOf<Store, Out>>(out);
}

}  // namespace dbconfig
