// SPDX-License-Identifier: MIT
// The types of services by the faults of the devices at their other end: what the report says is what was so. All of it
// through the real programs.
#include <cstdio>
#include <future>
#include <memory>

#include "tests/lab/rehearsal.h"
#include "tests/trials/trial_site.h"

namespace {

using namespace alertserver;
using namespace rehearsal;

constexpr char kPhone[] = "providerPhone";

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
void CountArrivals(const LaboratoryProcess& laboratory, const Cell& cell, Result& result) {
  for (const char* what :
       {"mail message", "traps inform", "traps trap", "pager digits", "pager page", "printer printed"}) {
    const std::string text = what, device = text.substr(0, text.find(' '));
    const bool is_due = text == cell.arrived;
    const std::size_t count =
        laboratory.Arrivals(device, text.substr(device.size() + 1), is_due ? 1 : 0).size();
    (is_due ? result.arrived : result.others) += count;
  }
}

/// How each type is tested.
const std::map<std::string, std::vector<std::string>> kTests = {
    {"internet-mail", {"entry", "test", "Ann", "Internet Mail", "--message", "Tank 4 is overfull"}},
    {"snmp-trap", {"service", "test", "SNMP Trap", "--message", "Tank 4 is overfull"}},
    {"numeric-pager", {"entry", "test", "Ann", "Numeric Pager", "--message", "5554711"}},
    {"alphanumeric-pager", {"entry", "test", "Ann", "Alphanumeric Pager", "--message", "Tank 4 is overfull"}},
    {"generic-port", {"service", "test", "Generic Port Service", "--message", "Tank 4 is overfull"}}};

/// A site with all that is tested, of which each cell has a copy.
class TableTest : public trials::TrialTest {
 protected:
  void SetUp() override {
    TrialTest::SetUp();
    SetUpMail("secret");
    SetUpTraps("public");
    SetUpModems();
    SetAddress("Internet Mail", "somebody@example.org");
    SetAddress("Numeric Pager", kNumber);
    SetAddress("Alphanumeric Pager", "1234567");
  }
  void SetUpModems() {
    RunJson({"modem", "add", "Rack modem", "--type", "Generic 2400 bps modem", "--location", "Main office",
             "--port", "COM1"});
    RunJson({"modem", "add", "Printer", "--type", "Direct serial line", "--location", "Main office", "--port",
             "COM3"});
    RunJson({"provider",    "add",         "--company", "City Paging",   "--region-a",
             "Here",        "--region-b",  "There",     "--phone",       kProvider,
             "--baud-rate", "2400",        "--parity",  "even",          "--data-bits",
             "7",           "--stop-bits", "1",         "--text-length", "80"});
    RunJson({"service", "set", "Numeric Pager", "--modem", "Rack modem", "--delay", "5"});
    RunJson({"service", "set", "Alphanumeric Pager", "--provider", "City Paging", "--modem", "Rack modem"});
    RunJson({"service", "set", "Generic Port Service", "--modem", "Printer"});
  }

  Result Try(const Cell& cell, const std::string& data) {
    const auto laboratory = Start(cell.fault);
    if (laboratory->Places().is_null()) return {};
    std::filesystem::copy(data_, data, std::filesystem::copy_options::recursive);
    WriteSettings(
        {{"ports", {{"COM1", laboratory->PathOf("modem")}, {"COM3", laboratory->PathOf("printer")}}},
         {"smtpPort", laboratory->PortOf("mail")},
         {"mailMilliseconds", 15'000},
         {"trapPort", laboratory->PortOf("traps")}},
        data);
    Arguments test = kTests.at(cell.type);
    test.insert(test.end(), {"--data", data});
    Result result;
    const auto started = std::chrono::steady_clock::now();
    result.report = ReportFromJson(TrialTest::Report(test));
    result.taken = std::chrono::steady_clock::now() - started;
    CountArrivals(*laboratory, cell, result);
    return result;
  }
};

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

TEST_F(TableTest, EveryFaultHasItsVerdictAndItsField) {
  std::vector<std::future<Result>> results;
  for (const Cell& cell : kCells)
    results.push_back(std::async(std::launch::async, [this, &cell] {
      return Try(cell, root_ + "/cell-" + std::to_string(&cell - kCells));
    }));
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

}  // namespace
