// SPDX-License-Identifier: MIT
#include "lab/telephony/phone_book.h"

#include <algorithm>

namespace lab {
namespace {

bool Holds(const std::vector<std::string>& numbers, const std::string& dialed) {
  return std::any_of(numbers.begin(), numbers.end(),
                     [&](const std::string& number) { return !number.empty() && dialed.ends_with(number); });
}

std::string Join(const std::vector<std::string>& groups, std::size_t from, std::size_t to) {
  std::string joined;
  for (std::size_t i = from; i < to; ++i) joined += groups[i];
  return joined;
}

}  // namespace

Call WhoAnswers(const PhoneBook& book, const DialString& dial) {
  const std::size_t all = dial.groups.size();
  for (std::size_t count = 1; count <= all; ++count) {
    const std::string number = Join(dial.groups, 0, count);
    const bool is_numeric = Holds(book.numeric, number);
    if (is_numeric || Holds(book.alphanumeric, number))
      return {is_numeric, number, Join(dial.groups, count, all)};
  }
  const std::size_t end = dial.stays_in_commands && all > 1 ? all - 1 : all;
  return {dial.stays_in_commands, Join(dial.groups, 0, end), Join(dial.groups, end, all)};
}

}  // namespace lab
