// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "console/alertctl/fields.h"
#include "console/alertctl/library.h"

// The windows in which modems and their types are kept. They are reached from the sheet of any service that dials out.

namespace alertctl {

/// The fields of a modem and of a modem type; a modem has those of `kModemOnly` besides.
FieldOptions ModemFields();
FieldOptions ModemOnlyFields();

/// Works on the page "Modems" of a service that dials out, and closes its sheet without storing anything of the service.
void OnModemPage(Library& library, const std::string& what, const Library::Story& story);
/// Works in the dialog "Manage Modem Types", which it closes.
void OnModemTypes(Library& library, const std::string& what, const Library::Story& story);

/// Fills in a dialog of a modem's or a type's properties, its command strings included, and presses OK.
Library::Story FillModem(const GivenFields& fields, const std::string& what);

}  // namespace alertctl
