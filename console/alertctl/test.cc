// SPDX-License-Identifier: MIT
#include <chrono>
#include <memory>
#include <thread>

#include "companions/agentui/agentui.h"
#include "companions/agentui/report.h"
#include "companions/agentui/results_dialog.h"
#include "companions/agentui/spool.h"
#include "console/alertctl/fields.h"
#include "console/alertctl/library.h"
#include "console/alertctl/site.h"
#include "console/alertctl/text.h"
#include "platform/base/host_name.h"
#include "platform/base/json_object.h"
#include "platform/base/paths.h"

namespace alertctl {

void AddServiceTestVerb(Verbs& verbs, CLI::App& service);
void AddEntryTestVerb(Verbs& verbs, CLI::App& entry);

namespace {

using agentui::Report;
using console_operator::OperatedWindow;
using Verdict = Report::Verdict;

constexpr char kServiceExamples[] =
    "  alertctl service test \"Program Launch Service\" --file /usr/bin/true --yes";
constexpr char kEntryExamples[] = "  alertctl entry test Ann \"Internet Mail\" --subject \"only a test\"";

/// Longer than the library waits for any server's report, which it then writes itself.
constexpr std::chrono::seconds kLongestWait(180);
constexpr std::chrono::milliseconds kLook(100);

const FieldOption kFields[] = {
    {"--subject", FieldKind::kText, "Subject of a mail", {"Message &Subject:"}},
    {"--message", FieldKind::kLines, "Message", {"Message &Body:", "&Message:", "&Message Body:"}},
    {"--priority", FieldKind::kChoice, "Priority of a mail", {"&Priority:"}},
    {"--file", FieldKind::kText, "Wave file or program", {"&Wave File:", "&Program:"}},
    {"--command-line", FieldKind::kLines, "Command line of a program", {"&Command Line:"}},
};

struct Arguments {
  std::string user, service, computer;
  bool yes = false;
  GivenFields fields;
};

/// Sounds, speech and programs are tested on a computer of the site: the one that was named, else this one.
void ChooseComputer(OperatedWindow& dialog, const std::string& computer) {
  for (const char* label : {"&Target Workstation:", "&Target Machine:"})
    if (dialog.Shows(label))
      dialog.OpenBeside(label, "...", {[&](OperatedWindow& choice) {
                          choice.Choose("&Computers of this site:",
                                        computer.empty() ? platform::HostName() : computer);
                          choice.Finish();
                        }});
}

Library::Story FillTest(const Arguments& arguments) {
  return [&arguments](OperatedWindow& dialog) {
    ChooseComputer(dialog, arguments.computer);
    dialog.FillAll(arguments.fields.Values(), "this test");
    dialog.Finish("OK", "the test needs more: name it with an option");
  };
}

/// From the page of the service, whose button waits until the service is on.
void TestDevice(Library& library, int index, const std::string& what, const Arguments& arguments) {
  library.Work(what, [&] { library.Calls().DomainServicePropertySheet(nullptr, index); },
               {[&](OperatedWindow& sheet) {
                 sheet.Open("&Test", {FillTest(arguments)});
                 sheet.Close();
               }});
}

void TestUser(Library& library, int index, const platform::GUID& user, const std::string& what,
              const Arguments& arguments) {
  library.Work(what, [&] { library.Calls().UserServiceTestDialog(nullptr, index, user); },
               {FillTest(arguments)});
}

/// The user who is meant: the one named, else the only one who has an entry.
platform::GUID UserOf(const Json& service, const std::string& name) {
  const Json users = service.value("users", Json::array());
  if (name.empty() && users.size() != 1)
    throw Failure(kInvalid, "say with --user who is to be tested: a user who has an entry on the service");
  const std::string id = name.empty() ? users[0]["userId"].get<std::string>() : FindUser(name).id.ToString();
  for (const Json& user : users)
    if (user["userId"] == id) return platform::GUID::Parse(id).value();
  throw Failure(kInvalid, "\"" + name + "\" has no entry on the service: see \"alertctl entry list\"");
}

ExitCode CodeOf(Verdict verdict) {
  switch (verdict) {
    case Verdict::kDelivered:
    case Verdict::kSent:
      return kDone;
    case Verdict::kRefused:
      return kTestRefused;
    case Verdict::kNotReached:
      return kTestNotReached;
    case Verdict::kNotPossible:
      return kTestNotPossible;
    default:
      return kTestFailed;
  }
}

/// The bytes of the report of the test that was just handed over.
std::string WaitForReport(std::uint32_t test) {
  const std::string path = agentui::ReportPath(agentui::SpoolDirectory(), test);
  const auto end = std::chrono::steady_clock::now() + kLongestWait;
  std::string bytes;
  while (!platform::ReadWholeFile(path, bytes)) {
    if (std::chrono::steady_clock::now() > end)
      throw Failure(kStoreFailure, "the test was handed over, but there is no report " + path);
    std::this_thread::sleep_for(kLook);
  }
  return bytes;
}

Result Reported(std::uint32_t test) {
  const Json report = platform::ParseJsonObject<Json>(WaitForReport(test));
  const Report read = agentui::ReadReport(agentui::ReportPath(agentui::SpoolDirectory(), test), test);
  return {report.is_object() ? report : Json{{"verdict", "unreadable"}}, agentui::ReportText(read),
          CodeOf(read.verdict)};
}

Result Test(const Arguments& arguments) {
  const Json site = LoadSite();
  const Json& service = FindService(site, arguments.service);
  const std::string what = "test the service \"" + service["name"].get<std::string>() + "\"";
  Library library;
  const int index = library.IndexOf(service);
  library.Windows().AnswerYes(arguments.yes);
  const std::uint32_t before = agentui::LastTest();
  if (library.Calls().DomainServiceIsUser(index) != 0)
    TestUser(library, index, UserOf(service, arguments.user), what, arguments);
  else
    TestDevice(library, index, what, arguments);
  if (agentui::LastTest() == before) throw library.Refusal(what);
  return Reported(agentui::LastTest());
}

void AddOptions(CLI::App& verb, Arguments& arguments) {
  arguments.fields.AddTo(verb, kFields);
  verb.add_flag("--yes", arguments.yes, "Go on where the window would ask whether to");
}

}  // namespace

void AddServiceTestVerb(Verbs& verbs, CLI::App& service) {
  const auto arguments = std::make_shared<Arguments>();
  CLI::App& test =
      verbs.AddVerb(service, "test", Access::kExport,
                    "Sends a test and tells what became of it. That takes some seconds, and up to two "
                    "minutes where no alert server answers.",
                    kServiceExamples, [arguments] { return Test(*arguments); });
  test.add_option("service", arguments->service, "Name or identity of the service")->required();
  test.add_option("--user", arguments->user, "User to alert; without it the only one who has an entry")
      ->check(kNotEmpty);
  test.add_option("--computer", arguments->computer,
                  "Computer to test sound, speech or a program on; without it this machine")
      ->check(kNotEmpty);
  AddOptions(test, *arguments);
}

void AddEntryTestVerb(Verbs& verbs, CLI::App& entry) {
  const auto arguments = std::make_shared<Arguments>();
  CLI::App& test =
      verbs.AddVerb(entry, "test", Access::kExport, "Sends a test to a user and tells what became of it.",
                    kEntryExamples, [arguments] { return Test(*arguments); });
  test.add_option("user", arguments->user, "Name or identity of the user")->required();
  test.add_option("service", arguments->service, "Name or identity of the service")->required();
  AddOptions(test, *arguments);
}

}  // namespace alertctl
