// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>

#include <cstddef>
#include <memory>
#include <string>

#include "companions/alertstore/status.h"

// A copy of the database: one file without a journal.

namespace alertstore {

struct HandleCloser {
  void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
};
using Handle = std::unique_ptr<sqlite3, HandleCloser>;

/// The data directory without links in its path, which SQLite is told to refuse.
std::string RealDataDirectory();
bool NameIsTaken(const std::string& path);

/// Opens a file that is there for writing, with SQLite's own settings.
Status OpenForWriting(const std::string& file, Handle& handle);
/// Opens a copy for reading, which makes nothing beside it. kNotFound, kInvalidArgument or kCorrupt where there is no
/// file, no regular one, or one that has left its last records in a journal.
Status OpenBackup(const std::string& file, Handle& copy);
/// kCorrupt for what is damaged, not of these stores or of a newer program. Else says how many records there are.
Status CheckBackup(sqlite3* copy, const std::string& file, std::size_t& records);

/// Runs a statement that gives one row, such as a PRAGMA; answers its first column.
Status Ask(sqlite3* connection, const std::string& sql, std::string& answer);
/// Replaces the whole of `to` by what `from` holds at this moment, in one transaction.
Status CopyPages(sqlite3* to, sqlite3* from);

}  // namespace alertstore
