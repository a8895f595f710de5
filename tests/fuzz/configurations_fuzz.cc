// SPDX-License-Identifier: MIT
// The configuration file and the settings may have been edited, cut short or replaced.
#include <cstdlib>

#include "server/configuration.h"
#include "server/settings.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  std::string problem;
  const auto configuration = alertserver::ParseConfiguration(text, problem);
  if (configuration.has_value() != problem.empty()) std::abort();
  std::vector<std::string> problems;
  const alertserver::Settings settings = alertserver::ParseSettings(text, problems);
  for (const std::string& device : settings.com_ports)
    if (!device.empty() && device.front() != '/') std::abort();
  if (settings.smtp_port == 0 || settings.trap_port == 0 || settings.mail_limit.count() > 55'000)
    std::abort();
  return 0;
}
