// SPDX-License-Identifier: MIT
#include <memory>

#include "console/alertctl/fields.h"
#include "console/alertctl/library.h"
#include "console/alertctl/listing.h"
#include "console/alertctl/site.h"
#include "console/alertctl/text.h"
#include "console/alertctl/verbs.h"

namespace alertctl {

void AddEntryTestVerb(Verbs& verbs, CLI::App& entry);

namespace {

using platform::GUID;

constexpr char kListExamples[] =
    "  alertctl entry list\n"
    "  alertctl entry list --user Ann";
constexpr char kSetExamples[] =
    "  alertctl entry set Ann \"Internet Mail\" ann@example.org\n"
    "  alertctl entry set Ann \"Numeric Pager\" 555-0100 --disabled\n"
    "  alertctl entry set Ann \"MCI Mail\" 123-4567 --ems yes --ems-address HUB";
constexpr char kRemoveExamples[] = "  alertctl entry remove Ann \"Internet Mail\"";

/// More than any type's field takes; the field itself knows how much.
constexpr std::size_t kLongestAddress = 1024;

const FieldOption kAddress = {"the address",
                              FieldKind::kText,
                              "",
                              {"Email A&ddress:", "Email &Address:", "&PIN number:", "&Phone number:"}};
const FieldOption kEnabled = {
    "--disabled", FieldKind::kFlag, "", {"&Enable service", "&Enable service for user"}};
const FieldOption kFields[] = {
    {"--ems", FieldKind::kFlag, "MCI Mail: whether the user sits on another mail system", {"Enable EM&S"}},
    {"--ems-address", FieldKind::kText, "MCI Mail: name of that system", {"E&MS Address:"}},
};

struct Arguments {
  std::string user;
  std::string service;
  std::string address;
  bool disabled = false;
  GivenFields fields;
};

Json EntryJson(const Json& service, const Json& user) {
  Json entry = {{"service", service["name"]}, {"serviceId", service["id"]}, {"user", user["name"]}};
  for (const auto& [name, value] : user.items())
    if (name != "name") entry[name] = value;
  return entry;
}

/// The identity of a user who may be unknown here when named by identity: entries can outlive their user.
std::string UserId(const std::string& name) {
  const auto id = GUID::Parse(name);
  return (id ? *id : FindUser(name).id).ToString();
}

/// The entries of a service, of one user where `user_id` names one.
void Collect(const Json& service, const std::string& user_id, Json& list) {
  for (const Json& user : service.value("users", Json::array()))
    if (user_id.empty() || user["userId"] == user_id) list.push_back(EntryJson(service, user));
}

Json Entries(const Arguments& arguments) {
  const Json site = LoadSite();
  const std::string user_id = arguments.user.empty() ? "" : UserId(arguments.user);
  Json list = Json::array();
  if (arguments.service.empty())
    for (const Json& service : site["services"]) Collect(service, user_id, list);
  else
    Collect(FindService(site, arguments.service), user_id, list);
  return list;
}

/// An entry has no identity of its own: user and service tell it apart.
Listing List(const Arguments& arguments) {
  Listing listing{{"USER", "SERVICE", "ADDRESS", "ALERTED"},
                  "There are no entries. \"alertctl entry set\" adds one.\n",
                  {}};
  for (const Json& entry : Entries(arguments))
    listing.rows.push_back(
        {{entry["user"], entry["service"], entry["address"], YesNo(entry["enabled"])},
         Made(entry),
         entry["userId"].get<std::string>() + " " + entry["serviceId"].get<std::string>()});
  return listing;
}

/// Which fields of the sheet the arguments stand for.
FieldValues Values(const Arguments& arguments) {
  FieldValues values = {{&kAddress, arguments.address}, {&kEnabled, arguments.disabled ? "no" : "yes"}};
  for (const auto& value : arguments.fields.Values()) values.push_back(value);
  return values;
}

/// The entry as it is stored: other parts of the console may have given it more than what is set here.
Json StoredEntry(const Json& service, const FoundUser& user) {
  const Json site = LoadSite();
  Json entries = Json::array();
  Collect(FindService(site, service["id"]), user.id.ToString(), entries);
  if (entries.empty())
    throw Failure(kStoreFailure, "the entry is gone again: another console has removed it");
  return entries[0];
}

Result Set(const Arguments& arguments) {
  const Json site = LoadSite();
  const Json& service = FindService(site, arguments.service);
  const FoundUser user = FindUser(arguments.user);
  const std::string name = service["name"], what = "the entry of \"" + user.name + "\" on \"" + name + "\"";
  Library library;
  const int index = library.IndexOf(service);
  if (library.Calls().DomainServiceIsUser(index) == 0)
    throw Failure(kInvalid, "users have no entries on " + TypeName(service) + " services such as \"" + name +
                                "\": choose a mail or pager service");
  CheckTyped("an address on " + TypeName(service), arguments.address, kLongestAddress);
  library.Work("write " + what, [&] { library.Calls().UserServicePropertySheet(nullptr, index, user.id); },
               {[&](console_operator::OperatedWindow& sheet) {
                 sheet.FillAll(Values(arguments), "an entry on " + TypeName(service));
                 sheet.Finish();
                 library.Windows().RequireQuiet();
               }});
  library.RequireWhole("wrote " + what);
  try {
    return {StoredEntry(service, user), "Wrote " + what + ".\n"};
  } catch (const Failure& unread) {
    throw Failure(unread.Code(), "wrote " + what + ", but cannot show it: " + unread.what());
  }
}

Result Remove(const Arguments& arguments) {
  const Json site = LoadSite();
  const Json& service = FindService(site, arguments.service);
  const std::string user_id = UserId(arguments.user);
  const std::string what =
      "entry of \"" + arguments.user + "\" on \"" + service["name"].get<std::string>() + "\"";
  Json entries = Json::array();
  Collect(service, user_id, entries);
  if (entries.empty())
    throw Failure(kNothingMatched, "there is no " + what + ": see \"alertctl entry list\"");
  Library library;
  if (!library.DeleteUserEntry(library.IndexOf(service), GUID::Parse(user_id).value()))
    throw library.Refusal("remove the " + what);
  library.RequireWhole("removed the " + what);
  return {entries[0], "Removed the " + what + ".\n"};
}

void AddUserAndService(CLI::App& verb, const std::shared_ptr<Arguments>& arguments) {
  verb.add_option("user", arguments->user, "Name or identity of the user")->required();
  verb.add_option("service", arguments->service, "Name or identity of the service")->required();
}

}  // namespace

void AddEntryVerbs(Verbs& verbs) {
  CLI::App& entry = verbs.AddNoun("entry", "Shows and changes how users are reached through services.");
  const auto arguments = std::make_shared<Arguments>();
  CLI::App& list = AddListVerb(verbs, entry, "Lists the entries, of one user or service where one is named.",
                               kListExamples, [arguments] { return List(*arguments); });
  list.add_option("--user", arguments->user, "Name or identity of a user")->check(kNotEmpty);
  list.add_option("--service", arguments->service, "Name or identity of a service")->check(kNotEmpty);

  CLI::App& set =
      verbs.AddVerb(entry, "set", Access::kChange, "Writes a user's entry on a service, new or changed.",
                    kSetExamples, [arguments] { return Set(*arguments); });
  AddUserAndService(set, arguments);
  set.add_option("address", arguments->address,
                 "Address on the service: mail address, number or pager identification")
      ->required();
  set.add_flag("--disabled", arguments->disabled,
               "The user is not to be alerted through the service for now");
  arguments->fields.AddTo(set, kFields);

  AddUserAndService(verbs.AddVerb(entry, "remove", Access::kChange, "Removes a user's entry from a service.",
                                  kRemoveExamples, [arguments] { return Remove(*arguments); }),
                    arguments);
  AddEntryTestVerb(verbs, entry);
}

}  // namespace alertctl
