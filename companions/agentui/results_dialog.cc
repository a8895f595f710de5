// SPDX-License-Identifier: MIT
#include "companions/agentui/results_dialog.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string_view>
#include <utility>

#include "companions/ctxhelp/ctxhelp.h"
#include "platform/base/utc_time.h"
#include "platform/ui/desktop.h"
#include "platform/ui/dialog.h"
#include "platform/ui/edit.h"
#include "platform/ui/lists.h"

namespace agentui {
namespace {

namespace ui = platform::ui;
using Verdict = Report::Verdict;

enum ControlId {
  kIdVerdict = 100,
  kIdExplanation,
  kIdDelivery,
  kIdCorrection,
  kIdSteps,
  kIdTranscript,
  kIdCopy,
  kIdCorrect
};

/// How the dialog ends by "Correct...".
constexpr int kCorrect = 3;

const char* VerdictText(Verdict verdict) {
  switch (verdict) {
    case Verdict::kDelivered:
      return "The test was delivered.";
    case Verdict::kSent:
      return "The test was sent; nobody confirms that it arrived.";
    case Verdict::kRefused:
      return "The test was refused.";
    case Verdict::kNotReached:
      return "The receiver of the test was not reached.";
    case Verdict::kNotPossible:
      return "The test is not possible from this alert server.";
    case Verdict::kFailed:
      return "The test failed.";
    case Verdict::kUnanswered:
      return "The test was not answered.";
    case Verdict::kUnreadable:
      break;
  }
  return "The report of the test cannot be read.";
}

std::string DurationText(std::uint64_t milliseconds) {
  if (milliseconds < 1000) return std::to_string(milliseconds) + " ms";
  char text[32];
  std::snprintf(text, sizeof text, "%.1f s", static_cast<double>(milliseconds) / 1000);
  return text;
}

/// "" where the report does not tell both times.
std::string TimeTaken(const Report& report) {
  const auto started = platform::ParseUtcText(report.started), ended = platform::ParseUtcText(report.ended);
  if (!started || !ended || *ended < *started) return {};
  const auto taken = std::chrono::duration_cast<std::chrono::milliseconds>(*ended - *started);
  return DurationText(static_cast<std::uint64_t>(taken.count()));
}

std::string DeliveryText(const Report& report) {
  std::string text;
  if (!report.manager.empty()) text += "Alert manager: " + report.manager + ". ";
  if (const std::string taken = TimeTaken(report); !taken.empty()) text += "Time taken: " + taken + ".";
  return text;
}

/// The fields that a person can correct: their names in reports, and where windows have them.
constexpr std::pair<std::string_view, const char*> kFieldTexts[] = {
    {"smtpServer", "\"SMTP Server\" on the service's General page"},
    {"loginId", "the service's login, which its properties do not show"},
    {"password", "the service's password, which its properties do not show"},
    {"providerPhone", "the paging provider's phone number on the service's General page"},
    {"maxTextLength", "the text length on the service's General page"},
    {"enabled", "\"Enable Service\" on the service's General page"},
    {"modem", "the modem on the service's Modems page"},
    {"backupModem", "the service's backup modem"},
    {"baudRate", "the baud rate on the service's Modems page"},
    {"modems.enabled", "\"Enable\" in the properties of the modem"},
    {"modems.comPort", "the port of the modem"},
    {"modems.initString", "the initialization string of the modem"},
    {"modems.alphaInitString", "the modem's initialization string for alphanumeric pagers"},
    {"modems.dialPrefix", "the dialing prefix string of the modem"},
    {"modems.dialSuffix", "the dialing suffix string of the modem"},
    {"modems.hangupString", "the hangup string of the modem"},
    {"address", "the address of the recipient on the service"},
    {"userEnabled", "whether the recipient is alerted through the service"},
    {"userName", "the target computer of the test"},
    {"snmpManagers.address", "the name or address of the SNMP manager"},
    {"snmpManagers.community", "the community name of the SNMP manager"},
    {"subject", "the file or program of the test"},
    {"message", "the message of the test"}};

std::string CorrectionText(const std::string& field, const std::string& record = {}) {
  if (field.empty()) return {};
  const std::string of = record.empty() ? "." : " (" + record + ").";
  for (const auto& [name, text] : kFieldTexts)
    if (field == name) return std::string("To correct: ") + text + of;
  return "To correct: the field \"" + field + "\"" + of;
}

bool Asks(const Report::Step& step) { return !step.field.empty(); }

/// Whether there is anything to correct.
bool Asks(const Report& report) {
  return !report.field.empty() ||
         std::ranges::any_of(report.steps, [](const Report::Step& step) { return Asks(step); });
}

/// A text that has no access key.
std::string AsLabel(const std::string& text) {
  std::string label;
  for (const char c : text) label.append(c == '&' ? 2 : 1, c);
  return label;
}

/// A text for a cell of one line.
std::string OneLine(std::string text) {
  for (char& c : text)
    if (c == '\r' || c == '\n' || c == '\t') c = ' ';
  return text;
}

/// Line breaks as a field of several lines has them.
std::string Lines(const std::string& text) {
  std::string lines;
  for (const char c : text)
    if (c == '\n')
      lines += "\r\n";
    else if (c != '\r')
      lines += c;
  return lines;
}

}  // namespace

// It also goes into a mail to whoever can help.
std::string ReportText(const Report& report) {
  std::string text = VerdictText(report.verdict);
  for (const std::string& line : {report.explanation, DeliveryText(report), CorrectionText(report.field)})
    if (!line.empty()) text += '\n' + line;
  for (const Report::Step& step : report.steps)
    text += '\n' + step.name + ": " + step.result + ", " + DurationText(step.milliseconds) +
            (step.said.empty() ? "" : ", " + OneLine(step.said));
  return text + '\n' + (report.transcript.empty() ? "" : '\n' + report.transcript);
}

namespace {

class ResultsDialog : public ui::Dialog {
 public:
  ResultsDialog(ui::Window* parent, const Report& report, const TestSubject& subject);

  /// What the chosen step asks for, else the first that failed, else the whole report.
  Correction Wanted() const;

 private:
  void OnInitDialog() override;
  void OnHelp(const ui::HelpEvent& event) override;
  const Report::Step* StepToCorrect() const;
  void ShowCorrection();

  const Report& report_;
  const TestSubject subject_;
  ui::StaticText verdict_, explanation_, delivery_, correction_;
  ui::ListView steps_;
  ui::Edit transcript_;
  ui::Button correct_, copy_, ok_;
};

ResultsDialog::ResultsDialog(ui::Window* parent, const Report& report, const TestSubject& subject)
    : Dialog(parent, "Test Results"),
      report_(report),
      subject_(subject),
      verdict_(*this, kIdVerdict, VerdictText(report.verdict)),
      explanation_(*this, kIdExplanation, AsLabel(OneLine(report.explanation))),
      delivery_(*this, kIdDelivery, AsLabel(DeliveryText(report))),
      correction_(*this, kIdCorrection, ""),
      steps_(*this, kIdSteps, "&Steps:"),
      transcript_(*this, kIdTranscript, "&Transcript:"),
      correct_(*this, kIdCorrect, "Co&rrect..."),
      copy_(*this, kIdCopy, "&Copy"),
      ok_(*this, ui::kIdOk, "OK") {
  SetLayout(ui::Column({ui::Bare(verdict_), ui::Bare(explanation_), ui::Bare(delivery_),
                        ui::Bare(correction_), ui::Over(steps_), ui::Over(transcript_),
                        ui::Row({ui::Stretch(), ui::Field(correct_), ui::Field(copy_), ui::Field(ok_)})}));
  for (ui::StaticText* text : {&explanation_, &delivery_}) text->Show(!text->Label().empty());
  transcript_.SetMultiLine(true);
  transcript_.SetReadOnly(true);
  steps_.AddColumn("Step", 110);
  steps_.AddColumn("Result", 40);
  steps_.AddColumn("Time", 40);
  steps_.AddColumn("Answer", 240);
  steps_.Show(!report.steps.empty());
  steps_.SetOnChange([this] { ShowCorrection(); });
  transcript_.Show(!report.transcript.empty());
  correct_.Show(RegisteredCorrections() != nullptr && !subject_.service.IsNull() && Asks(report));
  correct_.SetOnClick([this] { EndDialog(kCorrect); });
  copy_.SetOnClick([this] { ui::Desktop::Current().SetClipboardText(ReportText(report_)); });
  ok_.SetDefault(true);
  ok_.SetOnClick([this] { OnOk(); });
  ShowCorrection();
}

void ResultsDialog::OnInitDialog() {
  for (const Report::Step& step : report_.steps)
    steps_.AddRow(
        {OneLine(step.name), OneLine(step.result), DurationText(step.milliseconds), OneLine(step.said)});
  transcript_.SetText(Lines(report_.transcript));
  Dialog::OnInitDialog();
}

// A modem that did not hang up behind a message that arrived is nobody's trouble, unless somebody asks.
const Report::Step* ResultsDialog::StepToCorrect() const {
  const int chosen = steps_.SelectedRow();
  if (chosen >= 0 && Asks(report_.steps[static_cast<std::size_t>(chosen)]))
    return &report_.steps[static_cast<std::size_t>(chosen)];
  const auto first = std::ranges::find_if(report_.steps, [](const auto& step) { return Asks(step); });
  return first != report_.steps.end() && !report_.field.empty() ? &*first : nullptr;
}

Correction ResultsDialog::Wanted() const {
  const Report::Step* step = StepToCorrect();
  return step != nullptr ? Correction{step->field, step->record, subject_}
                         : Correction{report_.field, "", subject_};
}

void ResultsDialog::ShowCorrection() {
  const Correction wanted = Wanted();
  correction_.SetLabel(AsLabel(CorrectionText(wanted.field, wanted.record)));
  correction_.Show(!wanted.field.empty());
  const Corrections* corrections = RegisteredCorrections();
  correct_.Enable(corrections != nullptr && corrections->CanOpen(wanted));
}

void ResultsDialog::OnHelp(const ui::HelpEvent& event) {
  ctxhelp::MakeContextHelp()->QEVDlgOnContextHelp(
      *this, event, ctxhelp::HelpTableOf(*this, ctxhelp::kHelpTestResults).data());
}

}  // namespace

// What opens in place of the results must not lie beneath them, and whoever opens it may have gone meanwhile.
void ShowTestResults(ui::Window* parent, const Report& report, const TestSubject& subject) {
  const ui::Handle owner = parent != nullptr ? parent->GetHandle() : ui::kNoWindow;
  for (bool shown = true; shown;) {
    ResultsDialog dialog(ui::Window::FromHandle(owner), report, subject);
    const bool corrects = dialog.RunModal() == kCorrect;
    Corrections* const corrections = RegisteredCorrections();
    shown = corrects && corrections != nullptr && !corrections->Open(dialog.Wanted());
  }
}

}  // namespace agentui
