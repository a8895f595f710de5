// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include "companions/dbconfig/fields.h"
#include "companions/dbconfig/site.h"

namespace dbconfig {

class StoreReader;

/// Where a service-specific record keeps its default message. A type without a subject or priority leaves
/// them out.
struct MessageFields {
  Field body;
  Field body_keywords;
  Field subject;
  Field subject_keywords;
  Field priority;
};

using MakeStoreReader = std::unique_ptr<StoreReader> (*)(Records& out);

/// What sets one service type apart in the configuration file.
struct ServiceType {
  std::uint32_t record_type;                ///< service type code plus 1, as records hold it
  const char* key;                          ///< the type's name in the file
  MakeStoreReader read_specific = nullptr;  ///< null for a type without service-specific records
  Fields settings;
  MessageFields message;
  Fields modem;                          ///< empty for a type that does not dial
  MakeStoreReader read_users = nullptr;  ///< null for a type without users
  Fields user;
};

/// Every type that is configured here, in the order of the type codes.
std::span<const ServiceType> ServiceTypes();
/// The type with that record type, or null.
const ServiceType* FindServiceType(std::uint32_t record_type);

}  // namespace dbconfig
