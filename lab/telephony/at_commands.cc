// SPDX-License-Identifier: MIT
#include "lab/telephony/at_commands.h"

#include <algorithm>
#include <cctype>

namespace lab {
namespace {

constexpr std::string_view kPlain = "ABCEFHILMNOPQTVWXYZ";  // a letter and a number
constexpr std::string_view kPrefixes = "&%\\+#*-";          // a sign, a letter and a number
constexpr std::string_view kDialed = "0123456789*#";

bool IsDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }
bool IsLetter(char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; }

std::string WithoutSpaces(std::string_view text) {
  std::string kept(text);
  std::erase(kept, ' ');
  return kept;
}

char Upper(char c) { return static_cast<char>(std::toupper(static_cast<unsigned char>(c))); }

/// Takes characters from the front of `rest` as long as they are `wanted`.
template <class Wanted>
std::string TakeWhile(std::string_view& rest, Wanted wanted) {
  const auto end = std::find_if_not(rest.begin(), rest.end(), wanted);
  std::string taken(rest.begin(), end);
  rest.remove_prefix(taken.size());
  return taken;
}

/// Registers are set or asked for: "7=45", "7?".
std::string TakeRegister(std::string_view& rest) {
  return TakeWhile(rest, [](char c) { return IsDigit(c) || c == '=' || c == '?'; });
}

std::optional<AtCommand> TakeCommand(std::string_view& rest) {
  const char first = Upper(rest.front());
  rest.remove_prefix(1);
  if (first == 'D') return AtCommand{"D", TakeWhile(rest, [](char) { return true; })};
  if (first == 'S') return AtCommand{"S", TakeRegister(rest)};
  if (kPlain.find(first) != kPlain.npos) return AtCommand{{first}, TakeWhile(rest, IsDigit)};
  if (kPrefixes.find(first) == kPrefixes.npos || rest.empty() || !IsLetter(rest.front())) return std::nullopt;
  const std::string name = {first, Upper(rest.front())};
  rest.remove_prefix(1);
  return AtCommand{name, TakeRegister(rest)};
}

}  // namespace

std::optional<std::vector<AtCommand>> ParseAtLine(std::string_view line) {
  const std::string text = WithoutSpaces(line);
  std::string_view rest = text;
  std::vector<AtCommand> commands;
  while (!rest.empty()) {
    const auto command = TakeCommand(rest);
    if (!command) return std::nullopt;
    commands.push_back(*command);
  }
  return commands;
}

/// T and P choose tones or pulses, others are for the line: only digits and commas say whom the call is for.
DialString ParseDialString(std::string_view argument) {
  DialString dial{
      {""}, static_cast<int>(std::count(argument.begin(), argument.end(), ',')), argument.ends_with(';')};
  for (const char c : argument) {
    if (kDialed.find(c) != kDialed.npos) dial.groups.back() += c;
    if (c == ',' && !dial.groups.back().empty()) dial.groups.emplace_back();
  }
  return dial;
}

}  // namespace lab
