// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/base/guid.h"

namespace alertserver {

inline constexpr std::size_t kRecordSize = 3989;
inline constexpr std::size_t kMaxKeywords = 20;
/// What stands behind each placeholder of a text, in order; 0 for none.
using KeywordIds = std::array<std::uint8_t, kMaxKeywords>;

/// A text as records store it: with placeholders in the place of keywords.
struct StoredText {
  std::string text;
  KeywordIds keywords{};
};

/// The response that a test sends, from the 3,989 bytes of ALERTRESPREC (docs/records.md). Texts are UTF-8 whatever the
/// record's bytes are.
struct ResponseRecord {
  std::uint16_t priority = 0;  ///< 0 urgent, 1 normal, 2 low
  std::string user_name;       ///< the recipient or the target computer
  StoredText message;          ///< for a program, its command line
  StoredText subject;          ///< for a sound or a program, its file
  platform::GUID user{};
  platform::GUID service{};
  std::uint32_t service_type = 0;  ///< type code plus 1
};

/// Where the fields are. The server reads the record by this table, not by the stores' struct: it is built without them.
namespace offsets {
inline constexpr std::size_t kPriority = 994, kUserName = 996, kMessage = 1514, kSubject = 3563,
                             kUserId = 3824, kServiceId = 3840, kMessageKeywords = 3937,
                             kSubjectKeywords = 3957, kServiceType = 3985;
inline constexpr std::size_t kUserNameWidth = 258, kMessageWidth = 2049, kSubjectWidth = 261;
}  // namespace offsets

/// Nothing for bytes of another number.
std::optional<ResponseRecord> DecodeResponse(std::string_view bytes);

}  // namespace alertserver
