// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/services/general_fields.h"
#include "alerting/services/ntfy_service_prog.h"

namespace alerting {

/// How a General page reaches the general fields of its service. Each class of service has its own, since their records
/// differ; the pages name the class once and share everything else.
struct GeneralAccess {
  GeneralFields (*read)(CNtfyService& service);
  bool (*write)(CNtfyService& service, const GeneralFields& fields);
};

template <class Service>
inline constexpr GeneralAccess kGeneralOf = {
    [](CNtfyService& service) { return static_cast<Service&>(service).GetGeneralFields(); },
    [](CNtfyService& service, const GeneralFields& fields) {
      return static_cast<Service&>(service).SetGeneralFields(fields);
    }};

/// A program launch has no record of its own, only the common one's flag.
template <>
inline constexpr GeneralAccess kGeneralOf<CNtfyServiceProg> = {
    [](CNtfyService& service) {
      GeneralFields fields;
      fields.enabled = static_cast<CNtfyServiceProg&>(service).GetEnabled();
      return fields;
    },
    [](CNtfyService& service, const GeneralFields& fields) {
      static_cast<CNtfyServiceProg&>(service).SetEnabled(fields.enabled.value_or(1));
      return true;
    }};

/// Records may keep an empty text as a single blank.
inline std::string ShownText(const std::string& stored) { return stored == " " ? std::string() : stored; }

}  // namespace alerting
