// SPDX-License-Identifier: MIT
#include "tests/lab/rehearsal.h"

#include <sstream>

namespace rehearsal {

using namespace alertserver;

namespace {

std::uint32_t PortFor(std::string_view type) { return type == "generic-port" ? 3 : 1; }

std::string AddressFor(std::string_view type) {
  return type == "internet-mail" ? "somebody@example.org" : type == "numeric-pager" ? kNumber : "1234567";
}

}  // namespace

ModemLink LinkTo(std::string_view type, std::uint32_t com_port) {
  ModemLink modem;
  modem.modemName = "Modem";
  modem.baudRate = 2400;
  modem.dataBits = type == "alphanumeric-pager" ? 7 : 8;
  modem.parityCode = type == "alphanumeric-pager" ? 2 : 0;
  modem.capabilities = type == "generic-port" ? kDirectPort : 7;
  modem.initString = modem.alphaInitString = "AT&F&C1&D2";
  modem.dialPrefix = "ATDT";
  modem.hangupString = "ATH0";
  modem.escapeString = "+++";
  modem.is_known = modem.enabled = true;
  modem.comPort = com_port;
  return modem;
}

Configuration SiteWith(std::string_view type) {
  Service service;
  service.type = type;
  service.enabled = service.has_settings = true;
  service.settings = {{"smtpServer", "127.0.0.1"},  {"loginId", "me"},     {"password", "secret"},
                      {"providerPhone", kProvider}, {"maxTextLength", 80}, {"dialDelay", 5}};
  service.modem = LinkTo(type, PortFor(type));
  service.users = {{platform::GUID{}, "Somebody", AddressFor(type), true}};
  return {{service}, {{kManager, service.id, false}}, {{"Lab", "127.0.0.1", "public", true}}};
}

Settings SettingsFor(const LaboratoryProcess& laboratory) {
  Settings settings;
  settings.com_ports = {laboratory.PathOf("modem"), laboratory.PathOf("backup-modem"),
                        laboratory.PathOf("printer"), laboratory.PathOf("pager")};
  settings.smtp_port = static_cast<std::uint16_t>(laboratory.PortOf("mail"));
  settings.trap_port = static_cast<std::uint16_t>(laboratory.PortOf("traps"));
  settings.mail_limit = std::chrono::seconds(15);
  return settings;
}

std::unique_ptr<LaboratoryProcess> Start(const std::string& faults) {
  std::vector<std::string> arguments = {"--numeric", kNumber, "--alphanumeric", kProvider, "--slow", "200"};
  std::istringstream words(faults);
  for (std::string fault; words >> fault;) arguments.insert(arguments.end(), {"--fault", fault});
  return std::make_unique<LaboratoryProcess>(arguments);
}

Report Send(const Configuration& configuration, const Settings& settings) {
  const std::string& type = configuration.services.front().type;
  Job job;
  job.time = std::chrono::system_clock::now();
  job.response.user_name = "Somebody";
  job.response.message.text = type == "numeric-pager" ? "555-4711" : "Tank 4 is overfull";
  job.response.service_type = type == "numeric-pager" ? 12 : type == "alphanumeric-pager" ? 11 : 5;
  return Deliver(kManager, job, configuration, settings).report;
}

Report Send(const LaboratoryProcess& laboratory, const Configuration& configuration) {
  return Send(configuration, SettingsFor(laboratory));
}

bool IsLeftOut(const Report& report) {
  return report.explanation.find("it was built without") != std::string::npos;
}

}  // namespace rehearsal
