// SPDX-License-Identifier: MIT
#include "console/alertctl/text.h"

#include <algorithm>

#include "companions/dbconfig/keywords.h"
#include "console/alertctl/output.h"
#include "console/site/names.h"
#include "platform/base/utf8.h"

namespace alertctl {
namespace {

std::string Indented(const std::string& text, int indent) {
  std::string result(static_cast<std::size_t>(indent), ' ');
  for (char c : text) {
    result += c;
    if (c == '\n') result.append(static_cast<std::size_t>(indent), ' ');
  }
  return result;
}

bool IsMessage(const Json& value) { return value.is_object() && value.contains("keywords"); }

std::string PlainValue(const Json& value) {
  if (value.is_null()) return "none";
  if (value.is_boolean()) return YesNo(value);
  return value.is_string() ? value.get<std::string>() : value.dump();
}

std::string OnItsLine(const std::string& value) { return value.empty() ? "" : " " + value; }

std::string DescribedMember(const std::string& name, const Json& value, int indent) {
  const std::string title = std::string(static_cast<std::size_t>(indent), ' ') + name + ":";
  if (IsMessage(value))
    return title + "\n" + Indented(Printable(ShownMessage(value), true), indent + 2) + "\n";
  if (value.is_object()) return title + "\n" + Described(value, indent + 2);
  if (!value.is_array()) return title + OnItsLine(Printable(PlainValue(value), false)) + "\n";
  std::string text = title + (value.empty() ? " none\n" : "\n");
  for (const Json& item : value) text += Described(item, indent + 2);
  return text;
}

}  // namespace

void TextTable::Add(std::vector<std::string> cells) {
  for (std::string& cell : cells) cell = Printable(cell, false);
  rows_.push_back(std::move(cells));
}

std::string TextTable::Text() const {
  const std::size_t last = rows_.front().size() - 1;  // nothing stands behind it, so it needs no width
  std::vector<std::size_t> widths(last), columns;
  columns.reserve(last * rows_.size());
  for (const auto& row : rows_)
    for (std::size_t i = 0; i < last; ++i)
      widths[i] = std::max(widths[i], columns.emplace_back(ColumnsOf(row[i])));
  std::string text;
  auto column = columns.begin();
  for (const auto& row : rows_) {
    for (std::size_t i = 0; i < last; ++i) (text += row[i]).append(widths[i] - *column++ + 2, ' ');
    text += row[last];
    text.erase(text.find_last_not_of(' ') + 1);
    text += '\n';
  }
  return text;
}

std::string YesNo(const Json& flag) { return flag == true ? "yes" : "no"; }

std::string Count(std::size_t count, const std::string& one) {
  return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}

std::string ShownMessage(const Json& message) {
  alertrecords::KeywordIds ids{};
  std::size_t k = 0;
  for (const Json& keyword : message["keywords"]) ids.at(k++) = keyword["id"];
  return dbconfig::Keywords().Expand(message["text"].get<std::string>(), ids);
}

std::string Described(const Json& object, int indent) {
  if (!object.is_object())
    return std::string(static_cast<std::size_t>(indent), ' ') + PlainValue(object) + "\n";
  std::string text;
  for (const auto& [name, value] : object.items()) text += DescribedMember(name, value, indent);
  return text;
}

void CheckTyped(const std::string& what, const std::string& text, std::size_t limit) {
  if (const std::string problem = site::NameProblem(what, text, limit); !problem.empty())
    throw Failure(kInvalid, problem);
}

}  // namespace alertctl
