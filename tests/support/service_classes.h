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
#include "tests/support/service_fixture.h"

namespace test_support {

/// Calls `visit` with the service as an object of its own class. Not for Program Launch, which has no record.
template <class Visit>
auto AsItsClass(alerting::CNtfyService& service, Visit&& visit) {
  using namespace alerting;  // NOLINT
  return VisitNth<CNtfyServiceMHS, CNtfyServiceSNMP, CNtfyServiceMCI, CNtfyServiceCIS, CNtfyServiceSMTP,
                  CNtfyServiceMAPI, CNtfyServiceVIM, CNtfyServiceWave, CNtfyServiceTTS, CNtfyServiceAlpha,
                  CNtfyServiceNum, CNtfyServiceGeneric>(
      PlaceOf(service.Type().code), [&]<class Service>() { return visit(dynamic_cast<Service&>(service)); });
}

}  // namespace test_support
