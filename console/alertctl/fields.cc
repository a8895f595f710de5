// SPDX-License-Identifier: MIT
#include "console/alertctl/fields.h"

#include <algorithm>
#include <fstream>
#include <iostream>

namespace alertctl {
namespace {

constexpr std::size_t kLongestSecret = 4096;

std::string ReadSome(std::istream& in) {
  std::string text(kLongestSecret + 1, '\0');
  in.read(text.data(), static_cast<std::streamsize>(text.size()));
  text.resize(static_cast<std::size_t>(in.gcount()));
  return text;
}

std::string ReadFrom(const std::string& file) {
  if (file == "-") return ReadSome(std::cin);
  std::ifstream in(file, std::ios::binary);
  std::string text = in ? ReadSome(in) : "";
  if (!in.is_open() || in.bad())
    throw Failure(kNothingMatched, "cannot read " + file + ": name a file that is there and may be read");
  return text;
}

const char* ValueName(const FieldOption& option) {
  switch (option.kind) {
    case FieldKind::kSecret:
      return "FILE";
    case FieldKind::kFlag:
      return "yes|no";
    default:
      return "TEXT";
  }
}

}  // namespace

void GivenFields::AddTo(CLI::App& verb, FieldOptions options) {
  for (const FieldOption& option : options) {
    Given& given = *given_.emplace_back(std::make_unique<Given>(Given{&option, {}}));
    CLI::Option* added =
        verb.add_option(option.option, given.value, option.help)->type_name(ValueName(option));
    if (option.kind == FieldKind::kFlag) added->check(CLI::IsMember({"yes", "no"}));
    if (option.kind == FieldKind::kChoice || option.kind == FieldKind::kSecret) added->check(kNotEmpty);
    added->type_name(ValueName(option));
  }
}

bool GivenFields::Any() const {
  return std::ranges::any_of(given_, [](const auto& each) { return each->value.has_value(); });
}

void GivenFields::RequireAny() const {
  if (!Any())
    throw Failure(kUsage, "there is nothing to change: name it with an option (\"--help\" lists them)");
}

FieldValues GivenFields::Values() const {
  FieldValues values;
  for (const auto& each : given_)
    if (each->value)
      values.emplace_back(each->option,
                          each->option->kind == FieldKind::kSecret ? ReadSecret(*each->value) : *each->value);
  return values;
}

FieldValues GivenFields::ValuesOn(const std::string& page) const {
  FieldValues values = Values();
  std::erase_if(values, [&](const auto& value) { return page != value.first->page; });
  return values;
}

const std::string* GivenFields::Find(const std::string& option) const {
  for (const auto& each : given_)
    if (each->value && option == each->option->option) return &*each->value;
  return nullptr;
}

// A last line break belongs to the file, not to the secret.
std::string ReadSecret(const std::string& file) {
  std::string secret = ReadFrom(file);
  if (secret.ends_with('\n')) secret.pop_back();
  if (secret.ends_with('\r')) secret.pop_back();
  if (secret.find('\n') == std::string::npos && secret.size() <= kLongestSecret) return secret;
  throw Failure(kInvalid, (file == "-" ? "standard input" : file) +
                              " holds more than one line: write the secret alone into it");
}

}  // namespace alertctl
