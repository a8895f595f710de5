// SPDX-License-Identifier: MIT
#include "companions/alertstore/stores.h"
#include "console/alertctl/record_kind.h"
#include "console/alertctl/text.h"

namespace alertctl {
namespace {

using console_operator::OperatedWindow;

constexpr char kListExamples[] = "  alertctl snmp-manager list";
constexpr char kShowExamples[] = "  alertctl snmp-manager show 192.0.2.10";
constexpr char kAddExamples[] =
    "  alertctl snmp-manager add 192.0.2.10 --computer noc1 --comment \"first desk\"\n"
    "  alertctl snmp-manager add 192.0.2.11 --community-file /dev/null";
constexpr char kSetExamples[] =
    "  alertctl snmp-manager set 192.0.2.11 --address 192.0.2.12\n"
    "  alertctl snmp-manager set 192.0.2.12 --computer noc2 --comment \"\"";
constexpr char kRemoveExamples[] = "  alertctl snmp-manager remove 192.0.2.12";

Json LoadSnmpManagers() { return LoadSite()["snmpManagers"]; }

const RecordKind kSnmpManagers = {
    "snmp-manager",
    "SNMP manager",
    "There are no SNMP managers. \"alertctl snmp-manager add ADDRESS\" adds one.\n",
    "address",
    {{"ADDRESS", "address"}, {"COMPUTER", "computer"}, {"COMMENT", "comment"}},
    LoadSnmpManagers,
    [](const platform::GUID& id) { return RemoveFrom(alertstore::CAlertUSR_SNMPDB(), id); }};

const FieldOption kAddress[] = {
    {"--address", FieldKind::kText, "Network address, at most 28 bytes", {"&Network Address:"}}};
const FieldOption kFields[] = {
    {"--computer", FieldKind::kText, "Computer that it runs on, at most 64 bytes", {"&Machine Name:"}},
    {"--community-file",
     FieldKind::kSecret,
     "File with the community name; - is standard input",
     {"&Community:"}},
    {"--comment", FieldKind::kText, "Anything, at most 2048 bytes", {"C&omment:"}},
};

constexpr std::uint32_t kSnmpTrap = 2;  // as records have it

/// The managers stand on the page of any service that sends traps.
void OnManagers(Library& library, const std::string& what, const Library::Story& story) {
  const int index = library.FirstOf("SNMP Trap service", [&](int each) {
    return library.Calls().DomainServiceGetInfo(each)->recordType == kSnmpTrap;
  });
  library.Work(what, [&] { library.Calls().DomainServicePropertySheet(nullptr, index); },
               {[&](OperatedWindow& sheet) {
                 story(sheet);
                 sheet.Close();
               }});
}

void ClickManager(OperatedWindow& sheet, const Json& manager) {
  const Json managers = LoadSnmpManagers();
  const auto place = std::ranges::find(managers, manager["id"], [](const Json& each) { return each["id"]; });
  sheet.ClickRow("&SNMP Destinations:", static_cast<std::size_t>(place - managers.begin()));
}

Library::Story FillIn(const GivenFields& fields) {
  return [&fields](OperatedWindow& dialog) {
    dialog.FillAll(fields.Values(), "an SNMP manager");
    dialog.Finish();
  };
}

Result Add(const RecordArguments& arguments) {
  const std::string id = AddWhole(kSnmpManagers, arguments.name, [&] {
    Library library;
    OnManagers(library, "add the SNMP manager \"" + arguments.name + "\"", [&](OperatedWindow& sheet) {
      sheet.Open("A&dd...", {[&](OperatedWindow& dialog) {
                   dialog.Fill(kAddress[0], arguments.name);
                   FillIn(arguments.fields)(dialog);
                 }});
    });
    library.RequireWhole("added the SNMP manager");
  });
  return Told(kSnmpManagers, "Added", id);
}

Result Set(const RecordArguments& arguments) {
  arguments.fields.RequireAny();
  const Json manager = FindRecord(kSnmpManagers, arguments.name);
  Library library;
  OnManagers(library, "change " + Quoted(kSnmpManagers, manager), [&](OperatedWindow& sheet) {
    ClickManager(sheet, manager);
    sheet.Open("&Properties", {FillIn(arguments.fields)});
  });
  library.RequireWhole("changed " + Quoted(kSnmpManagers, manager));
  return Told(kSnmpManagers, "Changed", manager["id"]);
}

Result Remove(const RecordArguments& arguments) {
  const Json manager = FindRecord(kSnmpManagers, arguments.name);
  Library library;
  library.Windows().AnswerYes(true);
  OnManagers(library, "remove " + Quoted(kSnmpManagers, manager), [&](OperatedWindow& sheet) {
    ClickManager(sheet, manager);
    sheet.Press("&Remove");
  });
  library.RequireWhole("removed " + Quoted(kSnmpManagers, manager));
  return ToldGone(kSnmpManagers, manager);
}

}  // namespace

void AddSnmpManagerVerbs(Verbs& verbs) {
  CLI::App& manager = verbs.AddNoun("snmp-manager", "Shows and changes where SNMP traps are sent.");
  AddLookVerbs(verbs, manager, kSnmpManagers, kListExamples, kShowExamples);
  AddChangeVerb(
      verbs, manager, kSnmpManagers,
      {"add", "Adds an SNMP manager at an address, by which it is named.", kAddExamples, Add, {kFields}});
  AddChangeVerb(verbs, manager, kSnmpManagers,
                {"set", "Changes what is named of an SNMP manager.", kSetExamples, Set, {kAddress, kFields}});
  AddChangeVerb(verbs, manager, kSnmpManagers,
                {"remove", "Removes an SNMP manager at once.", kRemoveExamples, Remove, {}});
}

}  // namespace alertctl
