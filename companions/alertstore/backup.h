// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include "companions/alertstore/status.h"

// Copies of the embedded database of the data directory, taken and put back while consoles run. Copying its files by
// hand tears a database that is in use. A failure is explained by ProblemText.

namespace alertstore {

struct Copied {
  std::size_t records = 0;  ///< in all stores
  /// Where a damaged database was put that had to make room; empty when there was none.
  std::string set_aside;
};

/// Copies the records as they are at one moment into a single file, which replaces an older copy of that name when it is
/// whole. kNotFound when there is no database, kCorrupt when it is damaged, kInvalidArgument when the name stands for
/// something else than a copy.
Status BackUp(const std::string& file, Copied& copied);

/// Puts the records of a copy in place of those that are there, all in one step; consoles see them with their next read.
/// The copy is checked first. kNotFound when there is no such file, kCorrupt when it is no whole copy.
Status Restore(const std::string& file, Copied& copied);

}  // namespace alertstore
