// SPDX-License-Identifier: MIT
#include "companions/alertstore/stores.h"
#include "console/alertctl/modem_windows.h"
#include "console/alertctl/record_kind.h"
#include "console/alertctl/text.h"

namespace alertctl {
namespace {

using console_operator::OperatedWindow;

constexpr char kListExamples[] = "  alertctl modem-type list --sort name";
constexpr char kShowExamples[] = "  alertctl modem-type show \"Generic 2400 bps modem\"";
constexpr char kAddExamples[] =
    "  alertctl modem-type add \"Site modem\" --basis \"Generic 2400 bps modem\" --init-string \"ATZ E0\"";
constexpr char kSetExamples[] =
    "  alertctl modem-type set \"Site modem\" --baud-rate 9600 --dial-prefix ATDT9,";
constexpr char kRemoveExamples[] = "  alertctl modem-type remove \"Site modem\"";
constexpr char kTypes[] = "&Modem Types:";

constexpr char kCreate[] = "Create new modem type";

const RecordKind kModemTypes = {
    "modem-type",
    "modem type",
    "There are no modem types. \"alertctl init\" adds some.\n",
    "name",
    {{"NAME", "name"}, {"BAUD RATE", "baudRate"}, {"INIT STRING", "initString"}},
    LoadModemTypes,
    [](const platform::GUID& id) { return RemoveFrom(alertstore::CAlertSERV_MODEMDB("QModemDB.dat"), id); }};

const FieldOption kBasis[] = {{"--basis",
                               FieldKind::kChoice,
                               "Modem type that it begins as",
                               {"&Select modem type to use as a basis for the new type:"},
                               kCreate}};

Result Add(const RecordArguments& arguments) {
  CheckTyped("a modem type's name", arguments.name, decltype(alertstore::ALRTSERV_MODEM::name)::kMaxLength);
  const std::string id = AddWhole(kModemTypes, arguments.name, [&] {
    Library library;
    bool was_made = false;
    const auto made = [&](OperatedWindow& properties) {
      was_made = true;
      FillModem(arguments.fields, "a modem type")(properties);
    };
    OnModemTypes(library, "add the modem type \"" + arguments.name + "\"", [&](OperatedWindow& types) {
      types.Open("&New...", {FillNew(arguments, "&Enter name of the new type:", kCreate), made});
      if (!was_made) library.Windows().Refuse("the type was not made");
    });
    library.RequireWhole("added the modem type");
  });
  return Told(kModemTypes, "Added", id);
}

Result Set(const RecordArguments& arguments) {
  arguments.fields.RequireAny();
  const Json type = FindRecord(kModemTypes, arguments.name);
  Library library;
  OnModemTypes(library, "change " + Quoted(kModemTypes, type), [&](OperatedWindow& types) {
    types.Choose(kTypes, type["name"]);
    types.Open("&Properties...", {FillModem(arguments.fields, "a modem type")});
  });
  library.RequireWhole("changed " + Quoted(kModemTypes, type));
  return Told(kModemTypes, "Changed", type["id"]);
}

Result Remove(const RecordArguments& arguments) {
  const Json type = FindRecord(kModemTypes, arguments.name);
  Library library;
  library.Windows().AnswerYes(true);
  OnModemTypes(library, "remove " + Quoted(kModemTypes, type), [&](OperatedWindow& types) {
    types.Choose(kTypes, type["name"]);
    types.Press("&Remove");
  });
  library.RequireWhole("removed " + Quoted(kModemTypes, type));
  return ToldGone(kModemTypes, type);
}

}  // namespace

void AddModemTypeVerbs(Verbs& verbs) {
  CLI::App& type =
      verbs.AddNoun("modem-type", "Shows and changes the modem types that new modems begin with.");
  AddLookVerbs(verbs, type, kModemTypes, kListExamples, kShowExamples);
  AddChangeVerb(
      verbs, type, kModemTypes,
      {"add", "Adds a type, which begins with what another has.", kAddExamples, Add, {kBasis, ModemFields()}})
      .get_option("--basis")
      ->required();
  AddChangeVerb(verbs, type, kModemTypes,
                {"set",
                 "Changes what is named of a modem type. Modems keep what they have.",
                 kSetExamples,
                 Set,
                 {ModemFields()}});
  AddChangeVerb(verbs, type, kModemTypes,
                {"remove", "Removes a modem type at once. Modems of it stay.", kRemoveExamples, Remove, {}});
}

}  // namespace alertctl
