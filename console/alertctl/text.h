// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "console/alertctl/verbs.h"

// How things are said to people.

namespace alertctl {

/// A table with a heading and aligned columns, two blanks between them.
class TextTable {
 public:
  explicit TextTable(std::vector<std::string> heading) : rows_{std::move(heading)} {}
  /// Cells may hold any bytes; what a terminal would act on is shown as blanks.
  void Add(std::vector<std::string> cells);
  std::string Text() const;

 private:
  std::vector<std::vector<std::string>> rows_;
};

/// "yes" or "no".
std::string YesNo(const Json& flag);
/// "1 service", "2 services".
std::string Count(std::size_t count, const std::string& one);
/// A message as people see it: the keywords' names in place of the placeholders.
std::string ShownMessage(const Json& message);
/// Members as "name: value" lines under a title; nested ones are indented.
std::string Described(const Json& object, int indent);
/// A name or address that someone typed: 1 to `limit` bytes of text with something to be seen in it. `what`
/// begins the message, as in "a user's name". Throws a Failure (kInvalid).
void CheckTyped(const std::string& what, const std::string& text, std::size_t limit);

}  // namespace alertctl
