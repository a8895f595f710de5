// SPDX-License-Identifier: MIT
#pragma once

#include "companions/alertstore/store.h"
#include "companions/alertstore/store_lock.h"

namespace site {

/// Shows every record of a store that is opened here to `visit`, whose answer other than kOk ends it. `selector` and `key`
/// narrow it to the records that bear the key.
template <class Store, class Visit, class... Key>
alertstore::Status Walk(Store& store, std::uint32_t selector, Visit&& visit, const Key&... key) {
  if (const alertstore::Status status = store.DBOpen()) return status;
  typename Store::RecordType record;
  alertstore::Status status;
  if constexpr (sizeof...(key) == 0)
    status = store.DBAlertRecFindFirst(selector, 0, nullptr, record);
  else
    status = store.DBAlertRecFindFirst(selector, (sizeof(key) + ...), &(key, ...), record);
  while (status == alertstore::kOk) {
    if (const alertstore::Status stopped = visit(record)) return stopped;
    status = store.DBAlertRecFindNext(record);
  }
  const bool at_end = status == alertstore::kNotFound || status == alertstore::kEndOfScan;
  return at_end ? alertstore::kOk : status;
}

/// The same, with all records.
template <class Store, class Visit>
alertstore::Status WalkAll(Store& store, Visit&& visit) {
  return Walk(store, store.Schema().selectors.front().number, std::forward<Visit>(visit));
}

/// Reads the record of that identity, lets `edit` change it and writes it, while no other console may.
template <class Store, class Edit>
alertstore::Status Change(Store& store, const platform::GUID& id, Edit&& edit) {
  if (const alertstore::Status status = store.DBOpen()) return status;
  const alertstore::StoreLock lock(store);
  if (lock.Result() != alertstore::kOk) return lock.Result();
  typename Store::RecordType record{};
  alertstore::SetIdentity(record, id);
  if (const alertstore::Status status = store.DBAlertRecRetrieve(id, record)) return status;
  edit(record);
  return store.DBAlertRecUpdate(record);
}

/// Changes every record that `belongs` says so of.
template <class Store, class Belongs, class Edit>
alertstore::Status ChangeAll(Store& store, Belongs&& belongs, Edit&& edit) {
  std::vector<platform::GUID> found;
  const alertstore::Status read = WalkAll(store, [&](const auto& record) {
    if (belongs(record)) found.push_back(alertstore::IdentityOf(record));
    return alertstore::kOk;
  });
  if (read != alertstore::kOk) return read;
  for (const platform::GUID& id : found)
    if (const alertstore::Status status = Change(store, id, edit);
        status != alertstore::kOk && status != alertstore::kNotFound)
      return status;
  return alertstore::kOk;
}

}  // namespace site
