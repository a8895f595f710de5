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

/// What `visit` answers to the store of the type's user records and the current one of them; "" for a type without.
template <class Visit>
std::string WithUserRecord(alerting::CNtfyService& service, Visit visit) {
  return AsItsClass(service, [&](auto& typed) -> std::string {
    if constexpr (requires { typed.CurrentUser(); })
      return visit(alerting::UserStore<typename std::remove_reference_t<decltype(typed)>::UserStoreClass>(),
                   typed.CurrentUser());
    else
      return {};
  });
}

}  // namespace test_support
