// SPDX-License-Identifier: MIT
#include "companions/alertstore/sqlite_layout.h"

#include "companions/alertstore/problem.h"
#include "companions/alertstore/schemas.h"
#include "companions/alertstore/sqlite_statement.h"

namespace alertstore {
namespace {

constexpr std::string_view kColumns = "id INTEGER,record BLOB";

std::string IndexName(const StoreSchema& schema, const Selector& selector) {
  return '"' + schema.file + '.' + std::to_string(selector.number) + '"';
}

bool IsUnique(const Selector& selector) {
  return selector.kind == KeyKind::kIdentity || selector.kind == KeyKind::kUniqueText;
}

std::string Bytes(std::uint32_t offset, std::uint32_t width) {
  return "substr(record," + std::to_string(offset + 1) + ',' + std::to_string(width) + ')';
}

}  // namespace

std::string TableName(const StoreSchema& schema) { return '"' + schema.file + '"'; }

std::string KeyExpression(const Selector& selector) {
  constexpr std::uint32_t kGuidWidth = sizeof(platform::GUID);
  const std::string field = Bytes(selector.offset, selector.width);
  switch (selector.kind) {
    case KeyKind::kIdentity:
    case KeyKind::kGuid:
      return field;
    case KeyKind::kGuidPair:
      return "CAST(" + Bytes(selector.offset, kGuidWidth) + "||" + Bytes(selector.second_offset, kGuidWidth) +
             " AS BLOB)";
    default:
      // The text alone, so that what stands behind its terminator makes no difference.
      return "substr(record," + std::to_string(selector.offset + 1) + ",ifnull(nullif(instr(" + field +
             ",x'00'),0)," + std::to_string(selector.width + 1) + ")-1)";
  }
}

Status RunSql(sqlite3* connection, const std::string& sql) {
  Statement statement{sql};
  if (const Status status = statement.Start(connection); status != kOk) return status;
  return statement.Execute();
}

Status FindTable(sqlite3* connection, const StoreSchema& schema, bool& found) {
  Statement columns{"SELECT group_concat(name||' '||type) FROM pragma_table_info('" + schema.file + "')"};
  if (const Status status = columns.Start(connection); status != kOk) return status;
  const ResetAtExit reset(columns);
  const int result = columns.Step();
  if (result != SQLITE_ROW) return columns.StatusOf(result);
  const std::string_view text = columns.Bytes(0);
  found = !text.empty();
  if (!found || text == kColumns) return kOk;
  return Fail(kCorrupt, "the table \"" + schema.file + "\" in " + sqlite3_db_filename(connection, "main") +
                            " is not of this program: it has other columns");
}

Status CreateTable(sqlite3* connection, const StoreSchema& schema) {
  const std::string table = TableName(schema);
  Status status = RunSql(
      connection, "CREATE TABLE IF NOT EXISTS " + table + "(id INTEGER PRIMARY KEY, record BLOB NOT NULL)");
  for (const Selector& selector : schema.selectors) {
    if (status != kOk) return status;
    const std::string create = IsUnique(selector) ? "CREATE UNIQUE INDEX" : "CREATE INDEX";
    status = RunSql(connection, create + " IF NOT EXISTS " + IndexName(schema, selector) + " ON " + table +
                                    '(' + KeyExpression(selector) + ')');
  }
  return status;
}

Status ReadLayoutVersion(sqlite3* connection, int& version) {
  Statement read{"PRAGMA user_version"};
  if (const Status status = read.Start(connection); status != kOk) return status;
  const ResetAtExit reset(read);
  const int result = read.Step();
  if (result == SQLITE_ROW) version = static_cast<int>(read.Number(0));
  return read.StatusOf(result);
}

Status CreateLayout(sqlite3* connection) {
  for (const StoreSchema& schema : SiteSchemas())
    if (const Status status = CreateTable(connection, schema); status != kOk) return status;
  return RunSql(connection, "PRAGMA user_version=" + std::to_string(kLayoutVersion));
}

}  // namespace alertstore
