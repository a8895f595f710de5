// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "companions/alertstore/record_fields.h"

// Message keywords: bracketed names that stand for a field of the alert, such as "<User Name>". Messages are shown
// with the names and stored with short placeholders ("%s", "%ld") plus a list of the keywords' identifiers in order
// of appearance.

namespace alertrecords {

inline constexpr std::uint32_t kKeywordCount = 13;
inline constexpr std::size_t kMaxKeywords = alertstore::kKeywordSlots;
/// One identifier per placeholder, in order; 0 where there is none.
using KeywordIds = std::array<std::uint32_t, kMaxKeywords>;

/// One row of the keyword table. The last row in use has identifier 0 and an empty name.
struct Keyword {
  char name[40];
  std::uint32_t id;
  char format[40];
};

/// The keywords, and the two forms of a message with them.
class KeywordTable {
 public:
  /// Adds the keyword whose identifier comes next, from 1 on.
  void Add(std::string_view name, std::string_view format);

  /// The rows in use: those before the first without a name.
  std::span<const Keyword> Keywords() const;
  /// Null for an identifier that the table does not have.
  const Keyword* Find(std::uint32_t id) const;
  /// The index of the first keyword whose name stands at `pos`, whatever its case; -1 if none does.
  int FindNameAt(std::string_view text, std::size_t pos) const;
  /// True when the text at `pos` begins with the placeholder of `id`; false for an unknown identifier.
  bool FormatMatchesAt(std::string_view text, std::size_t pos, std::uint32_t id) const;

  /// From the shown to the stored form: the first 20 keywords become placeholders, `ids` takes their identifiers.
  std::string Collapse(std::string_view shown, KeywordIds& ids) const;
  /// From the stored to the shown form. A "%" that begins no placeholder of the next identifier stays as it is.
  std::string Expand(std::string_view stored, const KeywordIds& ids) const;
  /// Cuts a stored form to at most `limit` bytes so that text and identifiers stay in step: no placeholder is
  /// cut in two, and the identifiers of placeholders that fell away are zeroed.
  std::string Fit(std::string_view stored, KeywordIds& ids, std::size_t limit) const;

  /// The slots of a default message: name and placeholder beside each identifier.
  void FillSlots(const KeywordIds& ids, alertstore::KeywordSlot (&slots)[kMaxKeywords]) const;

 private:
  /// The length of the placeholder at `pos` that stands for the k-th identifier; 0 where none does.
  std::size_t PlaceholderAt(std::string_view stored, std::size_t pos, const KeywordIds& ids,
                            std::size_t k) const;

  std::array<Keyword, 15> rows_{};
  std::size_t count_ = 0;
};

/// Identifiers as a response stores them, the low byte of each.
void FillResponseKeywords(const KeywordIds& ids, std::uint8_t (&bytes)[kMaxKeywords]);

}  // namespace alertrecords
