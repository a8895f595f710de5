// SPDX-License-Identifier: MIT
#include "console/manual/command.h"

#include <algorithm>

namespace manual {
namespace {

std::vector<std::string> NamesOf(const CLI::Option& option) {
  if (option.get_positional()) return {option.get_name(true)};
  std::vector<std::string> names;
  for (const std::string& name : option.get_snames()) names.push_back("-" + name);
  for (const std::string& name : option.get_lnames()) names.push_back("--" + name);
  return names;
}

/// The name tells a file where the type does not: "file" and "--password-file" are files.
Value ValueOf(const CLI::Option& option, const std::string& name) {
  if (option.get_items_expected_max() == 0) return Value::kNone;
  if (option.get_type_name() == "DIR") return Value::kDirectory;
  return option.get_type_name() == "FILE" || name.ends_with("file") ? Value::kFile : Value::kText;
}

Argument ArgumentOf(const CLI::Option& option) {
  Argument argument{NamesOf(option), option.get_description(), option.get_type_name(), {}, {}};
  argument.value = ValueOf(option, argument.names.back());
  argument.required = option.get_required();
  return argument;
}

void AddArguments(const CLI::App& app, Command& command) {
  for (const CLI::Option* option : app.get_options())
    if (!option->get_group().empty())
      (option->get_positional() ? command.operands : command.options).push_back(ArgumentOf(*option));
}

/// What stands in the footer behind its heading.
std::string ExamplesOf(const CLI::App& app) {
  constexpr std::string_view kHeading = "Examples:\n";
  const std::string footer = app.get_footer();
  const std::size_t at = footer.find(kHeading);
  return at == std::string::npos ? "" : footer.substr(at + kHeading.size());
}

Command CommandUnder(const std::string& words, const CLI::App& app) {
  Command command{words + app.get_name(), app.get_name(), app.get_description(), ExamplesOf(app), {}, {}, {}};
  AddArguments(app, command);
  for (const CLI::App* below : app.get_subcommands([](const CLI::App*) { return true; })) {
    if (below->get_name().empty())
      AddArguments(*below, command);  // a group of options
    else if (!below->get_group().empty())
      command.commands.push_back(CommandUnder(command.words + " ", *below));
  }
  return command;
}

}  // namespace

Command CommandOf(const CLI::App& app) { return CommandUnder("", app); }

std::vector<const Command*> Verbs(const Command& command) {
  if (command.commands.empty()) return {&command};
  std::vector<const Command*> verbs;
  for (const Command& below : command.commands)
    for (const Command* verb : Verbs(below)) verbs.push_back(verb);
  return verbs;
}

std::vector<Argument> SharedOptions(const Command& command) {
  const std::vector<const Command*> verbs = Verbs(command);
  std::vector<Argument> shared = verbs.front()->options;
  for (const Command* verb : verbs)
    std::erase_if(shared,
                  [&](const Argument& option) { return std::ranges::count(verb->options, option) == 0; });
  return shared;
}

}  // namespace manual
