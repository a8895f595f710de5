// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <nlohmann/json.hpp>
#include <string>

#include "console/site/failure.h"

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
};

/// What a verb does to the data directory, which decides what is there before it begins.
enum class Access {
  kFile,    ///< reads one file: nothing is made or waited for
  kRead,    ///< reads the stores: there must be some
  kExport,  ///< writes what the stores hold to a file that has a lock of its own
  kChange,  ///< changes the stores: there must be some, and no other alertctl changes them meanwhile
  kSetUp,   ///< adds the first records: as kChange, and makes the directory
};

/// The command line: adds verbs, then runs the one that was asked for.
class Verbs {
 public:
  using Action = std::function<Result()>;

  explicit Verbs(CLI::App& app) : app_(app) {}

  /// A group of verbs, such as "service".
  CLI::App& AddNoun(const std::string& name, const std::string& description);
  /// A verb of `noun`, with the options that every verb has. `examples` stands at the end of its help.
  CLI::App& AddVerb(CLI::App& noun, const std::string& name, Access access, const std::string& description,
                    const std::string& examples, Action action);
  CLI::App& Root() { return app_; }

  /// Runs the verb and prints what it says; failures go to standard error. Answers the exit code.
  int Run();

 private:
  /// Runs the verb in the data directory that it needs.
  Result RunAction() const;

  CLI::App& app_;
  Action action_;
  Access access_ = Access::kFile;
  bool json_ = false;
  std::string data_;
};

/// For options whose value cannot be "".
inline const CLI::Validator kNotEmpty([](std::string& value) { return value.empty() ? "is empty" : ""; }, "",
                                      "not empty");

/// The whole command line, with what stands above and below its list of verbs. Nothing is read or made.
void AddAllVerbs(Verbs& verbs);

void AddInitVerb(Verbs& verbs);
void AddServiceVerbs(Verbs& verbs);
void AddUserVerbs(Verbs& verbs);
void AddEntryVerbs(Verbs& verbs);
void AddManagerVerbs(Verbs& verbs);
void AddProviderVerbs(Verbs& verbs);
void AddResponseVerbs(Verbs& verbs);
void AddConfigVerbs(Verbs& verbs);
void AddBackupVerbs(Verbs& verbs);

}  // namespace alertctl
