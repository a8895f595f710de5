// SPDX-License-Identifier: MIT
#include "lab/printer.h"

#include <utility>

#include "platform/base/base64.h"

namespace lab {

void Printer::Take(std::string_view bytes, Millis now) {
  page_ += bytes;
  last_ = now;
  if (page_.size() >= kLargestPage) Show();
}

void Printer::Pass(Millis now) {
  if (now - last_ >= pause_) Show();
}

void Printer::Show() {
  if (page_.empty()) return;
  const std::string raw = platform::EncodeBase64(page_);
  sink_({faults_.Device(), "printed", {{"text", std::exchange(page_, "")}, {"raw", raw}}});
}

}  // namespace lab
