// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>

#include <string>

#include "companions/alertstore/schema.h"
#include "companions/alertstore/status.h"

// How a store lies in the embedded database: a table of record bytes under the name of its file, and an index for each
// key.

namespace alertstore {

/// Counts the changes of the layout; kept in the database, so that one of a newer program is recognised.
inline constexpr int kLayoutVersion = 3;

/// The table name of a store, quoted for a statement.
std::string TableName(const StoreSchema& schema);
/// The expression whose value is the key of a record, as the indexes hold it.
std::string KeyExpression(const Selector& selector);

/// Whether the store's table is there. kCorrupt when it is and has other columns.
Status FindTable(sqlite3* connection, const StoreSchema& schema, bool& found);
/// Makes the store's table and those of its indexes that are missing.
Status CreateTable(sqlite3* connection, const StoreSchema& schema);

Status ReadLayoutVersion(sqlite3* connection, int& version);
/// Makes what is missing for all stores of a site, and notes the layout's version; inside a write transaction.
Status CreateLayout(sqlite3* connection);

/// Runs a statement without parameters.
Status RunSql(sqlite3* connection, const std::string& sql);

}  // namespace alertstore
