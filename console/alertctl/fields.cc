// SPDX-License-Identifier: MIT
#include "console/alertctl/fields.h"

#include <algorithm>
#include <filesystem>
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
  std::error_code ignored;
  if (!std::filesystem::exists(file, ignored))
    throw Failure(kNothingMatched, "cannot read " + file + ": there is no such file");
  std::ifstream in(file, std::ios::binary);
  if (!in.is_open() || std::filesystem::is_directory(file, ignored))
    throw Failure(kStoreFailure,
                  "cannot read " + file + ": it is a directory, or its permissions keep this account out");
  return ReadSome(in);
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
  verb.parse_complete_callback([this] { ReadSecrets(); });
  for (const FieldOption& option : options) {
    Given& given = *given_.emplace_back(std::make_unique<Given>(Given{&option, {}}));
    CLI::Option* added =
        verb.add_option(option.option, given.value, option.help)->type_name(ValueName(option));
    if (option.kind == FieldKind::kFlag) added->check(CLI::IsMember({"yes", "no"}));
    if (option.kind == FieldKind::kChoice || option.kind == FieldKind::kSecret) added->check(kNotEmpty);
    added->type_name(ValueName(option));
  }
}

void GivenFields::ReadSecrets() {
  for (const auto& each : given_)
    if (each->value && each->option->kind == FieldKind::kSecret) each->value = ReadSecret(*each->value);
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
    if (each->value) values.emplace_back(each->option, *each->value);
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
  const std::string from = file == "-" ? "standard input" : file;
  if (secret.size() > kLongestSecret || secret.find('\n') != std::string::npos)
    throw Failure(kInvalid,
                  from + " holds more than one line, or a very long one: write the secret alone into it");
  if (secret.empty() && file != "/dev/null")
    throw Failure(kInvalid, from + " is empty: write the secret into it, or name /dev/null to clear it");
  return secret;
}

}  // namespace alertctl
