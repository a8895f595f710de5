// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

namespace site {

/// The text of a file of any origin, of at most `limit` megabytes, without the mark that some programs put before UTF-8.
/// Throws a Failure: kNothingMatched when there is no such file, kStoreFailure when it cannot be read, kInvalid when it is
/// too large, no regular file or UTF-16. Other bytes that are not UTF-8 are left in.
std::string ReadTextFile(const std::string& path, std::size_t limit);

}  // namespace site
