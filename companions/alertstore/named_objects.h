// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "companions/alertstore/schema.h"
#include "companions/alertstore/status.h"
#include "platform/base/guid.h"

// Stores that know of something no more than an identity and a name: the console's users, the site's computers.

namespace alertstore {

struct NamedObject {
  platform::GUID id;
  std::string name;
};

inline constexpr std::size_t kMaxObjectName = 64;

/// The schema of such a store, by the name of its file.
StoreSchema NamedObjectSchema(std::string file);

/// The name, cut to `size` bytes with the terminator before a whole UTF-8 sequence. kNotFound, and the buffer as it was,
/// for an unknown identity; kInvalidArgument for a null or empty buffer.
Status NameOfObject(const StoreSchema& schema, const platform::GUID& id, std::uint32_t size, char* buffer);
/// kInvalidArgument for a null identity and for a name that is empty, longer than 64 bytes or holds a zero byte;
/// kNotUnique for an identity that is there.
Status AddNamedObject(const StoreSchema& schema, const platform::GUID& id, std::string_view name);
/// kInvalidArgument for a name as above; kNotFound when there is no such object.
Status RenameNamedObject(const StoreSchema& schema, const platform::GUID& id, std::string_view name);
/// kNotFound when there is no such object.
Status RemoveNamedObject(const StoreSchema& schema, const platform::GUID& id);
/// Replaces `objects` by all objects in the order of adding; on failure `objects` stays as it was.
Status ListNamedObjects(const StoreSchema& schema, std::vector<NamedObject>& objects);

}  // namespace alertstore
