// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/base/descriptor.h"

// Files that programs of one account hand to each other. What others may have laid in their place is refused.

namespace alertserver {

/// Opens a regular file with one name that belongs to its directory's owner, for reading. Not open where it cannot be
/// had; `problem` then says why, in words that can follow "because", or is empty where there is no such file.
platform::Descriptor OpenSafeFile(const std::string& path, std::string& problem);

/// Reads an open file from its beginning. False, with the problem, for one longer than `limit` bytes.
bool ReadOpenFile(int file, std::size_t limit, std::string& text, std::string& problem);

/// Both.
bool ReadSafeFile(const std::string& path, std::size_t limit, std::string& text, std::string& problem);

}  // namespace alertserver
