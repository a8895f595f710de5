// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <nlohmann/json.hpp>
#include <span>
#include <string>

#include "console/site/failure.h"

namespace dbconfig {
class HeldBack;
}

namespace alertctl {

using Json = nlohmann::ordered_json;

using site::ExitCode;
using site::Failure;
using site::StoreFailure;
using enum site::ExitCode;

/// What a verb has to say: to programs, and to people (with its line breaks).
struct Result {
  Json json;
  std::string text;
  ExitCode code = kDone;
};

/// What a verb does to the data directory, which decides what is there before it begins.
enum class Access {
  kFile,    ///< reads one file: nothing is made or waited for
  kRead,    ///< reads the stores: there must be some
  kExport,  ///< takes what the stores hold elsewhere, into a file or a test, and waits for no other alertctl
  kChange,  ///< changes the stores: there must be some, and no other alertctl changes them meanwhile
  kSetUp,   ///< adds the first records: as kChange, and makes the directory
};

/// The command line: adds verbs, then runs the one that was asked for.
class Verbs {
 public:
  using Action = std::function<Result()>;

  explicit Verbs(CLI::App& app);

  /// A group of verbs, such as "service".
  CLI::App& AddNoun(const std::string& name, const std::string& description);
  /// A verb of `noun`, with the options that every verb of its kind has. `examples` stands at the end of its help.
  CLI::App& AddVerb(CLI::App& noun, const std::string& name, Access access, const std::string& description,
                    const std::string& examples, Action action);
  CLI::App& Root() { return app_; }
  /// Whether the verb that runs is asked for JSON.
  bool PrintsJson() const { return json_; }

  /// Prints why something cannot be done. Answers the exit code.
  static int Report(const Failure& failure);
  /// Runs the verb and prints what it says; failures go to standard error. Answers the exit code.
  int Run();

 private:
  /// Options that may stand before the verb as well as behind it.
  void AddCommonOptions(CLI::App& app);
  void AddChangeOptions(CLI::App& app);
  bool Changes() const { return access_ == Access::kChange || access_ == Access::kSetUp; }
  /// Sees to it that the data directory is there.
  void Prepare() const;
  Result RunAction() const;
  /// Says what the verb would change, and changes nothing.
  Result RunDry() const;
  /// Has the alert managers learn of what a verb has changed.
  void TellManagers(dbconfig::HeldBack& managers_file, Result& result) const;

  CLI::App& app_;
  Action action_;
  Access access_ = Access::kFile;
  bool json_ = false, no_write_ = false, dry_run_ = false;
  std::string data_;
};

/// For options whose value cannot be "".
inline const CLI::Validator kNotEmpty([](std::string& value) { return value.empty() ? "is empty" : ""; }, "",
                                      "not empty");

/// The whole command line, with what stands above and below its list of verbs. Nothing is read or made.
void AddAllVerbs(Verbs& verbs);
/// Adds only the verbs whose noun is one of `words`: making all of them takes longer than most of them run.
void AddVerbsNamedIn(Verbs& verbs, std::span<const char* const> words);

void AddInitVerb(Verbs& verbs);
void AddServiceVerbs(Verbs& verbs);
void AddUserVerbs(Verbs& verbs);
void AddEntryVerbs(Verbs& verbs);
void AddResponseVerbs(Verbs& verbs);
void AddManagerVerbs(Verbs& verbs);
void AddModemVerbs(Verbs& verbs);
void AddModemTypeVerbs(Verbs& verbs);
void AddLocationVerbs(Verbs& verbs);
void AddRulesVerbs(Verbs& verbs);
void AddProviderVerbs(Verbs& verbs);
void AddSnmpManagerVerbs(Verbs& verbs);
void AddComputerVerbs(Verbs& verbs);
void AddConfigVerbs(Verbs& verbs);
void AddBackupVerbs(Verbs& verbs);

}  // namespace alertctl
