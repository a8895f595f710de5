// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace alertstore {

enum class KeyKind {
  kIdentity,    ///< the record's first 16 bytes
  kGuid,        ///< another identity in the record; any number of records may share it
  kText,        ///< a text field; compared up to its terminator
  kUniqueText,  ///< a text field that no two records of the store share
  kGuidPair,    ///< two identities in the record, one behind the other in a key of 32 bytes
};

/// A way to look records up: a number that callers know, and the field that it compares.
struct Selector {
  std::uint32_t number;
  KeyKind kind;
  std::uint32_t offset;
  std::uint32_t width;              ///< of the key
  std::uint32_t second_offset = 0;  ///< of a kGuidPair's second identity
};

/// What an engine must know of a store.
struct StoreSchema {
  /// Name of the record file: letters, digits, '.', '_' and '-'.
  std::string file;
  std::uint32_t record_size;
  /// The identity first, then the further keys. Two selectors of one store have different numbers.
  std::vector<Selector> selectors;

  /// The selector of that number, or null.
  const Selector* Find(std::uint32_t number) const {
    for (const Selector& selector : selectors)
      if (selector.number == number) return &selector;
    return nullptr;
  }
};

}  // namespace alertstore
