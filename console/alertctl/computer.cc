// SPDX-License-Identifier: MIT
#include "companions/alertstore/computers.h"
#include "console/alertctl/record_kind.h"
#include "console/alertctl/text.h"
#include "console/site/names.h"

namespace alertctl {
namespace {

constexpr char kListExamples[] = "  alertctl computer list -q";
constexpr char kShowExamples[] = "  alertctl computer show \"$(uname -n)\"";
constexpr char kAddExamples[] = "  alertctl computer add noc1";
constexpr char kSetExamples[] = "  alertctl computer set noc1 --name noc2";
constexpr char kRemoveExamples[] = "  alertctl computer remove noc2";

const RecordKind kComputers = {"computer",
                               "computer",
                               "This site knows no computer. \"alertctl computer add NAME\" adds one.\n",
                               "name",
                               {{"NAME", "name"}},
                               LoadComputers,
                               alertstore::RemoveComputer};

const FieldOption kName[] = {{"--name", FieldKind::kText, "New name, at most 64 bytes", {}}};

/// Names are told apart without their case.
void RequireTaken(const std::string& what, const std::string& name, alertstore::Status status) {
  if (status == alertstore::kNotUnique)
    throw Failure(kInvalid, "the site knows a computer named \"" + name + "\" already: choose another name");
  if (status != alertstore::kOk) throw StoreFailure(what, status);
}

Result Add(const RecordArguments& arguments) {
  CheckTyped("a computer's name", arguments.name, alertstore::kMaxObjectName);
  const platform::GUID id = platform::GUID::Generate();
  RequireTaken("add the computer \"" + arguments.name + "\"", arguments.name,
               alertstore::AddComputer(id, arguments.name));
  return Told(kComputers, "Added", id.ToString());
}

Result Set(const RecordArguments& arguments) {
  const std::string* name = arguments.fields.Find("--name");
  if (name == nullptr) arguments.fields.RequireAny();
  const Json computer = FindRecord(kComputers, arguments.name);
  CheckTyped("a computer's name", *name, alertstore::kMaxObjectName);
  RequireTaken("rename " + Quoted(kComputers, computer), *name,
               alertstore::RenameComputer(IdOf(computer), *name));
  return Told(kComputers, "Renamed", computer["id"]);
}

Result Remove(const RecordArguments& arguments) {
  const Json computer = FindRecord(kComputers, arguments.name);
  RequireTaken("remove " + Quoted(kComputers, computer), "", alertstore::RemoveComputer(IdOf(computer)));
  return ToldGone(kComputers, computer);
}

}  // namespace

void AddComputerVerbs(Verbs& verbs) {
  CLI::App& computer = verbs.AddNoun("computer", "Shows and changes the computers that can be chosen.");
  AddLookVerbs(verbs, computer, kComputers, kListExamples, kShowExamples);
  AddChangeVerb(verbs, computer, kComputers, {"add", "Adds a computer by its name.", kAddExamples, Add, {}});
  AddChangeVerb(verbs, computer, kComputers,
                {"set",
                 "Gives a computer another name. What names it already keeps the old one.",
                 kSetExamples,
                 Set,
                 {kName}});
  AddChangeVerb(verbs, computer, kComputers,
                {"remove", "Removes a computer from those that can be chosen.", kRemoveExamples, Remove, {}});
}

}  // namespace alertctl
