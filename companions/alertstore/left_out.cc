// SPDX-License-Identifier: MIT
#include "companions/alertstore/left_out.h"

#include <map>
#include <mutex>
#include <set>

namespace alertstore {
namespace {

struct Registry {
  std::mutex mutex;
  std::map<std::string, std::set<std::int64_t>> records;
};

Registry& TheRegistry() {
  static auto* registry = new Registry;  // stores may be read while static objects are destroyed
  return *registry;
}

}  // namespace

std::vector<LeftOut> LeftOutRecords() {
  Registry& registry = TheRegistry();
  const std::lock_guard lock(registry.mutex);
  std::vector<LeftOut> list;
  for (const auto& [store, records] : registry.records) list.push_back({store, records.size()});
  return list;
}

std::string DescribeLeftOut(const std::vector<LeftOut>& left_out) {
  std::string text;
  std::size_t count = 0;
  for (const auto& [store, records] : left_out) {
    text += (text.empty() ? "" : " and ") + std::to_string(records) +
            (records == 1 ? " record in " : " records in ") + store;
    count += records;
  }
  if (count == 0) return text;
  return text + (count == 1 ? " cannot be read and is left out" : " cannot be read and are left out");
}

void ForgetLeftOut(const std::string& store) {
  Registry& registry = TheRegistry();
  const std::lock_guard lock(registry.mutex);
  registry.records.erase(store);
}

void NoteLeftOut(const std::string& store, std::int64_t record) {
  Registry& registry = TheRegistry();
  const std::lock_guard lock(registry.mutex);
  registry.records[store].insert(record);
}

}  // namespace alertstore
