// SPDX-License-Identifier: MIT
#include "alerting/responses/message_text.h"

#include "alerting/responses/wrap_message.h"

namespace alerting {

std::string WrapForService(const CNtfyService& service, const std::string& shown) {
  const int width = service.GetMessageLineWidth();
  if (width == 0) return shown;
  return WrapMessage(shown, static_cast<std::size_t>(width),
                     static_cast<std::size_t>(service.GetMaxMessageLength()));
}

}  // namespace alerting
