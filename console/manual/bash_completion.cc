// SPDX-License-Identifier: MIT
#include "console/manual/pages.h"

namespace manual {
namespace {

/// Goes along the words before the one to complete: commands lead on, options with a value take the next word ("="
/// is a word of its own here), all else are operands.
constexpr char kComplete[] = R"SCRIPT(
_alertctl() {
  local cur=${COMP_WORDS[COMP_CWORD]} words=alertctl waiting= operand=0 word kind=
  local commands options valued files directories operands
  COMPREPLY=()
  _alertctl_command "$words"
  for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
    if [[ -n $waiting ]]; then
      [[ $word == = ]] || waiting=
    elif [[ $word == -* ]]; then
      [[ " $valued " == *" $word "* ]] && waiting=$word
    elif [[ " $commands " == *" $word "* ]]; then
      words+=" $word"
      _alertctl_command "$words"
    else
      ((++operand))
    fi
  done
  [[ $cur == = ]] && cur=
  if [[ -n $waiting ]]; then
    [[ " $files " == *" $waiting "* ]] && kind=-f
    [[ " $directories " == *" $waiting "* ]] && kind=-d
  elif [[ $cur == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$cur")
  elif [[ -n $commands ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$commands" -- "$cur")
  else
    local places=($operands)
    kind=${places[operand]#-n}
  fi
  if [[ -n $kind ]]; then
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen "$kind" -- "$cur")
  fi
}
complete -F _alertctl alertctl
)SCRIPT";

std::string OptionNames(const Command& command, bool (*wanted)(Value)) {
  std::string names;
  for (const Argument& option : command.options)
    for (const std::string& name : option.names)
      if (wanted(option.value)) names += (names.empty() ? "" : " ") + name;
  return names;
}

std::string CommandNames(const Command& command) {
  std::string names;
  for (const Command& below : command.commands) names += (names.empty() ? "" : " ") + below.name;
  return names;
}

/// What is completed in each operand's place, as the shell's own option for it; "-n" is nothing.
std::string OperandKinds(const Command& command) {
  std::string kinds;
  for (const Argument& operand : command.operands)
    kinds += operand.value == Value::kFile ? " -f" : operand.value == Value::kDirectory ? " -d" : " -n";
  return kinds.empty() ? "" : kinds.substr(1);
}

void AddCases(const Command& command, std::string& cases) {
  const auto set = [&](const char* variable, const std::string& words) {
    cases += std::string("      ") + variable + "='" + words + "'\n";
  };
  cases += "    '" + command.words + "')\n";
  set("commands", CommandNames(command));
  set("options", OptionNames(command, [](Value) { return true; }));
  set("valued", OptionNames(command, [](Value value) { return value != Value::kNone; }));
  set("files", OptionNames(command, [](Value value) { return value == Value::kFile; }));
  set("directories", OptionNames(command, [](Value value) { return value == Value::kDirectory; }));
  set("operands", OperandKinds(command));
  cases += "      ;;\n";
  for (const Command& below : command.commands) AddCases(below, cases);
}

}  // namespace

std::string BashCompletion(const Command& program) {
  std::string cases;
  AddCases(program, cases);
  return "# Completes alertctl in bash. Made from the program's own verbs when it was built.\n"
         "_alertctl_command() {\n  case $1 in\n" +
         cases + "  esac\n}\n" + kComplete;
}

}  // namespace manual
