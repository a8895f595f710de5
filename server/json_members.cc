// SPDX-License-Identifier: MIT
#include "server/json_members.h"

#include <limits>

#include "platform/base/json_object.h"

namespace alertserver {
namespace {

const Json* Find(const Json& object, const char* member) {
  if (!object.is_object()) return nullptr;
  const auto found = object.find(member);
  return found != object.end() ? &*found : nullptr;
}

}  // namespace

std::string TextOf(const Json& object, const char* member) {
  const Json* found = Find(object, member);
  return found != nullptr && found->is_string() ? found->get<std::string>() : "";
}

std::uint64_t NumberOf(const Json& object, const char* member) {
  const Json* found = Find(object, member);
  return found != nullptr && found->is_number_unsigned() ? found->get<std::uint64_t>() : 0;
}

std::uint32_t SmallNumberOf(const Json& object, const char* member) {
  const std::uint64_t number = NumberOf(object, member);
  return number <= std::numeric_limits<std::uint32_t>::max() ? static_cast<std::uint32_t>(number) : 0;
}

bool FlagOf(const Json& object, const char* member) {
  const Json* found = Find(object, member);
  return found != nullptr && found->is_boolean() && found->get<bool>();
}

const Json& ListOf(const Json& object, const char* member) {
  static const Json none = Json::array();
  const Json* found = Find(object, member);
  return found != nullptr && found->is_array() ? *found : none;
}

const Json& ObjectOf(const Json& object, const char* member) {
  static const Json none = Json::object();
  const Json* found = Find(object, member);
  return found != nullptr && found->is_object() ? *found : none;
}

Json ParseObject(const std::string& text) { return platform::ParseJsonObject<Json>(text); }

std::string DumpJson(const Json& file) {
  return file.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace alertserver
