// SPDX-License-Identifier: MIT
#include "console/alertctl/modem_windows.h"

#include <algorithm>

namespace alertctl {
namespace {

using console_operator::OperatedWindow;

constexpr char kAdvanced[] = "Ad&vanced";

/// What a direct port excludes comes behind it.
const FieldOption kFields[] = {
    {"--machine", FieldKind::kChoice, "Alert manager that it is attached to", {"&Machine:"}},
    {"--port", FieldKind::kChoice, "COM1, COM2, COM3 or COM4", {"&Port:"}},
    {"--baud-rate", FieldKind::kChoice, "Bits per second, such as 2400", {"&Baud rate:"}},
    {"--comment", FieldKind::kText, "Anything, at most 2048 bytes", {"&Comment:"}},
    {"--enabled", FieldKind::kFlag, "Whether it is in use", {"&Enable"}},
    {"--direct-port",
     FieldKind::kFlag,
     "Use the port directly, without a modem; excludes what follows",
     {"Direct Po&rt I/O", "Po&rt"}},
    {"--online-service", FieldKind::kFlag, "Can reach online services", {"&Online Service"}},
    {"--alpha-pager", FieldKind::kFlag, "Can reach alphanumeric pagers", {"A&lpha Pager"}},
    {"--numeric-pager", FieldKind::kFlag, "Can reach numeric pagers", {"&Numeric Pager"}},
    {"--init-string",
     FieldKind::kText,
     "Command that initializes it",
     {"&Initialization string:"},
     kAdvanced},
    {"--hangup-string", FieldKind::kText, "Command that hangs up", {"&Hangup string:"}, kAdvanced},
    {"--dial-prefix", FieldKind::kText, "What goes before a number", {"Dialing &prefix string:"}, kAdvanced},
    {"--dial-suffix", FieldKind::kText, "What goes behind a number", {"Dialing &suffix string:"}, kAdvanced},
    {"--escape-string", FieldKind::kText, "What brings it back to commands", {"&Escape string:"}, kAdvanced},
    {"--alpha-init-string",
     FieldKind::kText,
     "Command that initializes it for alphanumeric pagers",
     {"&Alpha pager initialization string:"},
     kAdvanced},
};

const FieldOption kModemOnly[] = {
    {"--location", FieldKind::kChoice, "Dialing location that it dials from", {"I am dialing &from"}},
};

}  // namespace

FieldOptions ModemFields() { return kFields; }

FieldOptions ModemOnlyFields() { return kModemOnly; }

void OnModemPage(Library& library, const std::string& what, const Library::Story& story) {
  const int index = library.FirstOf("service that dials out", [&](int each) {
    return library.Calls().DomainServiceIsModemService(each) != 0;
  });
  library.Work(what, [&] { library.Calls().DomainServicePropertySheet(nullptr, index); },
               {[&](OperatedWindow& sheet) {
                 sheet.SelectTab("Modems");
                 library.Windows().Forget();  // that a site has no modem yet
                 story(sheet);
                 sheet.Close();
               }});
}

void OnModemTypes(Library& library, const std::string& what, const Library::Story& story) {
  OnModemPage(library, what, [&](OperatedWindow& sheet) {
    sheet.Open("&Manage Modem Types", {[&](OperatedWindow& types) {
                 library.Windows().Forget();  // that there is no type yet
                 story(types);
                 types.Close();
               }});
  });
}

Library::Story FillModem(const GivenFields& fields, const std::string& what) {
  return [&fields, what](OperatedWindow& properties) {
    properties.FillAll(fields.ValuesOn(""), what);
    const FieldValues commands = fields.ValuesOn(kAdvanced);
    if (!commands.empty())
      properties.Open(kAdvanced, {[&](OperatedWindow& advanced) {
                        advanced.FillAll(commands, what);
                        advanced.Finish();
                      }});
    properties.Finish();
  };
}

}  // namespace alertctl
