// SPDX-License-Identifier: MIT
// Every transport over serial ports with every fault of the devices at their ends: what the report says is what was so.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <future>

#include "server/runner.h"
#include "server/serial/serial_transports.h"
#include "tests/lab/laboratory_process.h"

namespace {

using namespace alertserver;

const std::string kNumber = "5550200", kProvider = "5550100";

struct Cell {
  const char* type;
  const char* fault;  ///< "" for none
  Verdict verdict;
  const char* field;
  const char* step;     ///< the one that fails; "" for none
  const char* arrived;  ///< "device what" that the laboratory must have received, once; "" for nothing
};

constexpr char kPhone[] = "providerPhone";

const Cell kCells[] = {
    {"numeric-pager", "", Verdict::kSent, "", "", "pager digits"},
    {"numeric-pager", "modem=slow", Verdict::kSent, "", "", "pager digits"},
    {"numeric-pager", "modem=busy", Verdict::kNotReached, "address", "Dial and key the message", ""},
    {"numeric-pager", "modem=no-carrier", Verdict::kNotReached, "address", "Dial and key the message", ""},
    {"numeric-pager", "modem=no-answer", Verdict::kNotReached, "address", "Dial and key the message", ""},
    {"numeric-pager", "modem=no-dial-tone", Verdict::kNotReached, "modem", "Dial and key the message", ""},
    {"numeric-pager", "modem=error", Verdict::kNotReached, "initString", "Initialise the modem", ""},
    {"numeric-pager", "modem=silent", Verdict::kNotReached, "comPort", "Initialise the modem", ""},
    {"alphanumeric-pager", "", Verdict::kDelivered, "", "", "pager page"},
    {"alphanumeric-pager", "modem=slow", Verdict::kDelivered, "", "", "pager page"},
    {"alphanumeric-pager", "modem=busy", Verdict::kNotReached, kPhone, "Dial", ""},
    {"alphanumeric-pager", "modem=no-carrier", Verdict::kNotReached, kPhone, "Dial", ""},
    {"alphanumeric-pager", "modem=no-answer", Verdict::kNotReached, kPhone, "Dial", ""},
    {"alphanumeric-pager", "modem=no-dial-tone", Verdict::kNotReached, "modem", "Dial", ""},
    {"alphanumeric-pager", "modem=error", Verdict::kNotReached, "alphaInitString", "Initialise the modem",
     ""},
    {"alphanumeric-pager", "modem=silent", Verdict::kNotReached, "comPort", "Initialise the modem", ""},
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

ModemLink LinkTo(std::string_view type) {
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
  modem.comPort = type == "generic-port" ? 2 : 1;
  return modem;
}

Service ServiceOf(std::string_view type) {
  Service service;
  service.type = type;
  service.enabled = service.is_complete = true;
  service.settings = {{"providerPhone", kProvider}, {"maxTextLength", 80}, {"dialDelay", 5}};
  service.modem = LinkTo(type);
  service.users = {{platform::GUID{}, "Somebody", type == "numeric-pager" ? kNumber : "1234567", true}};
  return service;
}

TransportPtr Make(std::string_view type) {
  if (type == "numeric-pager") return MakeNumericPager();
  return type == "alphanumeric-pager" ? MakeAlphanumericPager() : MakeGenericPort();
}

struct Result {
  RunResult run;
  std::string failed_step, transcript;
  std::size_t arrived = 0, pages = 0;
};

std::string FailedStep(const RunResult& run) {
  for (const ReportStep& step : run.steps)
    if (step.result == "failed") return step.name;
  return "";
}

Result Send(const Cell& cell) {
  std::vector<std::string> arguments = {"--numeric", kNumber, "--alphanumeric", kProvider, "--slow", "200"};
  if (*cell.fault != 0) arguments.insert(arguments.end(), {"--fault", cell.fault});
  const LaboratoryProcess laboratory(arguments);
  if (laboratory.Places().is_null()) return {};
  Job job;
  job.message = std::string_view(cell.type) == "numeric-pager" ? "555-4711" : "Tank 4 is overfull";
  Settings settings;
  settings.com_ports = {laboratory.PathOf("modem"), laboratory.PathOf("printer"), "", ""};
  const Configuration configuration;
  const Service service = ServiceOf(cell.type);
  Context context{job, service, configuration, settings, &*service.modem};
  const TransportPtr transport = Make(cell.type);
  Result result{RunSteps(transport->Steps(context), context), {}, context.transcript.Text()};
  result.failed_step = FailedStep(result.run);
  const std::string arrived = cell.arrived;
  const std::size_t space = arrived.find(' ');
  if (space != arrived.npos)
    result.arrived = laboratory.Arrivals(arrived.substr(0, space), arrived.substr(space + 1), 1).size();
  result.pages = laboratory.Arrivals("pager", "page", 0).size() +
                 laboratory.Arrivals("pager", "digits", 0).size() +
                 laboratory.Arrivals("printer", "printed", 0).size();
  return result;
}

TEST(SerialTableTest, EveryFaultHasItsVerdictAndItsField) {
  std::vector<std::future<Result>> results;
  for (const Cell& cell : kCells) results.push_back(std::async(std::launch::async, Send, std::cref(cell)));
  std::printf("%-19s %-23s %-12s %-16s %s\n", "type", "fault", "verdict", "field", "failed step");
  for (std::size_t i = 0; i < results.size(); ++i) {
    const Cell& cell = kCells[i];
    const Result result = results[i].get();
    SCOPED_TRACE(std::string(cell.type) + " " + cell.fault + "\n" + result.transcript);
    std::printf("%-19s %-23s %-12s %-16s %s\n", cell.type, *cell.fault == 0 ? "-" : cell.fault,
                std::string(WordOf(result.run.verdict)).c_str(), result.run.field.c_str(),
                result.failed_step.c_str());
    EXPECT_EQ(result.run.verdict, cell.verdict);
    EXPECT_EQ(result.run.field, cell.field);
    EXPECT_EQ(result.failed_step, cell.step);
    EXPECT_EQ(result.arrived, *cell.arrived == 0 ? 0U : 1U);
    EXPECT_EQ(result.pages, result.arrived) << "something arrived that was not to";
    EXPECT_EQ(result.run.explanation.empty(), *cell.step == 0);
  }
}

}  // namespace
