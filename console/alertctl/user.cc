// SPDX-License-Identifier: MIT
#include <memory>

#include "companions/alertstore/console_users.h"
#include "console/alertctl/listing.h"
#include "console/alertctl/site.h"
#include "console/alertctl/text.h"
#include "console/alertctl/verbs.h"
#include "platform/base/utf8.h"

namespace alertctl {
namespace {

using platform::GUID;

constexpr char kListExamples[] =
    "  alertctl user list\n"
    "  alertctl user list --sort name --where name=ann";
constexpr char kAddExamples[] =
    "  alertctl user add Ann\n"
    "  alertctl user add \"Night Operator\" --id 7B1C7A52-0D5C-4F4B-8B60-6F3B1C9E2A11";
constexpr char kRemoveExamples[] = "  alertctl user remove \"Night Operator\"";

Json UserJson(const GUID& id, const std::string& name) { return {{"id", id.ToString()}, {"name", name}}; }

std::vector<alertstore::ConsoleUser> StoredUsers() {
  std::vector<alertstore::ConsoleUser> users;
  const alertstore::Status status = alertstore::ListConsoleUsers(users);
  if (status != alertstore::kOk) throw StoreFailure("read the users", status);
  return users;
}

Listing List() {
  Listing listing{{"NAME", "IDENTITY"}, "There are no users. \"alertctl user add NAME\" adds one.\n", {}};
  const auto users = std::make_shared<const std::vector<alertstore::ConsoleUser>>(StoredUsers());
  listing.rows.reserve(users->size());
  for (const auto& user : *users) {
    Listing::Row& row = listing.rows.emplace_back();
    row.identity = user.id.ToString();
    row.cells.reserve(2);
    row.cells.push_back(user.name);
    row.cells.push_back(row.identity);
    row.item = [users, &user] { return UserJson(user.id, user.name); };
  }
  return listing;
}

/// A second one of that name is seldom meant, and a script that runs again does not mean one.
void CheckNewName(const std::string& name) {
  CheckTyped("a user's name", name, alertstore::kMaxConsoleUserName);
  for (const auto& user : StoredUsers())
    if (platform::EqualIgnoringCase(user.name, name))
      throw Failure(kInvalid, "there is a user named \"" + user.name +
                                  "\" already: --another adds a second one of that name");
}

Result Add(const std::string& name, const std::string& id_text, bool another) {
  const auto id = id_text.empty() ? GUID::Generate() : GUID::Parse(id_text);
  if (!id)
    throw Failure(kInvalid, "\"" + id_text + "\" is no identity: write 32 hexadecimal digits as 8-4-4-4-12");
  if (another)
    CheckTyped("a user's name", name, alertstore::kMaxConsoleUserName);
  else
    CheckNewName(name);
  const alertstore::Status status = alertstore::AddConsoleUser(*id, name);
  if (status == alertstore::kNotUnique || status == alertstore::kInvalidArgument)
    throw Failure(kInvalid, "cannot add the user \"" + name + "\": the identity " + id->ToString() +
                                (id->IsNull() ? " means none" : " is taken") +
                                "; leave --id out to get a new one");
  if (status != alertstore::kOk) throw StoreFailure("add the user \"" + name + "\"", status);
  return {UserJson(*id, name), "Added the user \"" + name + "\" " + id->ToString() + ".\n"};
}

std::size_t EntriesOf(const GUID& user) {
  const Json site = LoadSite();
  std::size_t entries = 0;
  for (const Json& service : site["services"])
    for (const Json& entry : service.value("users", Json::array()))
      if (entry["userId"] == user.ToString()) ++entries;
  return entries;
}

/// A user with entries stays: alerts would go on to someone who is no longer listed.
Result Remove(const std::string& name) {
  const FoundUser user = FindUser(name);
  if (const std::size_t entries = EntriesOf(user.id))
    throw Failure(kInvalid, "cannot remove the user \"" + user.name + "\", who has " +
                                std::to_string(entries) +
                                " service entries: remove them first (\"alertctl entry list\" shows them)");
  const alertstore::Status status = alertstore::RemoveConsoleUser(user.id);
  if (status != alertstore::kOk) throw StoreFailure("remove the user \"" + user.name + "\"", status);
  return {UserJson(user.id, user.name), "Removed the user \"" + user.name + "\".\n"};
}

}  // namespace

void AddUserVerbs(Verbs& verbs) {
  CLI::App& user = verbs.AddNoun("user", "Lists, adds and removes the people whom alerts can reach.");
  AddListVerb(verbs, user, "Lists the users.", kListExamples, List);
  const auto name = std::make_shared<std::string>();
  const auto id = std::make_shared<std::string>();
  const auto another = std::make_shared<bool>(false);
  CLI::App& add = verbs.AddVerb(user, "add", Access::kSetUp, "Adds a user.", kAddExamples,
                                [=] { return Add(*name, *id, *another); });
  add.add_option("name", *name, "Name, at most 64 bytes")->required();
  add.add_option("--id", *id, "Identity; without it a new one is made")->check(kNotEmpty);
  add.add_flag("--another", *another, "Also where there is a user of that name");
  verbs
      .AddVerb(user, "remove", Access::kChange, "Removes a user who has no entry on any service.",
               kRemoveExamples, [name] { return Remove(*name); })
      .add_option("user", *name, "Name or identity of the user")
      ->required();
}

}  // namespace alertctl
