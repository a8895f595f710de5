// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "companions/alertstore/named_objects.h"
#include "companions/alertstore/schema.h"
#include "companions/alertstore/status.h"
#include "platform/base/guid.h"

namespace alertstore {

/// The display name of a console user, as the store knows it. Writes at most `size` bytes with the
/// terminator, and cuts a longer name before a whole UTF-8 sequence. kNotFound, and the buffer as it was, for
/// an unknown user; kInvalidArgument for a null or empty buffer.
Status QevGetUserName(const platform::GUID& user, std::uint32_t size, char* buffer);

// The table of console users, for the command line that administers it.

using ConsoleUser = NamedObject;

inline constexpr std::size_t kMaxConsoleUserName = kMaxObjectName;

/// How the store keeps them.
const StoreSchema& ConsoleUserSchema();

/// kInvalidArgument for a null identity and for a name that is empty, longer than 64 bytes or holds a zero
/// byte; kNotUnique for an identity that is there.
Status AddConsoleUser(const platform::GUID& id, std::string_view name);
/// kNotFound when there is no such user. The user's entries on services stay.
Status RemoveConsoleUser(const platform::GUID& id);
/// Replaces `users` by all users in the order of adding; on failure `users` stays as it was.
Status ListConsoleUsers(std::vector<ConsoleUser>& users);

}  // namespace alertstore
