// SPDX-License-Identifier: MIT
#include <algorithm>

#include "console/manual/pages.h"

namespace manual {
namespace {

/// Text within single quotes, where brackets and colons have a meaning of their own.
std::string Escaped(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '[' || c == ']' || c == ':' || c == '\\') escaped += '\\';
    escaped += c == '\'' ? "'\\''" : std::string(1, c);
  }
  return escaped;
}

std::string FunctionOf(const Command& command) {
  std::string name = "_" + command.words;
  std::ranges::replace(name, ' ', '_');
  return name;
}

std::string ActionOf(Value value) {
  return value == Value::kFile ? "_files" : value == Value::kDirectory ? "_files -/" : " ";
}

std::string OptionSpec(const Argument& option, const std::string& name) {
  const std::string text = "[" + Escaped(option.description) + "]";
  if (option.value == Value::kNone) return " '" + name + text + "'";
  const char* joined = name.starts_with("--") ? "=" : "+";
  return " '" + name + joined + text + ":" + Escaped(option.type) + ":" + ActionOf(option.value) + "'";
}

std::string ArgumentSpecs(const Command& command) {
  std::string text;
  for (const Argument& option : command.options)
    for (const std::string& name : option.names) text += " \\\n   " + OptionSpec(option, name);
  for (const Argument& operand : command.operands)
    text += std::string(" \\\n    '") + (operand.required ? ":" : "::") + Escaped(operand.names.front()) +
            ":" + ActionOf(operand.value) + "'";
  return text;
}

std::string VerbFunction(const Command& verb) {
  return FunctionOf(verb) + "() {\n  _arguments" + ArgumentSpecs(verb) + "\n}\n\n";
}

/// A function for each command; those of commands that lead on choose the next one.
std::string Functions(const Command& command) {
  if (command.commands.empty()) return VerbFunction(command);
  std::string below_it, names, choices;
  for (const Command& below : command.commands) {
    below_it += Functions(below);
    names += " \\\n        '" + below.name + ":" + Escaped(below.description) + "'";
    choices += "        " + below.name + ") " + FunctionOf(below) + " ;;\n";
  }
  return below_it + FunctionOf(command) +
         "() {\n  local curcontext=$curcontext state line\n  typeset -A opt_args\n  _arguments -C" +
         ArgumentSpecs(command) +
         " \\\n    ': :->command' '*:: :->rest'\n"
         "  case $state in\n    command)\n      local -a commands=(" +
         names +
         ")\n      _describe -t commands command commands ;;\n"
         "    rest)\n      case $line[1] in\n" +
         choices + "      esac ;;\n  esac\n}\n\n";
}

}  // namespace

std::string ZshCompletion(const Command& program) {
  return "#compdef alertctl\n# Made from the program's own verbs when it was built.\n\n" +
         Functions(program) + FunctionOf(program) + " \"$@\"\n";
}

}  // namespace manual
