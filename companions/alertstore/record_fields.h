// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "platform/base/fixed_text.h"
#include "platform/base/guid.h"
#include "platform/base/little_endian.h"

namespace alertstore {

/// What a record must be to travel as its bytes: trivial, laid out in the order of its members, without
/// padding.
template <class Record, std::size_t size>
inline constexpr bool IsRecord = std::is_trivial_v<Record>&& std::is_standard_layout_v<Record> &&
                                 alignof(Record) == 1 && sizeof(Record) == size;

/// One keyword of a default message: what stands behind one placeholder of the text.
struct KeywordSlot {
  platform::FixedText<41> text;   ///< the keyword as people see it, "<User Name>"
  platform::LittleU32 id;         ///< the keyword's identifier; 0 in a slot that is not used
  platform::FixedText<6> format;  ///< the placeholder, "%s"
};

static_assert(IsRecord<KeywordSlot, 51>);
static_assert(offsetof(KeywordSlot, text) == 0);
static_assert(offsetof(KeywordSlot, id) == 41);
static_assert(offsetof(KeywordSlot, format) == 45);

inline constexpr std::size_t kKeywordSlots = 20;

}  // namespace alertstore
