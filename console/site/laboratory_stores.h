// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "companions/alertstore/status.h"
#include "companions/dbconfig/fields.h"
#include "platform/base/guid.h"

namespace site {

/// A store whose records a laboratory changes or adds to, by the name that its file has for it. Each call takes the store's
/// lock for as long as it lasts, so that nobody changes a record between the look at it and the change.
struct LaboratoryStore {
  /// Changes a record in place; false leaves it as it is in the store.
  using Edit = std::function<bool(char* record)>;

  const char* name;
  alertstore::Status (*edit)(const platform::GUID& id, const Edit& edit);
  alertstore::Status (*add)(const std::string& record);
  /// Removes the record that `record` is a copy of. `removed` is false where it is another by now; kNotFound where it is gone.
  alertstore::Status (*remove)(const std::string& record, bool& removed);
};

/// Null where no store has the name.
const LaboratoryStore* FindLaboratoryStore(const std::string& name);
/// A field of the service-specific records of a type, which is named as the store; null where they have none.
const dbconfig::Field* FindLaboratoryField(const std::string& store, const std::string& field);

}  // namespace site
