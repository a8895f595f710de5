// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lab {

/// One element of the Basic Encoding Rules (ITU-T X.690): a tag of one byte, a length and the content. Both texts lie
/// in the bytes that were read.
struct BerElement {
  std::uint8_t tag = 0;
  std::string_view content;
  std::string_view whole;  ///< with tag and length
};

/// Reads elements one after another. Once something is not as it must be, nothing more is read.
class BerReader {
 public:
  explicit BerReader(std::string_view bytes) : rest_(bytes) {}

  bool IsAtEnd() const { return rest_.empty(); }
  /// False after an element that is cut off, has another tag than asked for, or a length in no usable form.
  bool IsGood() const { return good_; }

  BerElement Next();
  /// The content of an element that must have this tag; empty when it has not.
  std::string_view Next(std::uint8_t tag);
  /// An INTEGER of at most 8 bytes.
  std::int64_t NextInteger();

 private:
  BerElement Fail();
  std::optional<std::size_t> TakeLength();

  std::string_view rest_;
  bool good_ = true;
};

/// Whole numbers, most significant byte first: with a sign, and the unsigned ones of SNMP's own types.
std::int64_t BerInteger(std::string_view content);
std::uint64_t BerUnsigned(std::string_view content);
/// "1.3.6.1.4.1", or "" for what is no object identifier.
std::string BerObjectIdentifier(std::string_view content);

}  // namespace lab
