// SPDX-License-Identifier: MIT
#include <memory>

#include "console/alertctl/fields.h"
#include "console/alertctl/library.h"
#include "console/alertctl/site.h"
#include "console/alertctl/text.h"
#include "console/hosts/record_list.h"
#include "console/hosts/response_service.h"
#include "console/hosts/response_sheet.h"
#include "console/hosts/response_wizard.h"
#include "console/hosts/service_and_user.h"
#include "console/site/responses.h"

namespace alertctl {

void AddResponseChangeVerbs(Verbs& verbs, CLI::App& response);

namespace {

using console_operator::OperatedWindow;

constexpr char kAddExamples[] =
    "  alertctl response add \"SNMP Trap\" --message \"<Severity> on <Workstation>\"\n"
    "  alertctl response add \"Internet Mail\" --user Ann --subject \"Disk full\" --priority Urgent\n"
    "  alertctl response add \"Program Launch Service\" --file '\\\\\\\\noc1\\\\tools\\\\beep.exe' "
    "--command-line \"-n 3\"";
constexpr char kSetExamples[] =
    "  alertctl response set \"$(alertctl response list --where subject='Disk full' -q)\" --subject \"Disk "
    "nearly full\"";
constexpr char kRetargetExamples[] =
    "  alertctl response retarget \"$(alertctl response list --where subject='Disk nearly full' -q)\" \"SNMP "
    "Trap\" "
    "--message \"<Event Name>\"";
constexpr char kRemoveExamples[] =
    "  alertctl response remove \"$(alertctl response list --where message='<Severity> on <Workstation>' "
    "-q)\"";
constexpr char kNoUser[] = "say with --user who is alerted: a user who has an entry on the service",
               kNoFile[] = "name the file with --file";
constexpr char kServices[] = "&Services:", kUser[] = "&User to alert:";

const FieldOption kFields[] = {
    {"--subject",
     FieldKind::kText,
     "Subject of a mail, with keywords such as <Event Name>",
     {"Mail Message &Subject:"}},
    {"--message", FieldKind::kLines, "Message, with keywords", {"Mail &Message Body:", "&Message:"}},
    {"--priority", FieldKind::kChoice, "Priority of a mail", {"P&riority:"}},
    {"--file", FieldKind::kText, "Wave file or program", {"&Wave file:", "&Program:"}},
    {"--command-line", FieldKind::kLines, "Command line of a program, with keywords", {"&Command Line:"}},
};

struct Arguments {
  std::string response, service, user;
  bool yes = false;
  GivenFields fields;
};

/// Services and users are rows and items of the same window, whether the response is new or not.
void ChooseTarget(OperatedWindow& window, const Json& service, const std::string& user) {
  auto& services = window.Find<hosts::RecordList>(kServices);
  const int row = services.RowOf(IdOf(service));
  if (row < 0) throw Failure(kNothingMatched, "another console has deleted the service");
  window.ClickRow(kServices, static_cast<std::size_t>(row));
  if (user.empty()) return;
  const FoundUser found = FindUser(user);
  const int place = window.Find<hosts::UserList>(kUser).PlaceOf(found.id);
  if (place < 0)
    throw Failure(kInvalid, "\"" + found.name + "\" has no entry on \"" + service["name"].get<std::string>() +
                                "\": see \"alertctl entry list\"");
  window.ChooseAt(kUser, static_cast<std::size_t>(place));
}

site::Overview Overview() {
  site::Overview overview;
  const alertstore::Status status = site::ReadOverview(overview);
  if (status != alertstore::kOk) throw StoreFailure("read the stores", status);
  return overview;
}

std::string NameOf(const Json& response) { return "the response " + response["id"].get<std::string>(); }

Result Told(const std::string& done, const std::string& id, const Library& library) {
  const Json site = LoadSite();
  const Json& response = FindResponse(site, id);
  return {response, done + " " + NameOf(response) + ".\n" + library.Notes()};
}

Library::Story NewResponse(const Json& service, const Arguments& arguments) {
  return [&](OperatedWindow& wizard) {
    ChooseTarget(wizard, service, arguments.user);
    wizard.Press("&Next >", kNoUser);
    wizard.FillAll(arguments.fields.Values(), "a response through " + TypeName(service));
    wizard.Finish("Finish", kNoFile);
  };
}

Result Add(const Arguments& arguments) {
  const Json site = LoadSite();
  const Json& service = FindService(site, arguments.service);
  const site::Overview overview = Overview();
  Library library;
  library.IndexOf(service);
  library.Windows().AnswerYes(arguments.yes);
  platform::GUID added{};
  library.Work("add a response through \"" + service["name"].get<std::string>() + "\"",
               [&] { hosts::AddResponse(nullptr, library.Calls(), overview, added); },
               {NewResponse(service, arguments)});
  library.RequireWhole("added the response");
  return Told("Added", added.ToString(), library);
}

Library::Story FillSheet(const Arguments& arguments) {
  return [&arguments](OperatedWindow& sheet) {
    sheet.FillAll(arguments.fields.Values(), "this response");
    sheet.Finish();
  };
}

Result Set(const Arguments& arguments) {
  arguments.fields.RequireAny();
  const Json site = LoadSite();
  const Json& response = FindResponse(site, arguments.response);
  Library library;
  library.Calls().DomainServiceGetCount();
  library.Windows().Forget();
  library.Windows().AnswerYes(arguments.yes);
  library.Work("change " + NameOf(response),
               [&] { hosts::EditResponse(nullptr, library.Calls(), IdOf(response)); },
               {FillSheet(arguments)});
  library.RequireWhole("changed " + NameOf(response));
  return Told("Changed", response["id"], library);
}

/// Where the other service is of another type, what the response then sends is shown to be completed.
Result Retarget(const Arguments& arguments) {
  const Json site = LoadSite();
  const Json& response = FindResponse(site, arguments.response);
  const Json& service = FindService(site, arguments.service);
  const site::Overview overview = Overview();
  Library library;
  library.IndexOf(service);
  library.Windows().AnswerYes(arguments.yes);
  bool filled = false;
  const auto complete = [&](OperatedWindow& sheet) {
    filled = true;
    FillSheet(arguments)(sheet);
  };
  library.Work("point " + NameOf(response) + " at \"" + service["name"].get<std::string>() + "\"",
               [&] { hosts::RetargetResponse(nullptr, library.Calls(), overview, IdOf(response)); },
               {[&](OperatedWindow& dialog) {
                 ChooseTarget(dialog, service, arguments.user);
                 library.Windows().Work([&] { dialog.Finish("OK", kNoUser); }, {complete},
                                        console_operator::Opens::kMaybe);
               }});
  library.RequireWhole("pointed " + NameOf(response) + " at another service");
  Result told = Told("Pointed at \"" + service["name"].get<std::string>() + "\":", response["id"], library);
  if (!filled && arguments.fields.Any())
    told.text +=
        "Note: the message stays as it is, as the type of the service does; \"response set\" changes it.\n";
  return told;
}

Result Remove(const Arguments& arguments) {
  const Json site = LoadSite();
  const Json& response = FindResponse(site, arguments.response);
  const alertstore::Status status = site::RemoveResponse(IdOf(response));
  if (status != alertstore::kOk) throw StoreFailure("remove " + NameOf(response), status);
  return {response, "Removed " + NameOf(response) + ".\n"};
}

constexpr char kWhich[] = "Identity of the response";

class ResponseVerbs {
 public:
  ResponseVerbs(Verbs& verbs, CLI::App& noun) : verbs_(verbs), noun_(noun) {}

  CLI::App& Add(const char* name, const char* description, const char* examples,
                Result (*action)(const Arguments&)) {
    arguments_ = std::make_shared<Arguments>();
    return verbs_.AddVerb(noun_, name, Access::kChange, description, examples,
                          [action, arguments = arguments_] { return action(*arguments); });
  }
  Arguments& Given() { return *arguments_; }
  void AddTarget(CLI::App& verb) {
    verb.add_option("service", Given().service, "Name or identity of the service")->required();
    verb.add_option("--user", Given().user, "User to alert; without it the only one who has an entry")
        ->check(kNotEmpty);
  }
  void AddFields(CLI::App& verb) {
    Given().fields.AddTo(verb, kFields);
    verb.add_flag("--yes", Given().yes, "Go on where the window would ask whether to");
  }

 private:
  Verbs& verbs_;
  CLI::App& noun_;
  std::shared_ptr<Arguments> arguments_;
};

}  // namespace

void AddResponseChangeVerbs(Verbs& verbs, CLI::App& response) {
  ResponseVerbs added(verbs, response);
  CLI::App& add = added.Add("add", "Adds a response, which begins with the service's default message.",
                            kAddExamples, Add);
  added.AddTarget(add);
  added.AddFields(add);
  CLI::App& set = added.Add("set", "Changes what is named of a response.", kSetExamples, Set);
  set.add_option("response", added.Given().response, kWhich)->required();
  added.AddFields(set);
  CLI::App& retarget =
      added.Add("retarget", "Points a response at another service or user.", kRetargetExamples, Retarget);
  retarget.add_option("response", added.Given().response, kWhich)->required();
  added.AddTarget(retarget);
  added.AddFields(retarget);
  CLI::App& remove = added.Add("remove", "Removes a response at once.", kRemoveExamples, Remove);
  remove.add_option("response", added.Given().response, kWhich)->required();
}

}  // namespace alertctl
