// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <nlohmann/json.hpp>
#include <regex>
#include <string>
#include <vector>

/// Holds a JSON value against a JSON Schema (draft 07) that uses type, const, enum, pattern, minimum,
/// maxItems, properties, required, additionalProperties false, items, allOf, if/then and $ref to definitions.
/// Any other keyword is reported as a problem, so that a schema cannot ask for what is not checked.
class JsonSchema {
 public:
  using Json = nlohmann::json;

  explicit JsonSchema(Json schema) : root_(std::move(schema)) {}

  /// What is wrong with the value, each with the place in it; empty when it follows the schema.
  std::vector<std::string> Problems(const Json& value) const { return Check(value, root_, ""); }

 private:
  using List = std::vector<std::string>;

  List Check(const Json& value, const Json& schema, const std::string& where) const {
    List problems;
    for (const auto& [keyword, rule] : schema.items()) {
      const List more = CheckKeyword(keyword, rule, value, schema, where);
      problems.insert(problems.end(), more.begin(), more.end());
    }
    return problems;
  }

  static bool HasType(const Json& value, const std::string& type) {
    return value.is_number_integer() ? type == "integer" : type == value.type_name();
  }

  /// A keyword about the value alone, or one that leads to other schemas.
  List CheckKeyword(const std::string& keyword, const Json& rule, const Json& value, const Json& schema,
                    const std::string& where) const {
    const auto any_of = [&](auto holds) { return std::any_of(rule.begin(), rule.end(), holds); };
    const std::map<std::string, std::function<bool()>> plain = {
        {"type", [&] { return any_of([&](const Json& type) { return HasType(value, type); }); }},
        {"const", [&] { return value == rule; }},
        {"enum", [&] { return any_of([&](const Json& one) { return value == one; }); }},
        {"pattern",
         [&] {
           return !value.is_string() || std::regex_search(std::string(value), std::regex(std::string(rule)));
         }},
        {"minimum", [&] { return !value.is_number() || value >= rule; }},
        {"maxItems", [&] { return !value.is_array() || value.size() <= rule.get<std::size_t>(); }},
        {"required",
         [&] {
           return !value.is_object() ||
                  !any_of([&](const std::string& name) { return !value.contains(name); });
         }},
        {"additionalProperties",
         [&] { return rule == false && HasNoOthers(value, schema.at("properties")); }}};
    if (const auto found = plain.find(keyword); found != plain.end())
      return found->second() ? List{}
                             : List{where + ": " + value.dump() + " breaks " + keyword + " " + rule.dump()};
    if (keyword == "$ref")
      return Check(value, root_.at(Json::json_pointer(std::string(rule).substr(1))), where);
    if (keyword == "if")
      return Check(value, rule, where).empty() ? Check(value, schema.at("then"), where) : List{};
    return CheckParts(keyword, rule, value, where);
  }

  static bool HasNoOthers(const Json& value, const Json& properties) {
    return !value.is_object() ||
           std::all_of(value.items().begin(), value.items().end(),
                       [&](const auto& member) { return properties.contains(member.key()); });
  }

  List CheckParts(const std::string& keyword, const Json& rule, const Json& value,
                  const std::string& where) const {
    List problems;
    const auto check = [&](const Json& part, const Json& part_rule, const std::string& name) {
      const List more = Check(part, part_rule, where + name);
      problems.insert(problems.end(), more.begin(), more.end());
    };
    if (keyword == "properties") {
      for (const auto& [name, member_rule] : rule.items())
        if (value.is_object() && value.contains(name)) check(value[name], member_rule, "/" + name);
    } else if (keyword == "items") {
      for (std::size_t i = 0; value.is_array() && i < value.size(); ++i)
        check(value[i], rule, "/" + std::to_string(i));
    } else if (keyword == "allOf") {
      for (const Json& part : rule) check(value, part, "");
    } else if (!std::set<std::string>{"description", "title", "$schema", "definitions", "then"}.contains(
                   keyword)) {
      problems.push_back(where + ": keyword " + keyword + " is not checked");
    }
    return problems;
  }

  Json root_;
};
