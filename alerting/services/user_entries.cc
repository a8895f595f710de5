// SPDX-License-Identifier: MIT
#include "alerting/services/user_entries.h"

namespace alerting {

ListedUsers& ListedUsers::StartAgain() {
  static ListedUsers listed;
  listed.count_ = 0;
  return listed;
}

platform::ui::ItemData ListedUsers::Keep(const GUID& user) {
  users_[count_] = user;
  return reinterpret_cast<platform::ui::ItemData>(&users_[count_++]);
}

void GetUnknownUserEntry(const GUID& user, UserEntry& entry) {
  char name[64];
  if (QevGetUserName(user, sizeof(name), name) == kOk) entry.name = name;
  entry.enabled = 1;
}

}  // namespace alerting
