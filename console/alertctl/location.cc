// SPDX-License-Identifier: MIT
#include "companions/alertstore/stores.h"
#include "console/alertctl/record_kind.h"
#include "console/alertctl/text.h"

namespace alertctl {
namespace {

using console_operator::OperatedWindow;

constexpr char kListExamples[] = "  alertctl location list";
constexpr char kShowExamples[] = "  alertctl location show \"Main office\"";
constexpr char kAddExamples[] =
    "  alertctl location add Warehouse\n"
    "  alertctl location add Lab --area-code 555 --country Canada --local-access 9 --dialing pulse";
constexpr char kSetExamples[] =
    "  alertctl location set Warehouse --call-waiting yes --call-waiting-disable \"*70,\"\n"
    "  alertctl location set Warehouse --long-distance-access 8 --area-code 555";
constexpr char kRemoveExamples[] = "  alertctl location remove Warehouse";

Json LoadLocations() { return LoadSite()["locations"]; }

const RecordKind kLocations = {
    "location",
    "dialing location",
    "There are no dialing locations. \"alertctl location add NAME\" adds one.\n",
    "name",
    {{"NAME", "name"},
     {"COUNTRY CODE", "countryCode"},
     {"AREA CODE", "areaCode"},
     {"LOCAL ACCESS", "localAccess"},
     {"LONG DISTANCE ACCESS", "longDistanceAccess"},
     {"TONE", "toneDialing"}},
    LoadLocations,
    [](const platform::GUID& id) { return RemoveFrom(alertstore::CAlertMODEM_LOCATIONDB(), id); }};

constexpr char kDialingFrom[] = "I am &dialing from:";

/// A country may have no area codes, and the digits belong to call waiting: each in front of what hangs on it.
const FieldOption kFields[] = {
    {"--country", FieldKind::kChoice, "Country, by its name", {"&I am in:"}},
    {"--area-code", FieldKind::kText, "Area code, at most 11 digits", {"The area &code is:"}},
    {"--local-access",
     FieldKind::kText,
     "What reaches an outside line for local calls",
     {"To access an &outside line, first dial:"}},
    {"--long-distance-access", FieldKind::kText, "The same for long distance calls", {"for long distance."}},
    {"--call-waiting",
     FieldKind::kFlag,
     "Whether the line has call waiting",
     {"This location has call &waiting.  To disable it, dial:"}},
    {"--call-waiting-disable",
     FieldKind::kText,
     "What turns call waiting off",
     {"To disable call waiting, dial:"}},
    {"--dialing", FieldKind::kChoice, "tone or pulse", {"The phone system at this location uses"}},
};

/// Works in the dialog of locations, with that one in front.
void OnLocation(Library& library, const std::string& what, const std::string& name,
                const Library::Story& story) {
  library.Work(what, [&] { library.Calls().DialingPropertiesDialog(nullptr, name.c_str()); },
               {[&](OperatedWindow& dialog) {
                 library.Windows().Forget();  // that there is no location yet
                 if (!name.empty())
                   dialog.Choose(kDialingFrom, name);  // of names that differ in case it shows the first
                 story(dialog);
               }});
}

void FillIn(OperatedWindow& dialog, const GivenFields& fields) {
  dialog.FillAll(fields.Values(), "a dialing location");
  dialog.Finish();
}

Result Add(const RecordArguments& arguments) {
  CheckTyped("a location's name", arguments.name, decltype(alertstore::ALRTMODEM_LOCATION::name)::kMaxLength);
  const std::string id = AddWhole(kLocations, arguments.name, [&] {
    Library library;
    OnLocation(library, "add the location \"" + arguments.name + "\"", "", [&](OperatedWindow& dialog) {
      dialog.Open("&New...", {FillNew(arguments, "&Name:", "New")});
      library.Windows().RequireQuiet();
      FillIn(dialog, arguments.fields);
    });
    library.RequireWhole("added the location");
  });
  return Told(kLocations, "Added", id);
}

Result Set(const RecordArguments& arguments) {
  arguments.fields.RequireAny();
  const Json location = FindRecord(kLocations, arguments.name);
  Library library;
  OnLocation(library, "change " + Quoted(kLocations, location), location["name"],
             [&](OperatedWindow& dialog) { FillIn(dialog, arguments.fields); });
  library.RequireWhole("changed " + Quoted(kLocations, location));
  return Told(kLocations, "Changed", location["id"]);
}

Result Remove(const RecordArguments& arguments) {
  const Json location = FindRecord(kLocations, arguments.name);
  Library library;
  library.Windows().AnswerYes(true);
  OnLocation(library, "remove " + Quoted(kLocations, location), location["name"],
             [&](OperatedWindow& dialog) {
               dialog.Press("&Remove");
               dialog.Close();
             });
  library.RequireWhole("removed " + Quoted(kLocations, location));
  return ToldGone(kLocations, location);
}

}  // namespace

void AddLocationVerbs(Verbs& verbs) {
  CLI::App& location = verbs.AddNoun("location", "Shows and changes the places that modems dial from.");
  AddLookVerbs(verbs, location, kLocations, kListExamples, kShowExamples);
  AddChangeVerb(verbs, location, kLocations,
                {"add", "Adds a dialing location.", kAddExamples, Add, {kFields}});
  AddChangeVerb(verbs, location, kLocations,
                {"set", "Changes what is named of a location.", kSetExamples, Set, {kFields}});
  AddChangeVerb(verbs, location, kLocations,
                {"remove",
                 "Removes a location at once. Modems that dial from it name none then.",
                 kRemoveExamples,
                 Remove,
                 {}});
}

}  // namespace alertctl
