// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
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
  std::vector<std::string> Problems(const Json& value) const {
    std::vector<std::string> problems;
    Check(value, root_, "", problems);
    return problems;
  }

 private:
  using List = std::vector<std::string>;

  void Check(const Json& value, const Json& schema, const std::string& where, List& problems) const {
    for (const auto& [keyword, rule] : schema.items()) {
      if (!CheckPlain(keyword, rule, value, where, problems) &&
          !CheckNested(keyword, rule, value, schema, where, problems) && !IsRemark(keyword))
        problems.push_back(where + ": keyword " + keyword + " is not checked");
    }
  }

  static bool IsRemark(const std::string& keyword) {
    return keyword == "description" || keyword == "title" || keyword == "$schema" ||
           keyword == "definitions" || keyword == "then";
  }

  static bool HasType(const Json& value, const std::string& type) {
    return (type == "object" && value.is_object()) || (type == "array" && value.is_array()) ||
           (type == "string" && value.is_string()) || (type == "integer" && value.is_number_integer()) ||
           (type == "boolean" && value.is_boolean()) || (type == "null" && value.is_null());
  }

  static bool HasOneType(const Json& value, const Json& rule) {
    if (rule.is_string()) return HasType(value, rule);
    return std::any_of(rule.begin(), rule.end(), [&](const Json& type) { return HasType(value, type); });
  }

  /// Keywords about the value alone. False for any other keyword.
  static bool CheckPlain(const std::string& keyword, const Json& rule, const Json& value,
                         const std::string& where, List& problems) {
    bool good;
    if (keyword == "type")
      good = HasOneType(value, rule);
    else if (keyword == "const")
      good = value == rule;
    else if (keyword == "enum")
      good = std::find(rule.begin(), rule.end(), value) != rule.end();
    else if (keyword == "pattern")
      good = !value.is_string() ||
             std::regex_search(value.get<std::string>(), std::regex(rule.get<std::string>()));
    else if (keyword == "minimum")
      good = !value.is_number() || value.get<double>() >= rule.get<double>();
    else if (keyword == "maxItems")
      good = !value.is_array() || value.size() <= rule.get<std::size_t>();
    else
      return false;
    if (!good) problems.push_back(where + ": " + value.dump() + " breaks " + keyword + " " + rule.dump());
    return true;
  }

  /// Keywords that lead to other schemas. False for any other keyword.
  bool CheckNested(const std::string& keyword, const Json& rule, const Json& value, const Json& schema,
                   const std::string& where, List& problems) const {
    if (keyword == "$ref")
      Check(value, root_.at(Json::json_pointer(rule.get<std::string>().substr(1))), where, problems);
    else if (keyword == "properties")
      CheckMembers(rule, value, where, problems);
    else if (keyword == "required")
      CheckRequired(rule, value, where, problems);
    else if (keyword == "additionalProperties")
      CheckNoOthers(rule, schema.at("properties"), value, where, problems);
    else if (keyword == "items")
      for (std::size_t i = 0; value.is_array() && i < value.size(); ++i)
        Check(value[i], rule, where + "/" + std::to_string(i), problems);
    else if (keyword == "allOf")
      for (const Json& part : rule) Check(value, part, where, problems);
    else if (keyword == "if")
      CheckThen(rule, schema.at("then"), value, where, problems);
    else
      return false;
    return true;
  }

  void CheckMembers(const Json& rule, const Json& value, const std::string& where, List& problems) const {
    for (const auto& [name, member_schema] : rule.items())
      if (value.is_object() && value.contains(name))
        Check(value[name], member_schema, where + "/" + name, problems);
  }

  static void CheckRequired(const Json& rule, const Json& value, const std::string& where, List& problems) {
    for (const Json& name : rule)
      if (value.is_object() && !value.contains(name.get<std::string>()))
        problems.push_back(where + ": " + name.get<std::string>() + " is missing");
  }

  static void CheckNoOthers(const Json& rule, const Json& properties, const Json& value,
                            const std::string& where, List& problems) {
    if (rule != false) problems.push_back(where + ": additionalProperties is checked as false only");
    for (const auto& [name, member] : value.items())
      if (value.is_object() && !properties.contains(name))
        problems.push_back(where + ": " + name + " is unknown");
  }

  void CheckThen(const Json& condition, const Json& then, const Json& value, const std::string& where,
                 List& problems) const {
    List unmet;
    Check(value, condition, where, unmet);
    if (unmet.empty()) Check(value, then, where, problems);
  }

  Json root_;
};
