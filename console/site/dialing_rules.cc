// SPDX-License-Identifier: MIT
#include "console/site/dialing_rules.h"

#include "console/site/console_settings.h"

namespace site {
namespace {

constexpr char kSetting[] = "dialingRules";

std::string TextIn(const Json& rules, const char* name) {
  const auto value = rules.find(name);
  return value != rules.end() && value->is_string() ? value->get<std::string>() : "";
}

}  // namespace

DialingRules ReadDialingRules() {
  const Json settings = ReadConsoleSettings();
  const auto rules = settings.find(kSetting);
  if (rules == settings.end() || !rules->is_object()) return {};
  return {TextIn(*rules, "sameArea"), TextIn(*rules, "longDistance"), TextIn(*rules, "international")};
}

std::string WriteDialingRules(const DialingRules& rules) {
  return WriteConsoleSetting(kSetting, {{"sameArea", rules.same_area},
                                        {"longDistance", rules.long_distance},
                                        {"international", rules.international}});
}

}  // namespace site
