// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "companions/alertstore/status.h"
#include "console/alertctl/verbs.h"
#include "platform/base/guid.h"

// What the stores hold, as the verbs see it.

namespace alertctl {

/// All stores at one moment, in the form of the configuration file (docs/configuration-file.md) with every
/// secret masked, so that no verb can print one. Throws a Failure with kStoreFailure.
Json LoadSite();
/// Of that the services without their settings and users, and the alert managers: enough for a verb that only looks services
/// up, and does not grow with what they hold.
Json LoadDelivery();
/// The same, unmasked, with all that a console can change besides: modem types, users, computers, dialing rules and the
/// choice of the backup manager. For comparing; none of it may be printed as it is.
Json LoadWholeSite();
/// The computers that the site knows. Throws a Failure with kStoreFailure.
Json LoadComputers();
/// The modem types in the form of the document's modems. Throws a Failure with kStoreFailure.
Json LoadModemTypes();
/// Masks the passwords in a document, and the community names of the SNMP managers, which are passwords too.
void MaskSecrets(Json& document);

/// The one object of `objects`, which have "id" and "name", of that name (either case) or identity; `kind` and `list_verb`
/// are for the messages. Throws kNothingMatched, or kInvalid when several match.
const Json& FindOne(const Json& objects, const std::string& name, const std::string& kind,
                    const std::string& list_verb);
/// The service of that name (either case) or identity. Throws kNothingMatched, or kInvalid when several
/// match.
const Json& FindService(const Json& site, const std::string& name);
/// The alert manager of that name or identity; for "" this machine, or the only one there is. Throws as
/// FindService does.
const Json& FindManager(const Json& site, const std::string& name, const std::string& option = "--manager");
/// True when the manager delivers through the service, other than as its backup.
bool IsEnabledOn(const Json& manager, const Json& service);
/// True when the record with the settings of that service is missing. Throws a Failure with kStoreFailure.
bool LacksOwnRecord(const platform::GUID& service);
/// The response with that identity. Throws kInvalid for what is none, kNothingMatched where none has it.
const Json& FindResponse(const Json& site, const std::string& name);
/// Which managers deliver which service, for who asks about many services.
class Deliveries {
 public:
  explicit Deliveries(const Json& site);
  /// As ManagersOf.
  std::vector<std::string> Of(const Json& service) const;

 private:
  std::map<std::string, std::vector<std::string>> managers_;
};
/// The names of the managers on which the service is enabled, in the order of the managers.
std::vector<std::string> ManagersOf(const Json& site, const Json& service);

struct FoundUser {
  platform::GUID id;
  std::string name;
};
/// The console user of that name or identity.
FoundUser FindUser(const std::string& name);

platform::GUID IdOf(const Json& object);
/// What people call the service's type.
std::string TypeName(const Json& service);
std::uint32_t RecordTypeOf(const Json& service);

}  // namespace alertctl
