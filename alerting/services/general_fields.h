// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "alerting/frame/messages.h"
#include "alerting/frame/stores.h"

namespace alerting {

/// What the General pages read and write. Reading fills what the type's record has and leaves the rest
/// absent; writing takes over what is present.
struct GeneralFields {
  std::optional<std::string> loginId, password, verifyPassword;
  std::optional<std::string> mhsDirectory, phoneNumber, smtpServer;
  std::optional<std::string> text1, text2, text;  ///< texts of the sound services that no page shows
  std::optional<std::uint32_t> dialDelay;         ///< seconds
  std::optional<std::uint32_t> enabled;           ///< of the common record; absent when written counts as 1
};

/// Calls `visit` with each pair of a record's field and the member of GeneralFields that stands for it.
template <class Record, class Fields, class Visit>
void ForEachGeneralField(Record& record, Fields& fields, Visit&& visit) {
  if constexpr (requires { record.loginId; }) visit(record.loginId, fields.loginId);
  if constexpr (requires { record.password; }) visit(record.password, fields.password);
  if constexpr (requires { record.mhsDirectory; }) visit(record.mhsDirectory, fields.mhsDirectory);
  if constexpr (requires { record.phoneNumber; }) visit(record.phoneNumber, fields.phoneNumber);
  if constexpr (requires { record.smtpServer; }) visit(record.smtpServer, fields.smtpServer);
  if constexpr (requires { record.text1; }) visit(record.text1, fields.text1);
  if constexpr (requires { record.text2; }) visit(record.text2, fields.text2);
  if constexpr (requires { record.text; }) visit(record.text, fields.text);
  if constexpr (requires { record.dialDelay; }) visit(record.dialDelay, fields.dialDelay);
}

template <class Record>
GeneralFields ReadGeneralFields(const ALRTNTFYSERV& common, const Record& record) {
  GeneralFields fields;
  ForEachGeneralField(record, fields, [](const auto& field, auto& value) {
    if constexpr (requires { field.View(); })
      value = std::string(field.View());
    else
      value = field;
  });
  fields.verifyPassword = fields.password;
  fields.enabled = common.enabled;
  return fields;
}

/// False, after a message and with nothing taken over, when the two passwords differ.
template <class Record>
bool WriteGeneralFields(const GeneralFields& fields, ALRTNTFYSERV& common, Record& record) {
  if (fields.password && fields.verifyPassword && *fields.password != *fields.verifyPassword)
    return Fail(kIdsPasswordsDiffer);
  ForEachGeneralField(record, fields, [](auto& field, const auto& value) {
    if (!value) return;
    if constexpr (requires { field.Assign(*value); })
      field.Assign(*value);
    else
      field = *value;
  });
  common.enabled = fields.enabled.value_or(1);
  return true;
}

}  // namespace alerting
