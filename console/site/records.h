// SPDX-License-Identifier: MIT
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "companions/alertrecords/keyword_table.h"
#include "companions/dbconfig/service_types.h"
#include "console/site/failure.h"

// Builds records from JSON, by the descriptions that the configuration file is written with.

namespace site {

using Json = nlohmann::ordered_json;

/// A message in stored form: placeholders in the text, and the keyword behind each.
struct StoredMessage {
  std::string text;
  alertrecords::KeywordIds keywords{};
};

/// The stored form of a text with keyword names ("<User Name>", in either case). At most 20 are recognised.
StoredMessage StoreMessage(std::string_view shown);

/// Sets the described fields that `values` has. Throws a Failure (kInvalid) for a member that no field bears
/// and for a text that its field cannot hold.
void SetFields(char* record, dbconfig::Fields fields, const Json& values);

/// Sets the settings, default message and modem settings of a service-specific record from `service`, whose
/// members are "settings", "subject", "body", "priority" and "modem".
void SetSpecificFields(char* record, const dbconfig::ServiceType& type, const Json& service);

}  // namespace site
