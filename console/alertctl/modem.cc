// SPDX-License-Identifier: MIT
#include <algorithm>

#include "companions/alertstore/stores.h"
#include "console/alertctl/modem_windows.h"
#include "console/alertctl/record_kind.h"
#include "console/alertctl/text.h"

namespace alertctl {
namespace {

using console_operator::OperatedWindow;

constexpr char kListExamples[] =
    "  alertctl modem list\n"
    "  alertctl modem list --where machine=\"$(uname -n)\"";
constexpr char kShowExamples[] = "  alertctl modem show \"Rack modem\"";
constexpr char kAddExamples[] =
    "  alertctl modem add \"Rack modem\" --type \"Generic 2400 bps modem\" --location \"Main office\"\n"
    "  alertctl modem add \"Desk modem\" --type \"Generic 2400 bps modem\" --location \"Main office\" --port "
    "COM2 "
    "--baud-rate 9600 --dial-prefix ATDT";
constexpr char kSetExamples[] =
    "  alertctl modem set \"Rack modem\" --port COM3 --enabled yes\n"
    "  alertctl modem set \"Desk modem\" --direct-port yes --comment \"wired to the siren\"";
constexpr char kRemoveExamples[] = "  alertctl modem remove \"Desk modem\"";

constexpr char kCreate[] = "Create new modem";

Json LoadModems() { return LoadSite()["modems"]; }

const RecordKind kModems = {
    "modem",
    "modem",
    "There are no modems. \"alertctl modem add\" adds one.\n",
    "name",
    {{"NAME", "name"},
     {"MACHINE", "managerName"},
     {"PORT", "comPort"},
     {"BAUD RATE", "baudRate"},
     {"ENABLED", "enabled"}},
    LoadModems,
    [](const platform::GUID& id) { return RemoveFrom(alertstore::CAlertSERV_MODEMDB(), id); }};

const FieldOption kNewType[] = {{"--type",
                                 FieldKind::kChoice,
                                 "Modem type that it begins as",
                                 {"&Select modem type for the new modem:"},
                                 kCreate}};
const FieldOption kOtherType[] = {{"--type",
                                   FieldKind::kChoice,
                                   "Modem type; the modem takes the type's name and command strings",
                                   {"&Type:"}}};

/// The list of the window is in the order of the store.
void ClickModem(OperatedWindow& sheet, const Json& modem) {
  const Json modems = LoadModems();
  const auto place = std::ranges::find(modems, modem["id"], [](const Json& each) { return each["id"]; });
  sheet.ClickRow("Modems", static_cast<std::size_t>(place - modems.begin()));
}

/// Without a machine none could be stored; the one that is meant without a word is this one.
Library::Story NewProperties(const RecordArguments& arguments) {
  return [&arguments](OperatedWindow& properties) {
    if (arguments.fields.Find("--machine") == nullptr)
      properties.Choose("&Machine:", FindManager(LoadSite(), "", "--machine")["name"]);
    FillModem(arguments.fields, "a modem")(properties);
  };
}

Result Add(const RecordArguments& arguments) {
  CheckTyped("a modem's name", arguments.name, decltype(alertstore::ALRTSERV_MODEM::name)::kMaxLength);
  const std::string id = AddWhole(kModems, arguments.name, [&] {
    Library library;
    OnModemPage(library, "add the modem \"" + arguments.name + "\"", [&](OperatedWindow& sheet) {
      sheet.Open("Ne&w...",
                 {FillNew(arguments, "&Enter name for new modem:", kCreate), NewProperties(arguments)});
    });
    library.RequireWhole("added the modem");
  });
  return Told(kModems, "Added", id);
}

Result Set(const RecordArguments& arguments) {
  arguments.fields.RequireAny();
  const Json modem = FindRecord(kModems, arguments.name);
  Library library;
  OnModemPage(library, "change " + Quoted(kModems, modem), [&](OperatedWindow& sheet) {
    ClickModem(sheet, modem);
    sheet.Open("&Properties", {FillModem(arguments.fields, "a modem")});
  });
  library.RequireWhole("changed " + Quoted(kModems, modem));
  return Told(kModems, "Changed", modem["id"]);
}

Result Remove(const RecordArguments& arguments) {
  const Json modem = FindRecord(kModems, arguments.name);
  Library library;
  library.Windows().AnswerYes(true);
  OnModemPage(library, "remove " + Quoted(kModems, modem), [&](OperatedWindow& sheet) {
    ClickModem(sheet, modem);
    sheet.Press("&Delete");
  });
  library.RequireWhole("removed " + Quoted(kModems, modem));
  return ToldGone(kModems, modem);
}

}  // namespace

void AddModemVerbs(Verbs& verbs) {
  CLI::App& modem = verbs.AddNoun("modem", "Shows and changes the modems that services dial out with.");
  AddLookVerbs(verbs, modem, kModems, kListExamples, kShowExamples);
  CLI::App& add = AddChangeVerb(verbs, modem, kModems,
                                {"add",
                                 "Adds a modem, which begins with what its type has. Without --machine it is "
                                 "attached to this machine.",
                                 kAddExamples,
                                 Add,
                                 {kNewType, ModemFields(), ModemOnlyFields()}});
  for (const char* option : {"--type", "--location"}) add.get_option(option)->required();
  AddChangeVerb(verbs, modem, kModems,
                {"set",
                 "Changes what is named of a modem.",
                 kSetExamples,
                 Set,
                 {kOtherType, ModemFields(), ModemOnlyFields()}});
  AddChangeVerb(verbs, modem, kModems, {"remove", "Removes a modem at once.", kRemoveExamples, Remove, {}});
}

}  // namespace alertctl
