// SPDX-License-Identifier: MIT
// The types of services by the faults of the devices at their other end: what the report says is what was so.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <future>
#include <memory>
#include <sstream>

#include "server/delivery.h"
#include "tests/lab/laboratory_process.h"

namespace {

using namespace alertserver;

const std::string kNumber = "5550200", kProvider = "5550100";
constexpr char kManager[] = "ALPHA", kPhone[] = "providerPhone";

struct Cell {
  const char* type;
  const char* fault;  ///< "" for none, several apart by spaces
  Verdict verdict;
  const char* field;
  const char* step;     ///< the first that fails; "" for none
  const char* arrived;  ///< what the laboratory must have received, once: "pager page"; "" for nothing
};

const Cell kCells[] = {
    {"internet-mail", "", Verdict::kDelivered, "", "", "mail message"},
    {"internet-mail", "mail=slow", Verdict::kDelivered, "", "", "mail message"},
    {"internet-mail", "mail=busy", Verdict::kRefused, "smtpServer", "Greeting", ""},
    {"internet-mail", "mail=greeting-missing", Verdict::kNotReached, "smtpServer", "Greeting", ""},
    {"internet-mail", "mail=silent", Verdict::kNotReached, "smtpServer", "Greeting", ""},
    {"internet-mail", "mail=tls-broken", Verdict::kNotReached, "smtpServer", "Encrypt (TLS)", ""},
    {"internet-mail", "mail=wrong-password", Verdict::kRefused, "password", "Log in", ""},
    {"internet-mail", "mail=recipient-refused", Verdict::kRefused, "address", "Recipient", ""},
    {"internet-mail", "mail=rejected", Verdict::kRefused, "message", "Accepted", ""},
    {"snmp-trap", "", Verdict::kDelivered, "", "", "traps inform"},
    {"snmp-trap", "traps=slow", Verdict::kDelivered, "", "", "traps inform"},
    // A trap follows the inform that nobody answers.
    {"snmp-trap", "traps=silent", Verdict::kSent, "", "", "traps trap"},
    {"snmp-trap", "traps=rejected", Verdict::kRefused, "snmpManagers.community", "Send to Lab",
     "traps inform"},
    {"numeric-pager", "", Verdict::kSent, "", "", "pager digits"},
    {"numeric-pager", "modem=slow", Verdict::kSent, "", "", "pager digits"},
    {"numeric-pager", "modem=busy", Verdict::kNotReached, "address", "Dial and key the message", ""},
    {"numeric-pager", "modem=no-carrier", Verdict::kNotReached, "address", "Dial and key the message", ""},
    {"numeric-pager", "modem=no-answer", Verdict::kNotReached, "address", "Dial and key the message", ""},
    {"numeric-pager", "modem=no-dial-tone", Verdict::kNotReached, "modems.comPort",
     "Dial and key the message", ""},
    {"numeric-pager", "modem=error", Verdict::kNotReached, "modems.initString", "Initialise the modem", ""},
    {"numeric-pager", "modem=silent", Verdict::kNotReached, "modems.comPort", "Initialise the modem", ""},
    {"alphanumeric-pager", "", Verdict::kDelivered, "", "", "pager page"},
    {"alphanumeric-pager", "modem=slow", Verdict::kDelivered, "", "", "pager page"},
    {"alphanumeric-pager", "modem=busy", Verdict::kNotReached, kPhone, "Dial", ""},
    {"alphanumeric-pager", "modem=no-carrier", Verdict::kNotReached, kPhone, "Dial", ""},
    {"alphanumeric-pager", "modem=no-answer", Verdict::kNotReached, kPhone, "Dial", ""},
    {"alphanumeric-pager", "modem=no-dial-tone", Verdict::kNotReached, "modems.comPort", "Dial", ""},
    {"alphanumeric-pager", "modem=error", Verdict::kNotReached, "modems.alphaInitString",
     "Initialise the modem", ""},
    {"alphanumeric-pager", "modem=silent", Verdict::kNotReached, "modems.comPort", "Initialise the modem",
     ""},
    {"alphanumeric-pager", "pager=slow", Verdict::kDelivered, "", "", "pager page"},
    {"alphanumeric-pager", "pager=greeting-missing", Verdict::kNotReached, kPhone, "Greeting", ""},
    {"alphanumeric-pager", "pager=wrong-password", Verdict::kRefused, kPhone, "Log in", ""},
    {"alphanumeric-pager", "pager=wrong-password:1", Verdict::kDelivered, "", "", "pager page"},
    {"alphanumeric-pager", "pager=rejected", Verdict::kRefused, "address", "Send the message", ""},
    {"alphanumeric-pager", "pager=checksum", Verdict::kRefused, "baudRate", "Send the message", ""},
    {"alphanumeric-pager", "pager=checksum:3", Verdict::kDelivered, "", "", "pager page"},
    {"alphanumeric-pager", "pager=silent", Verdict::kNotReached, kPhone, "Send the message", ""},
    {"generic-port", "", Verdict::kSent, "", "", "printer printed"},
    {"generic-port", "printer=slow", Verdict::kSent, "", "", "printer printed"},
    // Nothing comes back from such a port: that the printer is switched off cannot be known, and "delivered" is not said.
    {"generic-port", "printer=silent", Verdict::kSent, "", "", ""},
};

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

/// The port that a type uses: COM1 is the modem, COM2 the backup modem, COM3 the printer.
std::uint32_t PortFor(std::string_view type) { return type == "generic-port" ? 3 : 1; }

std::string AddressFor(std::string_view type) {
  return type == "internet-mail" ? "somebody@example.org" : type == "numeric-pager" ? kNumber : "1234567";
}

/// A site with one service, which its one manager delivers as the backup too.
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

LaboratoryProcess* Start(const std::string& faults) {
  std::vector<std::string> arguments = {"--numeric", kNumber, "--alphanumeric", kProvider, "--slow", "200"};
  std::istringstream words(faults);
  for (std::string fault; words >> fault;) arguments.insert(arguments.end(), {"--fault", fault});
  return new LaboratoryProcess(arguments);
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

/// True where the server was built without the library that sends such messages.
bool IsLeftOut(const Report& report) {
  return report.explanation.find("it was built without") != std::string::npos;
}

struct Result {
  Report report;
  std::chrono::steady_clock::duration taken{};
  std::size_t arrived = 0, others = 0;
};

std::string FailedStep(const Report& report) {
  for (const ReportStep& step : report.steps)
    if (step.result == "failed") return step.name;
  return "";
}

/// What must have arrived is waited for, and counted among all that tells of a message.
Result Try(const Cell& cell) {
  const std::unique_ptr<LaboratoryProcess> laboratory(Start(cell.fault));
  if (laboratory->Places().is_null()) return {};
  Result result;
  const auto started = std::chrono::steady_clock::now();
  result.report = Send(*laboratory, SiteWith(cell.type));
  result.taken = std::chrono::steady_clock::now() - started;
  for (const char* what :
       {"mail message", "traps inform", "traps trap", "pager digits", "pager page", "printer printed"}) {
    const std::string text = what, device = text.substr(0, text.find(' '));
    const bool is_due = text == cell.arrived;
    const std::size_t count =
        laboratory->Arrivals(device, text.substr(device.size() + 1), is_due ? 1 : 0).size();
    (is_due ? result.arrived : result.others) += count;
  }
  return result;
}

void Check(const Cell& cell, const Result& result) {
  SCOPED_TRACE(std::string(cell.type) + " " + cell.fault + "\n" + result.report.transcript);
  EXPECT_EQ(WordOf(result.report.verdict), WordOf(cell.verdict)) << result.report.explanation;
  EXPECT_EQ(result.report.field, cell.field);
  EXPECT_EQ(FailedStep(result.report), cell.step);
  EXPECT_EQ(result.arrived, *cell.arrived == 0 ? 0U : 1U);
  // The inform that was not answered is the one thing that arrives besides.
  EXPECT_EQ(result.others, std::string_view(cell.fault) == "traps=silent" ? 1U : 0U);
  EXPECT_EQ(result.report.explanation.empty(), *cell.step == 0);
  EXPECT_LT(result.taken, std::chrono::seconds(50)) << "a console waits for a minute";
  EXPECT_EQ(result.report.transcript.find("secret"), std::string::npos);
}

TEST(TableTest, EveryFaultHasItsVerdictAndItsField) {
  std::vector<std::future<Result>> results;
  for (const Cell& cell : kCells) results.push_back(std::async(std::launch::async, Try, std::cref(cell)));
  constexpr char kRow[] = "%-19s %-23s %-12s %-23s %s\n";
  std::printf(kRow, "type", "fault", "verdict", "field", "failed step");
  for (std::size_t i = 0; i < results.size(); ++i) {
    const Result result = results[i].get();
    std::printf(
        kRow, kCells[i].type, *kCells[i].fault == 0 ? "-" : kCells[i].fault,
        std::string(WordOf(result.report.verdict)).c_str(), result.report.field.c_str(),
        IsLeftOut(result.report) ? result.report.explanation.c_str() : FailedStep(result.report).c_str());
    if (!IsLeftOut(result.report)) Check(kCells[i], result);
  }
}

/// The names of a report's steps, those over the backup modem among them.
bool HasStep(const Report& report, const std::string& name, const std::string& result) {
  return std::any_of(report.steps.begin(), report.steps.end(),
                     [&](const ReportStep& step) { return step.name == name && step.result == result; });
}

Configuration WithBackup(const char* type) {
  Configuration site = SiteWith(type);
  Service& service = site.services.front();
  service.backupModem = LinkTo(type, 2);
  site.deliveries.push_back({kManager, service.id, true});
  return site;
}

TEST(BackupModemTest, TakesOverWhatTheFirstModemDoesNotReach) {
  const std::unique_ptr<LaboratoryProcess> laboratory(Start("modem=busy"));
  ASSERT_FALSE(laboratory->Places().is_null());
  const Report report = Send(*laboratory, WithBackup("alphanumeric-pager"));
  EXPECT_EQ(report.verdict, Verdict::kDelivered) << report.explanation;
  EXPECT_TRUE(HasStep(report, "Dial", "failed"));
  EXPECT_TRUE(HasStep(report, "Backup modem: Send the message", "done"));
  EXPECT_EQ(laboratory->Arrivals("pager", "page", 1).size(), 1U);
}

TEST(BackupModemTest, IsNotTriedWhereTheReceiverSaidNo) {
  const std::unique_ptr<LaboratoryProcess> laboratory(Start("pager=rejected:1"));
  ASSERT_FALSE(laboratory->Places().is_null());
  const Report report = Send(*laboratory, WithBackup("alphanumeric-pager"));
  EXPECT_EQ(report.verdict, Verdict::kRefused);
  EXPECT_EQ(report.field, "address");
  EXPECT_TRUE(laboratory->Arrivals("pager", "page", 0).empty());
}

TEST(BackupModemTest, WhatIsMissingIsNamedWhereItIsMissing) {
  const std::unique_ptr<LaboratoryProcess> laboratory(Start("modem=silent"));
  ASSERT_FALSE(laboratory->Places().is_null());
  Configuration site = WithBackup("numeric-pager");
  site.services.front().backupModem->is_known = false;
  const Report report = Send(*laboratory, site);
  EXPECT_EQ(report.verdict, Verdict::kNotPossible);
  EXPECT_EQ(report.field, "backupModem");
  EXPECT_TRUE(HasStep(report, "Backup modem: Open the port", "failed"));
}

TEST(TrapVersionTest, AVersion1TrapBearsTheMessageByteForByte) {
  const std::unique_ptr<LaboratoryProcess> laboratory(Start(""));
  ASSERT_FALSE(laboratory->Places().is_null());
  Settings settings = SettingsFor(*laboratory);
  settings.trap_version_1 = true;
  const Report report = Send(SiteWith("snmp-trap"), settings);
  if (IsLeftOut(report)) GTEST_SKIP() << report.explanation;
  EXPECT_EQ(report.verdict, Verdict::kSent);
  const auto traps = laboratory->Arrivals("traps", "trap", 1);
  ASSERT_EQ(traps.size(), 1U);
  EXPECT_EQ(traps[0]["version"], "1");
  EXPECT_EQ(traps[0]["enterprise"], settings.trap_enterprise);
  EXPECT_EQ(traps[0]["variables"][0]["value"], "Tank 4 is overfull");
}

TEST(DirectPortTest, AnAlphanumericTerminalAtThePortIsNotDialed) {
  const std::unique_ptr<LaboratoryProcess> laboratory(Start(""));
  ASSERT_FALSE(laboratory->Places().is_null());
  Configuration site = SiteWith("alphanumeric-pager");
  site.services.front().modem->capabilities = kDirectPort;
  site.services.front().modem->comPort = 4;
  const Report report = Send(*laboratory, site);
  EXPECT_EQ(report.verdict, Verdict::kDelivered) << report.explanation;
  EXPECT_TRUE(HasStep(report, "Dial", "not needed"));
  const auto pages = laboratory->Arrivals("pager", "page", 1);
  ASSERT_EQ(pages.size(), 1U);
  EXPECT_EQ(pages[0]["pager"], "1234567");
  EXPECT_EQ(pages[0]["text"], "Tank 4 is overfull");
}

}  // namespace
