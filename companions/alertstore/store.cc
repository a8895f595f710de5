// SPDX-License-Identifier: MIT
#include "companions/alertstore/store.h"

#include <algorithm>
#include <utility>

#include "companions/alertstore/guarded.h"

namespace alertstore {
namespace {

constexpr std::size_t kMaxFileName = 64;

bool IsFileName(std::string_view name) {
  constexpr std::string_view kAllowed = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789._-";
  return !name.empty() && name.size() <= kMaxFileName && name.find_first_not_of(kAllowed) == name.npos;
}

bool IsText(const Selector& selector) {
  return selector.kind == KeyKind::kText || selector.kind == KeyKind::kUniqueText;
}

std::string_view UpToTerminator(std::string_view text) {
  return text.substr(0, std::min(text.find('\0'), text.size()));
}

}  // namespace

Status QEVDB::DBFileLock() { return store_.IsOpen() ? store_.table_->Lock() : kStoreClosed; }

Status QEVDB::DBFileUnlock() { return store_.IsOpen() ? store_.table_->Unlock() : kStoreClosed; }

StoreBase::StoreBase(StoreSchema schema) : schema_(std::move(schema)) {}

StoreBase::~StoreBase() = default;

Status StoreBase::DBOpen() {
  if (IsOpen()) return kOk;
  if (!IsFileName(schema_.file)) return kInvalidArgument;
  return Guarded([&] {
    engine_ = CurrentEngine();
    return engine_->Open(schema_, table_);
  });
}

Status StoreBase::DBAlertRecDelete(const platform::GUID& id) {
  return IsOpen() ? table_->Delete(id) : kStoreClosed;
}

Status StoreBase::FindFirst(std::uint32_t selector, std::uint32_t key_length, const void* key, void* out) {
  scanning_ = false;
  if (!IsOpen()) return kStoreClosed;
  const Selector* found = schema_.Find(selector);
  if (found == nullptr || (key == nullptr && key_length > 0)) return kInvalidArgument;
  const Status status = key_length == 0 ? table_->FindFirst(out)
                                        : FindKey(*found, {static_cast<const char*>(key), key_length}, out);
  scanning_ = status == kOk;
  return status;
}

// Gives the table the key as the selector's field would hold it. No field holds a key that is longer.
Status StoreBase::FindKey(const Selector& selector, std::string_view given, void* out) {
  const std::string_view key = IsText(selector) ? UpToTerminator(given) : given;
  if (key.size() > selector.width) return kNotFound;
  if (IsText(selector) || key.size() == selector.width) return table_->FindFirst(selector, key, out);
  return Guarded([&] {
    std::string padded(key);
    padded.resize(selector.width);
    return table_->FindFirst(selector, padded, out);
  });
}

Status StoreBase::FindNext(void* out) {
  if (!IsOpen()) return kStoreClosed;
  return scanning_ ? table_->FindNext(out) : kEndOfScan;
}

Status StoreBase::Retrieve(const platform::GUID& id, void* out) {
  return IsOpen() ? table_->Retrieve(id, out) : kStoreClosed;
}

Status StoreBase::Add(const void* record) { return IsOpen() ? table_->Add(record) : kStoreClosed; }

Status StoreBase::AddPair(const void* record, const StoreSchema& other, const void* other_record) {
  return IsOpen() ? table_->AddPair(record, other, other_record) : kStoreClosed;
}

Status StoreBase::Update(const void* record) { return IsOpen() ? table_->Update(record) : kStoreClosed; }

}  // namespace alertstore
