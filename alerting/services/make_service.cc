// SPDX-License-Identifier: MIT
// Where type codes become classes.
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
#include "alerting/services/service_list.h"

namespace alerting {

std::unique_ptr<CNtfyService> MakeService(std::uint32_t code, const GUID& id) {
  switch (code) {
    case kTypeMhs:
      return std::make_unique<CNtfyServiceMHS>(id);
    case kTypeSnmp:
      return std::make_unique<CNtfyServiceSNMP>(id);
    case kTypeMci:
      return std::make_unique<CNtfyServiceMCI>(id);
    case kTypeCompuServe:
      return std::make_unique<CNtfyServiceCIS>(id);
    case kTypeSmtp:
      return std::make_unique<CNtfyServiceSMTP>(id);
    case kTypeMapi:
      return std::make_unique<CNtfyServiceMAPI>(id);
    case kTypeVim:
      return std::make_unique<CNtfyServiceVIM>(id);
    case kTypeWave:
      return std::make_unique<CNtfyServiceWave>(id);
    case kTypeTts:
      return std::make_unique<CNtfyServiceTTS>(id);
    case kTypeAlpha:
      return std::make_unique<CNtfyServiceAlpha>(id);
    case kTypeNumeric:
      return std::make_unique<CNtfyServiceNum>(id);
    case kTypeGeneric:
      return std::make_unique<CNtfyServiceGeneric>(id);
    case kTypeProgram:
      return std::make_unique<CNtfyServiceProg>(id);
    default:
      return nullptr;
  }
}

}  // namespace alerting
