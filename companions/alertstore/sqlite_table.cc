// SPDX-License-Identifier: MIT
#include "companions/alertstore/sqlite_table.h"

#include <cstring>
#include <limits>
#include <mutex>
#include <utility>

#include "companions/alertstore/guarded.h"
#include "companions/alertstore/left_out.h"
#include "companions/alertstore/problem.h"
#include "companions/alertstore/sqlite_layout.h"

namespace alertstore {
namespace {

constexpr std::string_view kIdentity = "substr(record,1,16)";
constexpr std::int64_t kBeforeFirstRow = std::numeric_limits<std::int64_t>::min();

const char* Bytes(const void* record) { return static_cast<const char*>(record); }

std::string_view BytesOf(const platform::GUID& id) { return {Bytes(&id), sizeof id}; }

std::string InsertInto(const StoreSchema& schema) {
  return "INSERT INTO " + TableName(schema) + "(record) VALUES(?1)";
}

std::string SelectFrom(const StoreSchema& schema) { return "SELECT id,record FROM " + TableName(schema); }

std::string WithIdentity() { return " WHERE " + std::string(kIdentity) + "=?1"; }

}  // namespace

SqliteTable::KeyedFind::KeyedFind(const StoreSchema& schema, const Selector& by)
    : selector(by.number),
      first(SelectFrom(schema) + " WHERE " + KeyExpression(by) + "=?1 ORDER BY id"),
      next(SelectFrom(schema) + " WHERE " + KeyExpression(by) + "=?1 AND id>?2 ORDER BY id") {}

SqliteTable::SqliteTable(std::shared_ptr<Database> database, const StoreSchema& schema)
    : database_(std::move(database)),
      schema_(schema),
      lock_(database_->LockFile(), schema.file),
      scan_(SelectFrom(schema) + " WHERE id>?1 ORDER BY id"),
      retrieve_(SelectFrom(schema) + WithIdentity()),
      insert_(InsertInto(schema)),
      update_("UPDATE " + TableName(schema) + " SET record=?2" + WithIdentity()),
      delete_("DELETE FROM " + TableName(schema) + WithIdentity()) {
  for (const Selector& selector : schema.selectors)
    finds_.push_back(std::make_unique<KeyedFind>(schema, selector));
}

SqliteTable::~SqliteTable() { closing_ = database_->LockToClose(); }

template <class Operation>
Status SqliteTable::Run(Operation operation) {
  return Guarded([&] {
    const std::lock_guard lock(database_->Mutex());
    return operation();
  });
}

Status SqliteTable::Check() {
  if (const Status status = database_->Reading(); status != kOk) return status == kNotFound ? kOk : status;
  bool found = false;
  const Status status = FindTable(database_->Connection(), schema_, found);
  if (status == kOk && found) seen_generation_ = database_->Generation();
  return status;
}

template <class Operation>
Status SqliteTable::Read(Operation operation) {
  return Run([&] {
    if (const Status status = database_->Reading(); status != kOk) return status;
    if (seen_generation_ != database_->Generation())
      if (const Status status = Check(); status != kOk) return status;
    return seen_generation_ == database_->Generation() ? operation() : kNotFound;
  });
}

SqliteTable::KeyedFind* SqliteTable::FindOf(const Selector& selector) {
  for (const auto& find : finds_)
    if (find->selector == selector.number) return find.get();
  return nullptr;
}

Status SqliteTable::FindFirst(const Selector& selector, std::string_view key, void* out) {
  scan_kind_ = Scan::kNone;
  return Read([&] {
    KeyedFind* find = FindOf(selector);
    if (find == nullptr) return kInvalidArgument;
    if (scan_.Running()) scan_.Reset();
    find_ = find;
    key_ = key;
    scan_kind_ = Scan::kWithKey;
    const Status status = FirstWithKey(out);
    return status == kEndOfScan ? kNotFound : status;
  });
}

// Many callers want the first record alone, so it does not leave the statement running.
Status SqliteTable::FindFirst(void* out) {
  scan_kind_ = Scan::kNone;
  ForgetLeftOut(schema_.file);
  return Read([&] {
    if (const Status status = database_->CheckFile(); status != kOk) return status;
    scan_kind_ = Scan::kAll;
    last_id_ = kBeforeFirstRow;
    scan_.Reset();
    const Status status = NextOfAll(out);
    scan_.Reset();
    return status == kEndOfScan ? kNotFound : status;
  });
}

Status SqliteTable::FindNext(void* out) {
  if (scan_kind_ == Scan::kNone) return kEndOfScan;
  const Status status = Read([&] {
    if (scan_kind_ == Scan::kWithKey) return NextWithKey(out);
    const Status next = NextOfAll(out);
    if (!scan_.Running() || !database_->KeepScanRunning()) scan_.Reset();
    return next;
  });
  return status == kNotFound ? kEndOfScan : status;
}

Status SqliteTable::NextOfAll(void* out) {
  if (!scan_.Running()) {
    if (const Status status = scan_.Start(database_->Connection()); status != kOk) return status;
    scan_.Bind(1, last_id_);
  }
  return TakeRow(scan_, out);
}

Status SqliteTable::FirstWithKey(void* out) {
  Statement& first = find_->first;
  if (const Status status = first.Start(database_->Connection()); status != kOk) return status;
  const ResetAtExit reset(first);
  first.Bind(1, key_);
  return TakeRow(first, out);
}

Status SqliteTable::NextWithKey(void* out) {
  Statement& next = find_->next;
  if (const Status status = next.Start(database_->Connection()); status != kOk) return status;
  const ResetAtExit reset(next);
  next.Bind(1, key_);
  next.Bind(2, last_id_);
  return TakeRow(next, out);
}

// One record that cannot be read must not hide those behind it.
Status SqliteTable::TakeRow(Statement& statement, void* out) {
  for (;;) {
    const int result = statement.Step();
    if (result == SQLITE_DONE) {
      scan_kind_ = Scan::kNone;
      return kEndOfScan;
    }
    if (result != SQLITE_ROW) return statement.StatusOf(result);
    last_id_ = statement.Number(0);
    if (CopyRecord(statement, out)) return kOk;
    NoteLeftOut(schema_.file, last_id_);
  }
}

bool SqliteTable::CopyRecord(const Statement& statement, void* out) const {
  const std::string_view record = statement.Bytes(1);
  if (record.size() != schema_.record_size) return false;
  std::memcpy(out, record.data(), record.size());
  return true;
}

Status SqliteTable::Retrieve(const platform::GUID& id, void* out) {
  return Read([&] {
    if (const Status status = retrieve_.Start(database_->Connection()); status != kOk) return status;
    const ResetAtExit reset(retrieve_);
    retrieve_.Bind(1, BytesOf(id));
    const int result = retrieve_.Step();
    if (result == SQLITE_DONE) return kNotFound;
    if (result != SQLITE_ROW) return retrieve_.StatusOf(result);
    if (CopyRecord(retrieve_, out)) return kOk;
    return Fail(kCorrupt, "a record in " + schema_.file + " has a wrong length");
  });
}

Status SqliteTable::Insert(Statement& insert, std::string_view record) {
  if (const Status status = insert.Start(database_->Connection()); status != kOk) return status;
  insert.Bind(1, record);
  return insert.Execute();
}

Status SqliteTable::Add(const void* record) {
  return Run([&] {
    return database_->Write(schema_, [&] { return Insert(insert_, {Bytes(record), schema_.record_size}); });
  });
}

Status SqliteTable::AddPair(const void* record, const StoreSchema& other, const void* other_record) {
  return Run([&] {
    Statement insert_other{InsertInto(other)};
    return database_->Write(schema_, [&] {
      const Status status = Insert(insert_, {Bytes(record), schema_.record_size});
      return status != kOk ? status : Insert(insert_other, {Bytes(other_record), other.record_size});
    });
  });
}

// An identity finds at most one record, so no row changed means that it found none.
Status SqliteTable::Change(Statement& statement) {
  const Status status = statement.Execute();
  if (status != kOk) return status;
  return sqlite3_changes(database_->Connection()) == 0 ? kNotFound : kOk;
}

Status SqliteTable::Update(const void* record) {
  return Run([&] {
    return database_->Write(schema_, [&] {
      if (const Status status = update_.Start(database_->Connection()); status != kOk) return status;
      update_.Bind(1, {Bytes(record), sizeof(platform::GUID)});
      update_.Bind(2, {Bytes(record), schema_.record_size});
      return Change(update_);
    });
  });
}

Status SqliteTable::Delete(const platform::GUID& id) {
  return Run([&] {
    return database_->Write(schema_, [&] {
      if (const Status status = delete_.Start(database_->Connection()); status != kOk) return status;
      delete_.Bind(1, BytesOf(id));
      return Change(delete_);
    });
  });
}

// The wait is outside the database's mutex. A read transaction that began before the lock was got would show
// the record as it was before its last holder changed it.
Status SqliteTable::Lock() {
  return Guarded([&] {
    if (const Status status = database_->PrepareDirectory(); status != kOk) return status;
    if (const Status status = lock_.Acquire(); status != kOk) return status;
    return Run([&] {
      database_->EndScans();
      return kOk;
    });
  });
}

Status SqliteTable::Unlock() {
  return Guarded([&] { return lock_.Release(); });
}

}  // namespace alertstore
