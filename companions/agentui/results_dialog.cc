// SPDX-License-Identifier: MIT
#include "companions/agentui/results_dialog.h"

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
  kIdCopy
};

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

/// The fields that a person can correct: their names in the configuration file, and where windows have them.
constexpr std::pair<std::string_view, const char*> kFieldTexts[] = {
    {"smtpServer", "\"SMTP Server\" on the service's General page"},
    {"loginId", "the login on the service's General page"},
    {"password", "the password on the service's General page"},
    {"mhsDirectory", "the MHS directory on the service's General page"},
    {"phoneNumber", "the phone number on the service's General page"},
    {"providerPhone", "the paging provider's phone number on the service's General page"},
    {"dialDelay", "the delay on the service's General page"},
    {"modemId", "the modem on the service's Modems page"},
    {"comPort", "the port of the modem"},
    {"initString", "the initialization string of the modem"},
    {"enabled", "\"Enable Service\" on the service's General page"},
    {"address", "the address of the recipient on the service"},
    {"userEnabled", "whether the recipient is alerted through the service"},
    {"userName", "the target computer of the test"},
    {"snmpManagers.address", "the name or address of the SNMP manager"},
    {"snmpManagers.community", "the community name of the SNMP manager"},
    {"subject", "the file or program of the test"},
    {"message", "the message of the test"}};

std::string CorrectionText(const std::string& field) {
  if (field.empty()) return {};
  for (const auto& [name, text] : kFieldTexts)
    if (field == name) return std::string("To correct: ") + text + ".";
  return "To correct: the field \"" + field + "\".";
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
  ResultsDialog(ui::Window* parent, const Report& report);

 private:
  void OnInitDialog() override;
  void OnHelp(const ui::HelpEvent& event) override;

  const Report& report_;
  ui::StaticText verdict_, explanation_, delivery_, correction_;
  ui::ListView steps_;
  ui::Edit transcript_;
  ui::Button copy_, ok_;
};

ResultsDialog::ResultsDialog(ui::Window* parent, const Report& report)
    : Dialog(parent, "Test Results"),
      report_(report),
      verdict_(*this, kIdVerdict, VerdictText(report.verdict)),
      explanation_(*this, kIdExplanation, AsLabel(OneLine(report.explanation))),
      delivery_(*this, kIdDelivery, AsLabel(DeliveryText(report))),
      correction_(*this, kIdCorrection, AsLabel(CorrectionText(report.field))),
      steps_(*this, kIdSteps, "&Steps:"),
      transcript_(*this, kIdTranscript, "&Transcript:"),
      copy_(*this, kIdCopy, "&Copy"),
      ok_(*this, ui::kIdOk, "OK") {
  SetLayout(ui::Column({ui::Bare(verdict_), ui::Bare(explanation_), ui::Bare(delivery_),
                        ui::Bare(correction_), ui::Over(steps_), ui::Over(transcript_),
                        ui::Row({ui::Stretch(), ui::Field(copy_), ui::Field(ok_)})}));
  for (ui::StaticText* text : {&explanation_, &delivery_, &correction_}) text->Show(!text->Label().empty());
  transcript_.SetMultiLine(true);
  transcript_.SetReadOnly(true);
  steps_.AddColumn("Step", 110);
  steps_.AddColumn("Result", 40);
  steps_.AddColumn("Time", 40);
  steps_.AddColumn("Answer", 240);
  steps_.Show(!report.steps.empty());
  transcript_.Show(!report.transcript.empty());
  copy_.SetOnClick([this] { ui::Desktop::Current().SetClipboardText(ReportText(report_)); });
  ok_.SetDefault(true);
  ok_.SetOnClick([this] { OnOk(); });
}

void ResultsDialog::OnInitDialog() {
  for (const Report::Step& step : report_.steps)
    steps_.AddRow(
        {OneLine(step.name), OneLine(step.result), DurationText(step.milliseconds), OneLine(step.said)});
  transcript_.SetText(Lines(report_.transcript));
  Dialog::OnInitDialog();
}

void ResultsDialog::OnHelp(const ui::HelpEvent& event) {
  ctxhelp::MakeContextHelp()->QEVDlgOnContextHelp(
      *this, event, ctxhelp::HelpTableOf(*this, ctxhelp::kHelpTestResults).data());
}

}  // namespace

void ShowTestResults(ui::Window* parent, const Report& report) {
  ResultsDialog dialog(parent, report);
  dialog.RunModal();
}

}  // namespace agentui
