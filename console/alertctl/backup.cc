// SPDX-License-Identifier: MIT
#include "companions/alertstore/backup.h"

#include "companions/alertstore/problem.h"
#include "console/alertctl/site.h"
#include "console/alertctl/text.h"
#include "console/alertctl/verbs.h"

namespace alertctl {
namespace {

constexpr char kBackupExamples[] = "  alertctl backup alerting-backup.db";
constexpr char kRestoreExamples[] = "  alertctl restore alerting-backup.db";

ExitCode CodeOf(alertstore::Status status) {
  if (status == alertstore::kNotFound) return kNothingMatched;
  return status == alertstore::kInvalidArgument || status == alertstore::kCorrupt ? kInvalid : kStoreFailure;
}

void Require(alertstore::Status status, const std::string& what) {
  if (status != alertstore::kOk)
    throw Failure(CodeOf(status), "cannot " + what + ": " + alertstore::ProblemText(status));
}

Result BackUp(const std::string& file) {
  alertstore::Copied copied;
  Require(alertstore::BackUp(file, copied), "make the backup " + file);
  return {{{"path", file}, {"records", copied.records}},
          "Copied " + Count(copied.records, "record") + " to " + file + ".\n"};
}

Result Restore(const std::string& file) {
  alertstore::Copied copied;
  Require(alertstore::Restore(file, copied), "restore the backup " + file);
  const std::string aside =
      copied.set_aside.empty() ? "" : "The damaged database is now " + copied.set_aside + ".\n";
  return {{{"path", file}, {"records", copied.records}, {"setAside", copied.set_aside}},
          "Restored " + Count(copied.records, "record") + " from " + file + ".\n" + aside};
}

void AddFileVerb(Verbs& verbs, const char* name, Access access, const char* description, const char* examples,
                 Result (*action)(const std::string&)) {
  const auto file = std::make_shared<std::string>();
  verbs.AddVerb(verbs.Root(), name, access, description, examples, [file, action] { return action(*file); })
      .add_option("file", *file, "File of the backup")
      ->required()
      ->check(kNotEmpty);
}

}  // namespace

void AddBackupVerbs(Verbs& verbs) {
  AddFileVerb(verbs, "backup", Access::kRead,
              "Copies all records to a file, passwords included, also while consoles run. An older backup of "
              "that name "
              "is replaced.",
              kBackupExamples, BackUp);
  AddFileVerb(verbs, "restore", Access::kSetUp,
              "Puts the records of a backup in place of those that are there, also while consoles run.",
              kRestoreExamples, Restore);
}

}  // namespace alertctl
