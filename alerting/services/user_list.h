// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>

#include "alerting/frame/stores.h"
#include "platform/ui/lists.h"

namespace alerting {

/// The user identities behind the items of a user list, in one table that all services share. Each listing
/// fills it again from its start, so item data is good until the next listing only.
class ListedUsers {
 public:
  static constexpr std::size_t kCapacity = 10'000;

  static ListedUsers& StartAgain();
  bool Empty() const { return count_ == 0; }
  bool Full() const { return count_ == kCapacity; }
  /// Keeps a copy and answers its address as item data. Not when full.
  platform::ui::ItemData Keep(const GUID& user);

  /// The identity behind an item's data.
  static const GUID& UserOf(platform::ui::ItemData data) { return *reinterpret_cast<const GUID*>(data); }

 private:
  std::array<GUID, kCapacity> users_;
  std::size_t count_ = 0;
};

}  // namespace alerting
