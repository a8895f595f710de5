// SPDX-License-Identifier: MIT
#include "companions/alertstore/console_users.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "companions/alertstore/guarded.h"
#include "companions/alertstore/record_fields.h"
#include "companions/alertstore/store.h"
#include "platform/base/utf8.h"

namespace alertstore {
namespace {

struct ConsoleUserRecord {
  platform::GUID guid;
  platform::FixedText<kMaxConsoleUserName + 1> name;
};

static_assert(IsRecord<ConsoleUserRecord, 81>);

constexpr std::uint32_t kUserByIdentity = 1;

class ConsoleUserStore : public RecordStore<ConsoleUserRecord> {
 public:
  ConsoleUserStore() : RecordStore(ConsoleUserSchema()) {}
};

// Runs an operation on the open store.
template <class Operation>
Status WithStore(Operation operation) {
  return Guarded([&] {
    ConsoleUserStore store;
    const Status status = store.DBOpen();
    return status == kOk ? operation(store) : status;
  });
}

bool IsName(std::string_view name) {
  return !name.empty() && name.size() <= kMaxConsoleUserName && name.find('\0') == name.npos;
}

}  // namespace

const StoreSchema& ConsoleUserSchema() {
  static const StoreSchema schema{"ConsoleUsers.dat",
                                  sizeof(ConsoleUserRecord),
                                  {{kUserByIdentity, KeyKind::kIdentity, 0, sizeof(platform::GUID)}}};
  return schema;
}

Status QevGetUserName(const platform::GUID& user, std::uint32_t size, char* buffer) {
  if (buffer == nullptr || size == 0) return kInvalidArgument;
  return WithStore([&](ConsoleUserStore& store) {
    ConsoleUserRecord record{user, {}};
    if (const Status status = store.DBAlertRecRetrieve(user, record); status != kOk) return status;
    const std::string_view name = record.name.View();
    const std::size_t length = platform::Utf8Prefix(name, size - 1);
    std::memcpy(buffer, name.data(), length);
    buffer[length] = '\0';
    return kOk;
  });
}

Status AddConsoleUser(const platform::GUID& id, std::string_view name) {
  if (!IsName(name)) return kInvalidArgument;
  return WithStore([&](ConsoleUserStore& store) {
    ConsoleUserRecord record{id, {}};
    record.name.Assign(name);
    return store.AddWithIdentity(record);
  });
}

Status RemoveConsoleUser(const platform::GUID& id) {
  return WithStore([&](ConsoleUserStore& store) { return store.DBAlertRecDelete(id); });
}

Status ListConsoleUsers(std::vector<ConsoleUser>& users) {
  return WithStore([&](ConsoleUserStore& store) {
    std::vector<ConsoleUser> listed;
    ConsoleUserRecord record{};
    Status status = store.DBAlertRecFindFirst(kUserByIdentity, 0, nullptr, record);
    for (; status == kOk; status = store.DBAlertRecFindNext(record))
      listed.push_back({record.guid, std::string(record.name.View())});
    if (status != kNotFound && status != kEndOfScan) return status;
    users = std::move(listed);
    return kOk;
  });
}

}  // namespace alertstore
