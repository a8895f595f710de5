// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "companions/alertstore/status.h"
#include "platform/base/guid.h"

// What lists of the site show. Of each record only what a list has a column for.

namespace site {

/// A notification service.
struct Service {
  platform::GUID id;
  std::string name;
  std::uint32_t record_type = 0;  ///< type code plus 1
  bool on = false;                ///< its own switch
  std::vector<std::string>
      managers;           ///< those that deliver through it; " (backup)" behind the name of a backup
  std::size_t users = 0;  ///< how many have an entry on it
  std::string modem, backup_modem;  ///< "" for none
};

/// A user's entry on a service.
struct Entry {
  platform::GUID user, service;
  std::string service_name;
  std::uint32_t record_type = 0;
  std::string address;
  bool enabled = false;
};

struct User {
  platform::GUID id;
  std::string name;
  std::size_t entries = 0;
};

/// What is sent when an alert occurs. The records that tests are sent with are none of the site's responses.
struct Response {
  platform::GUID id, service, user;
  std::string service_name, user_name;
  std::uint32_t record_type = 0;
  std::string subject, message;  ///< with the keywords' names
};

struct Manager {
  platform::GUID id;
  std::string name;
  std::vector<platform::GUID> services;         ///< that it delivers, in the order of enabling
  std::vector<platform::GUID> backup_services;  ///< that it delivers in place of another that fails
};

/// The site at one moment, each kind in the order of adding. Entries and names that point at a deleted service are there as
/// the records have them.
struct Overview {
  std::vector<Service> services;
  std::vector<User> users;
  std::vector<Entry> entries;
  std::vector<Response> responses;
  std::vector<Manager> managers;
};

/// Reads all stores that lists are made of. On failure `overview` stays as it was.
alertstore::Status ReadOverview(Overview& overview);

/// The items of a list by their identity, for who looks up more than one of them.
template <class Item>
std::map<platform::GUID, const Item*> ById(const std::vector<Item>& list) {
  std::map<platform::GUID, const Item*> items;
  for (const Item& item : list) items.emplace(item.id, &item);
  return items;
}

/// The one of `list` with that identity, or null.
template <class Item>
const Item* Find(const std::vector<Item>& list, const platform::GUID& id) {
  for (const Item& item : list)
    if (item.id == id) return &item;
  return nullptr;
}

}  // namespace site
