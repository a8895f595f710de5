// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cctype>
#include <memory>
#include <optional>

#include "console/alertctl/provider_records.h"
#include "console/alertctl/text.h"
#include "console/alertctl/verbs.h"
#include "console/site/provider_fields.h"
#include "console/site/provider_import.h"

namespace alertctl {

void AddProviderChangeVerbs(Verbs& verbs, CLI::App& provider);

namespace {

constexpr char kAddExamples[] =
    "  alertctl provider add --company \"Example Paging Hills\" --phone 555-0151\n"
    "  alertctl provider add --company \"Example Paging Lakes\" --region-a Lakes --phone 555-0152 "
    "--baud-rate 1200 --parity none --data-bits 8 --stop-bits 1 --text-length 80";
constexpr char kSetExamples[] =
    "  alertctl provider set \"Example Paging Hills\" --phone 555-0153 --text-length 160\n"
    "  alertctl provider set \"Example Paging Lakes\" --region-a \"\"";
constexpr char kRemoveExamples[] = "  alertctl provider remove \"Example Paging Lakes\"";
constexpr char kImportExamples[] = "  alertctl provider import providers.csv";

/// What was written for each field; a field that was not named stays as it is.
using Written = std::array<std::optional<std::string>, 9>;

struct Arguments {
  std::string provider, file;
  Written written;
};

std::string Quoted(const Provider& provider) { return "\"" + CompanyOf(provider) + "\""; }

/// Takes over what was written; throws for what keeps a pager from being reached.
void Take(const Written& written, Provider& provider) {
  for (std::size_t i = 0; i < written.size(); ++i) {
    if (!written[i]) continue;
    const std::string problem = site::ProviderFields()[i].Take(provider, *written[i]);
    if (!problem.empty()) throw Failure(kInvalid, problem);
  }
  if (const std::string problem = site::ProviderProblem(provider); !problem.empty())
    throw Failure(kInvalid, problem);
}

Result Add(const Arguments& arguments) {
  Provider provider = site::UsualProvider();
  Take(arguments.written, provider);
  const alertstore::Status status = site::AddProvider(provider);
  if (status != alertstore::kOk) throw StoreFailure("add the paging provider " + Quoted(provider), status);
  return {ProvidersJson({provider})[0],
          "Added the paging provider " + Quoted(provider) + " " + provider.guid.ToString() + ".\n"};
}

Result Set(const Arguments& arguments) {
  Provider provider = FindProvider(arguments.provider);
  if (std::ranges::none_of(arguments.written, [](const auto& each) { return each.has_value(); }))
    throw Failure(kUsage, "there is nothing to change: name it, such as --phone 555-0123");
  Take(arguments.written, provider);
  const alertstore::Status status = site::UpdateProvider(provider);
  if (status != alertstore::kOk) throw StoreFailure("change the paging provider " + Quoted(provider), status);
  return {ProvidersJson({provider})[0], "Changed the paging provider " + Quoted(provider) +
                                            ". Services set up with it keep its settings of before.\n"};
}

Result Remove(const Arguments& arguments) {
  const Provider provider = FindProvider(arguments.provider);
  const alertstore::Status status = site::RemoveProvider(provider.guid);
  if (status != alertstore::kOk) throw StoreFailure("remove the paging provider " + Quoted(provider), status);
  return {ProvidersJson({provider})[0], "Removed the paging provider " + Quoted(provider) +
                                            ". Services set up with it keep its settings.\n"};
}

Result Import(const Arguments& arguments) {
  site::ProviderFile file = site::ReadProviderFile(arguments.file);
  if (!file.faults.empty())
    throw Failure(kInvalid, "nothing of " + arguments.file + " was imported: correct it and try again",
                  std::move(file.faults));
  const site::ProvidersAdded result = site::AddMissingProviders(std::move(file.providers));
  if (!result.problem.empty()) throw Failure(kStoreFailure, result.problem);
  const std::string known =
      result.known == 0 ? "" : "; the site had " + std::to_string(result.known) + " already";
  return {{{"path", arguments.file}, {"added", result.added}, {"known", result.known}},
          "Added " + Count(result.added, "paging provider") + " from " + arguments.file + known + ".\n"};
}

/// "--region-a" for "region A".
std::string OptionOf(const site::ProviderField& field) {
  std::string option = "--" + std::string(field.name);
  std::ranges::transform(option, option.begin(),
                         [](unsigned char c) { return c == ' ' ? '-' : static_cast<char>(std::tolower(c)); });
  return option;
}

constexpr std::array<const char*, 9> kOptionHelp = {"Name, at most 64 bytes",
                                                    "First part of the location",
                                                    "Second part of the location",
                                                    "Number that the modem dials, at most 25 bytes",
                                                    "Bits per second",
                                                    "none, odd or even",
                                                    "6, 7 or 8",
                                                    "1, 1.5 or 2",
                                                    "Longest message, 1 to 255"};

void AddFieldOptions(CLI::App& verb, const std::shared_ptr<Arguments>& arguments) {
  for (std::size_t i = 0; i < kOptionHelp.size(); ++i) {
    const site::ProviderField& field = site::ProviderFields()[i];
    CLI::Option& option = *verb.add_option(OptionOf(field), arguments->written[i], kOptionHelp[i]);
    if (field.required) option.check(kNotEmpty);
  }
}

void AddProviderOption(CLI::App& verb, const std::shared_ptr<Arguments>& arguments) {
  verb.add_option("provider", arguments->provider, "Company or identity of the provider")->required();
}

}  // namespace

void AddProviderChangeVerbs(Verbs& verbs, CLI::App& provider) {
  const auto arguments = std::make_shared<Arguments>();
  const auto add_verb = [&](const char* name, Access access, const char* description, const char* examples,
                            Result (*action)(const Arguments&)) -> CLI::App& {
    return verbs.AddVerb(provider, name, access, description, examples,
                         [action, arguments] { return action(*arguments); });
  };
  CLI::App& add =
      add_verb("add", Access::kChange,
               "Adds a provider. What is not named is 2400 baud, even parity, 7 data bits, 1 stop "
               "bit and a text length of 240.",
               kAddExamples, Add);
  AddFieldOptions(add, arguments);
  for (const char* option : {"--company", "--phone"}) add.get_option(option)->required();
  CLI::App& set = add_verb("set", Access::kChange, "Changes what is named of a provider.", kSetExamples, Set);
  AddProviderOption(set, arguments);
  AddFieldOptions(set, arguments);
  AddProviderOption(
      add_verb("remove", Access::kChange, "Removes a provider at once.", kRemoveExamples, Remove), arguments);
  add_verb(
      "import", Access::kChange,
      "Adds the providers of a CSV file that the site does not have. When a line is wrong, none is added.",
      kImportExamples, Import)
      .add_option("file", arguments->file, "File with a header line")
      ->required()
      ->check(kNotEmpty);
}

}  // namespace alertctl
