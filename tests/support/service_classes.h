// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/services/ntfy_service_alpha.h"
#include "alerting/services/ntfy_service_cis.h"
#include "alerting/services/ntfy_service_generic.h"
#include "alerting/services/ntfy_service_mapi.h"
#include "alerting/services/ntfy_service_mci.h"
#include "alerting/services/ntfy_service_mhs.h"
#include "alerting/services/ntfy_service_num.h"
#include "alerting/services/ntfy_service_prog.h"
#include "alerting/services/ntfy_service_smtp.h"
#include "alerting/services/ntfy_service_snmp.h"
#include "alerting/services/ntfy_service_tts.h"
#include "alerting/services/ntfy_service_vim.h"
#include "alerting/services/ntfy_service_wave.h"

namespace test_support {

/// Calls `visit` with the service as an object of its own class. Not for Program Launch, which has no record.
template <class Visit>
decltype(auto) AsItsClass(alerting::CNtfyService& service, Visit&& visit) {
  using namespace alerting;  // NOLINT
  switch (service.Type().code) {
    case kTypeMhs:
      return visit(dynamic_cast<CNtfyServiceMHS&>(service));
    case kTypeSnmp:
      return visit(dynamic_cast<CNtfyServiceSNMP&>(service));
    case kTypeMci:
      return visit(dynamic_cast<CNtfyServiceMCI&>(service));
    case kTypeCompuServe:
      return visit(dynamic_cast<CNtfyServiceCIS&>(service));
    case kTypeSmtp:
      return visit(dynamic_cast<CNtfyServiceSMTP&>(service));
    case kTypeMapi:
      return visit(dynamic_cast<CNtfyServiceMAPI&>(service));
    case kTypeVim:
      return visit(dynamic_cast<CNtfyServiceVIM&>(service));
    case kTypeWave:
      return visit(dynamic_cast<CNtfyServiceWave&>(service));
    case kTypeTts:
      return visit(dynamic_cast<CNtfyServiceTTS&>(service));
    case kTypeAlpha:
      return visit(dynamic_cast<CNtfyServiceAlpha&>(service));
    case kTypeNumeric:
      return visit(dynamic_cast<CNtfyServiceNum&>(service));
    default:
      return visit(dynamic_cast<CNtfyServiceGeneric&>(service));
  }
}

}  // namespace test_support
