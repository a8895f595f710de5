// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace agentui {

/// The lists, by the names that they have in the file.
inline constexpr char kAddresses[] = "addresses";
inline constexpr char kCommunities[] = "communities";
inline constexpr char kPrograms[] = "programs";

inline constexpr std::size_t kRecentLimit = 20;

/// The entries of a list, newest first, as the file has them now. A file that is missing or damaged has none.
std::vector<std::string> RecentEntries(const std::string& list);

/// Puts an entry in front of its list, which then holds it once and at most kRecentLimit entries. The file is
/// read anew, so entries of other consoles are kept; of two consoles that write in the same moment the last
/// one wins. An entry that cannot be stored is forgotten: nothing depends on it.
void AddRecentEntry(const std::string& list, std::string_view entry);

}  // namespace agentui
