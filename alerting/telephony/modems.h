// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "alerting/frame/stores.h"

/// The modems that services dial out with, and the modem types that they are made from. Each operation makes sure that
/// the stores are open; unless told otherwise it shows its message where it fails and answers false.
namespace alerting {

/// The store of modems or of modem types: an operation asks for it once the stores are open.
using ModemStoreOf = CAlertSERV_MODEMDB& (*)();

/// Finds the record of that identity, or the first of all for the null GUID. Leaves `record` as it was, and shows no
/// message, where there is none.
bool FindModemOrFirst(ModemStoreOf store, const GUID& id, ALRTSERV_MODEM& record);

/// Replaces the stored record of the same identity.
bool UpdateModem(ModemStoreOf store, const ALRTSERV_MODEM& record);

/// Adds a modem of that name with everything else as its type has it. On failure `id` stays as it was.
bool CreateModemFromType(const GUID& type, std::string_view name, GUID& id);
/// Adds a modem type of that name with everything else as the type `basis` has it. On failure `id` stays as it was.
bool CreateModemType(std::string_view name, const GUID& basis, GUID& id);

/// Deletes at once. Services may still name a deleted modem, and modems a deleted type.
bool DeleteModem(const GUID& id);
bool DeleteModemType(const GUID& id);

/// A name that no modem has: the type's own, or the first free one of "Type (2)", "Type (3)" and so on. A long name of
/// a type is cut so that the number has room.
std::string ProposeModemName(std::string_view type_name);

}  // namespace alerting
