// SPDX-License-Identifier: MIT
#include <memory>
#include <optional>

#include "console/alertctl/site.h"
#include "console/alertctl/text.h"
#include "console/site/backup_manager.h"
#include "console/site/managers.h"

namespace alertctl {

void AddManagerChangeVerbs(Verbs& verbs, CLI::App& manager);

namespace {

constexpr char kAddExamples[] = "  alertctl manager add STANDBY";
constexpr char kSetExamples[] =
    "  alertctl manager set STANDBY --name RESERVE\n"
    "  alertctl manager set RESERVE --backup yes";
constexpr char kRemoveExamples[] = "  alertctl manager remove RESERVE";

struct Arguments {
  std::string manager;
  std::optional<std::string> name, backup;
};

const Json& Find(const Json& site, const std::string& name) {
  return FindOne(site["alertManagers"], name, "alert manager", "alertctl manager list");
}

std::string Quoted(const std::string& name) { return "the alert manager \"" + name + "\""; }

Result Told(const platform::GUID& id, const std::string& done) {
  const Json site = LoadSite();
  const Json& manager = Find(site, id.ToString());
  return {{{"id", manager["id"]}, {"name", manager["name"]}, {"backup", id == site::ReadBackupManager()}},
          done + " " + Quoted(manager["name"]) + ".\n"};
}

void RequireTaken(const std::string& doing, const std::string& name, alertstore::Status status) {
  if (status == alertstore::kNotUnique)
    throw Failure(kInvalid, "there is an alert manager named \"" + name + "\" already: choose another name");
  if (status != alertstore::kOk) throw StoreFailure(doing, status);
}

Result Add(const Arguments& arguments) {
  CheckTyped("an alert manager's name", arguments.manager, site::kLongestManagerName);
  platform::GUID id{};
  RequireTaken("add " + Quoted(arguments.manager), arguments.manager,
               site::AddManager(arguments.manager, id));
  return Told(id, "Added");
}

void KeepBackup(const platform::GUID& manager) {
  if (const std::string problem = site::WriteBackupManager(manager); !problem.empty())
    throw Failure(kStoreFailure, "cannot keep the choice of the backup: " + problem);
}

/// There is one backup manager, or none.
void SetBackup(const platform::GUID& manager, bool wanted) {
  if (wanted)
    KeepBackup(manager);
  else if (site::ReadBackupManager() == manager)
    KeepBackup(platform::kNullGuid);
}

Result Set(const Arguments& arguments) {
  if (!arguments.name && !arguments.backup)
    throw Failure(kUsage, "there is nothing to change: name it with --name or --backup");
  const Json site = LoadSite();
  const Json& manager = Find(site, arguments.manager);
  if (arguments.name) {
    CheckTyped("an alert manager's name", *arguments.name, site::kLongestManagerName);
    RequireTaken("rename " + Quoted(manager["name"]), *arguments.name,
                 site::RenameManager(IdOf(manager), *arguments.name));
  }
  try {
    if (arguments.backup) SetBackup(IdOf(manager), *arguments.backup == "yes");
  } catch (const Failure& failure) {
    if (!arguments.name) throw;
    throw Failure(failure.Code(), "renamed it to \"" + *arguments.name + "\", but " + failure.what());
  }
  return Told(IdOf(manager), "Changed");
}

Result Remove(const Arguments& arguments) {
  const Json site = LoadSite();
  const Json& manager = Find(site, arguments.manager);
  const std::string what = "remove " + Quoted(manager["name"]);
  alertstore::Status status = alertstore::kOk;
  if (const std::string problem = site::RemovalProblem(IdOf(manager), status); !problem.empty())
    throw Failure(status == alertstore::kOk ? kInvalid : kStoreFailure, "cannot " + what + ": " + problem);
  RequireTaken(what, "", site::RemoveManager(IdOf(manager)));
  SetBackup(IdOf(manager), false);
  return {{{"id", manager["id"]}, {"name", manager["name"]}, {"services", manager["services"].size()}},
          "Removed " + Quoted(manager["name"]) +
              (manager["services"].empty()
                   ? ".\n"
                   : ", which delivered " + Count(manager["services"].size(), "service") + ".\n")};
}

}  // namespace

void AddManagerChangeVerbs(Verbs& verbs, CLI::App& manager) {
  const auto arguments = std::make_shared<Arguments>();
  const auto add = [&](const char* name, const char* description, const char* examples,
                       Result (*action)(const Arguments&), const char* what) -> CLI::App& {
    CLI::App& verb = verbs.AddVerb(manager, name, Access::kChange, description, examples,
                                   [arguments, action] { return action(*arguments); });
    verb.add_option("manager", arguments->manager, what)->required();
    return verb;
  };
  constexpr char kWhich[] = "Name or identity of the alert manager";
  add("add", "Adds an alert manager.", kAddExamples, Add, "Name of its computer, at most 63 bytes");
  CLI::App& set = add("set", "Renames an alert manager, or makes it the backup.", kSetExamples, Set, kWhich);
  set.add_option("--name", arguments->name, "New name, at most 63 bytes");
  set.add_option("--backup", arguments->backup, "Whether it takes over where another fails")
      ->check(CLI::IsMember({"yes", "no"}))
      ->type_name("yes|no");
  add("remove", "Removes an alert manager at once. Nobody delivers its services then.", kRemoveExamples,
      Remove, kWhich);
}

}  // namespace alertctl
