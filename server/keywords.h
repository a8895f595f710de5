// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "platform/base/utc_time.h"
#include "server/response_record.h"

namespace alertserver {

/// Where the values of keywords come from: the machine, the moment and the recipient.
struct KeywordSources {
  std::string user_name, workstation, site_name, address;
  platform::UtcTime now;
};

/// A keyword: the placeholder that stands for it in stored texts, and what a test puts in its place.
struct KeywordRow {
  std::uint8_t id;
  std::string_view name, placeholder;
  std::string (*value)(const KeywordSources& sources);
};

/// The keywords in the order of their identifiers.
std::span<const KeywordRow> KeywordRows();

/// Puts values in the place of placeholders, in one text after the other: the keywords go on where the text before ended.
class KeywordFiller {
 public:
  KeywordFiller(const KeywordIds& ids, const KeywordSources& sources) : ids_(ids), sources_(sources) {}
  /// A "%" that begins no placeholder of the next keyword is an ordinary character.
  std::string Fill(std::string_view text);

 private:
  const KeywordIds& ids_;
  const KeywordSources& sources_;
  std::size_t next_ = 0;
};

std::string FillKeywords(const StoredText& text, const KeywordSources& sources);

}  // namespace alertserver
