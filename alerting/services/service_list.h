// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include "alerting/services/guid_hash.h"
#include "alerting/services/ntfy_service.h"

namespace alerting {

/// The library's picture of all site services: one object per common record whose type has a class, in the
/// store's order. Read once, on first use, and again after it was emptied. Owns its objects.
class CNtfyServiceList {
 public:
  /// Makes sure that the list is current. False, after a message the first time, when the stores could not be
  /// read and never have been.
  bool Read();
  int GetCount() const { return static_cast<int>(services_.size()); }
  /// Null for an index out of range.
  CNtfyService* GetAt(int index) const;
  /// The first service with that identity.
  std::optional<int> FindById(const GUID& id) const;
  /// True when no service at a lower index has the same type code. False for an index out of range.
  bool IsFirstOfType(int index) const;
  /// Reads one record and appends its object. False when it cannot be read (a message) or its type has no
  /// class.
  bool AddFromStore(const GUID& id);
  /// Takes the service from the list, deletes its record and destroys the object; what deleting the record
  /// answered.
  bool DeleteAt(int index);
  void RemoveAll();

 private:
  /// Loads the object of a record; null for a type without a class. A failed load keeps the object.
  static std::unique_ptr<CNtfyService> MakeObject(const ALRTNTFYSERV& record);
  bool ReadAll();
  void Append(std::unique_ptr<CNtfyService> service);
  void IndexFrom(std::size_t index);

  std::vector<std::unique_ptr<CNtfyService>> services_;
  bool stale_ = true;
  bool has_been_read_ = false;  ///< set by the first read that succeeds, never cleared
  // Look-ups in lists of many thousands: the first index of each identity and of each type code.
  std::unordered_map<GUID, int, GuidHash> by_id_;
  std::unordered_map<std::uint32_t, int> first_of_type_;
};

/// The process-wide list.
CNtfyServiceList& TheServices();

/// An object of the type's class, not loaded yet; null for a code without one.
std::unique_ptr<CNtfyService> MakeService(std::uint32_t code, const GUID& id);

}  // namespace alerting
