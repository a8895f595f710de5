// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <type_traits>

#include "alerting/frame/messages.h"
#include "alerting/services/record_fields.h"

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
#define ALERTING_VISIT(field, member) \
  if constexpr (kHas<std::remove_const_t<Record>, field>) visit(record.member, fields.member);
  ALERTING_GENERAL_MEMBERS(ALERTING_VISIT)
#undef ALERTING_VISIT
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
