// SPDX-License-Identifier: MIT
#include <algorithm>

#include "console/manual/pages.h"

namespace manual {
namespace {

/// Text as the formatter shows it letter for letter.
std::string Escaped(const std::string& text) {
  std::string escaped;
  bool at_line_start = true;
  for (const char c : text) {
    if (at_line_start && (c == '.' || c == '\'')) escaped += "\\&";
    at_line_start = c == '\n';
    switch (c) {
      case '\\':
        escaped += "\\(rs";
        break;
      case '-':
        escaped += "\\-";
        break;
      case '~':
        escaped += "\\(ti";
        break;
      case '^':
        escaped += "\\(ha";
        break;
      case '`':
        escaped += "\\(ga";
        break;
      default:
        escaped += c;
    }
  }
  return escaped;
}

std::string Bold(const std::string& text) { return "\\fB" + Escaped(text) + "\\fR"; }
std::string Italic(const std::string& text) { return "\\fI" + Escaped(text) + "\\fR"; }

/// An option with the value that it takes, or an operand.
std::string Named(const Argument& argument) {
  if (!argument.names.front().starts_with('-')) return Italic(argument.names.front());
  std::string named;
  for (const std::string& name : argument.names) named += (named.empty() ? "" : ", ") + Bold(name);
  return argument.value == Value::kNone ? named : named + " " + Italic(argument.type);
}

std::string Described(const std::vector<Argument>& arguments) {
  std::string text;
  for (const Argument& argument : arguments)
    text += ".TP\n" + Named(argument) + "\n" + Escaped(argument.description) + "\n";
  return text;
}

std::vector<Argument> Without(std::vector<Argument> options, const std::vector<Argument>& shared) {
  std::erase_if(options, [&](const Argument& option) { return std::ranges::count(shared, option) != 0; });
  return options;
}

std::string Synopsis(const Command& verb, const std::vector<Argument>& own) {
  std::string text = ".PP\n" + Bold(verb.words);
  for (const Argument& operand : verb.operands)
    text += operand.required ? " " + Named(operand) : " [" + Named(operand) + "]";
  for (const Argument& option : own)
    text += option.required ? " " + Named(option) : " [" + Named(option) + "]";
  return text + "\n";
}

std::string Verb(const Command& verb, const std::vector<Argument>& shared) {
  const std::vector<Argument> own = Without(verb.options, shared);
  const std::string examples = verb.examples.empty() ? "" : ".PP\n.EX\n" + Escaped(verb.examples) + "\n.EE\n";
  return ".SS " + Escaped(verb.words) + "\n" + Escaped(verb.description) + "\n" + Synopsis(verb, own) +
         Described(verb.operands) + Described(own) + examples;
}

void Replace(std::string& text, const std::string& mark, const std::string& by) {
  if (const std::size_t at = text.find(mark); at != std::string::npos) text.replace(at, mark.size(), by);
}

}  // namespace

std::string ManPage(const Command& program, std::string frame) {
  const std::vector<Argument> shared = SharedOptions(program);
  std::string verbs;
  for (const Command* verb : Verbs(program)) verbs += Verb(*verb, shared);
  Replace(frame, "\n.OPTIONS\n", "\n" + Described(shared) + Described(Without(program.options, shared)));
  Replace(frame, "\n.VERBS\n", "\n" + verbs);
  return frame;
}

}  // namespace manual
