// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace manual {

/// What follows an option or stands in an operand's place.
enum class Value { kNone, kText, kFile, kDirectory };

/// An option with all its names ("-h", "--help"), or an operand with its one.
struct Argument {
  std::vector<std::string> names;
  std::string description;
  std::string type;  ///< what stands for the value, such as "DIR"
  Value value = Value::kNone;
  bool required = false;

  bool operator==(const Argument&) const = default;
};

/// A program, a noun or a verb, as its help tells it.
struct Command {
  std::string words;  ///< what is typed for it, from the program's name on
  std::string name;   ///< the last of these words
  std::string description, examples;
  std::vector<Argument> options, operands;
  std::vector<Command> commands;
};

/// The commands that a program has declared; those that its help does not show are left out.
Command CommandOf(const CLI::App& app);

/// The verbs under a command in their order, or itself where it is one.
std::vector<const Command*> Verbs(const Command& command);

/// The options that every verb under a command has.
std::vector<Argument> SharedOptions(const Command& command);

}  // namespace manual
