// SPDX-License-Identifier: MIT
#include "server/delivery.h"

#include <algorithm>

#include "platform/base/host_name.h"
#include "server/keywords.h"
#include "server/own_address.h"
#include "server/role.h"
#include "server/runner.h"
#include "server/transport_table.h"

namespace alertserver {
namespace {

/// Left over at the end for writing the report.
constexpr std::chrono::seconds kMargin(3);

std::string Now() { return platform::ToUtcText(std::chrono::system_clock::now()); }

Secrets SecretsOf(const Service& service, const Configuration& configuration) {
  Secrets secrets;
  const std::string password = service.Text("password");
  secrets.Add(password);
  // As a login carries both; the server may say it again.
  if (!password.empty()) secrets.Add('\0' + service.Text("loginId") + '\0' + password);
  if (service.type == "snmp-trap")
    for (const SnmpManager& manager : configuration.snmpManagers) secrets.Add(manager.community);
  return secrets;
}

/// Why nothing can be sent through a service, whatever its type; "" where it can.
std::string WhatIsMissing(const Service* service, Field& field) {
  if (service == nullptr) return "The alert manager's configuration does not have the service.";
  const TransportRow* const row = FindTransport(service->type);
  if (row == nullptr)
    return "Not possible from this server: it does not know services of the type \"" + service->type + "\".";
  if (row->has_settings && !service->has_settings)
    return "The service's own record is missing: delete the service and make it anew.";
  if (service->enabled) return "";
  field = Field::kEnabled;
  return "The service is switched off, so no alert goes through it.";
}

/// The tries that one manager makes, all with the same job.
class Tries {
 public:
  Tries(const std::string& manager, const Job& job, const Service& service,
        const Configuration& configuration, const Settings& settings)
      : job_(job),
        service_(service),
        configuration_(configuration),
        settings_(settings),
        row_(*FindTransport(service.type)),
        first_(configuration.Delivers(manager, service.id, false)),
        backup_(configuration.Delivers(manager, service.id, true)) {
    report_.manager = manager;
  }

  Report Run() {
    const bool has_other = backup_ && service_.backupModem && row_.dials;
    if (!has_other || first_)
      Try(service_.modem, "", first_ && has_other ? Left() * 55 / 100 : Left());
    else
      Try(service_.backupModem, "", Left());
    if (first_ && has_other && MayFareBetter()) {
      const std::string before = report_.explanation;
      Try(service_.backupModem, "Backup modem: ", Left());
      report_.explanation =
          before + " Over the backup modem: " +
          (report_.explanation.empty() ? "the message is on its way." : report_.explanation);
    }
    return report_;
  }

  bool MayFareBetter() const {
    return report_.verdict == Verdict::kNotReached ||
           (report_.verdict == Verdict::kNotPossible && row_.dials);
  }

 private:
  std::chrono::milliseconds Left() const {
    using std::chrono::milliseconds;
    const auto left = job_.time + AnswerLimit(job_) - kMargin - std::chrono::system_clock::now();
    // A job of a console whose clock is ahead has no more time than others.
    return std::clamp(std::chrono::duration_cast<milliseconds>(left), milliseconds(0), AnswerLimit(job_));
  }

  void Try(const std::optional<ModemLink>& modem, const std::string& mark, std::chrono::milliseconds time) {
    Context context{job_,
                    service_,
                    configuration_,
                    settings_,
                    modem ? &*modem : nullptr,
                    Context::Clock::now() + time,
                    Transcript(SecretsOf(service_, configuration_))};
    const TransportPtr transport = row_.make();
    RunResult result = RunSteps(transport->Steps(context), context);
    for (ReportStep& step : result.steps) {
      step.name = mark + step.name;
      report_.steps.push_back(std::move(step));
    }
    report_.verdict = result.verdict;
    report_.explanation = std::move(result.explanation);
    if (!result.field.empty()) report_.field = std::move(result.field);
    report_.transcript += context.transcript.Text();
  }

  const Job& job_;
  const Service& service_;
  const Configuration& configuration_;
  const Settings& settings_;
  const TransportRow& row_;
  const bool first_, backup_;
  Report report_;
};

void FillJob(const std::string& manager, const Settings& settings, Job& job) {
  const KeywordSources sources{job.response.user_name, platform::HostName(),
                               settings.site_name.empty() ? manager : settings.site_name, OwnAddress(),
                               std::chrono::system_clock::now()};
  job.message = FillKeywords(job.response.message, sources);
  job.subject = FillKeywords(job.response.subject, sources);
  job.keyword_sources = sources;
}

}  // namespace

DeliveryResult Deliver(const std::string& manager, Job& job, const Configuration& configuration,
                       const Settings& settings) {
  const std::string started = Now();
  FillJob(manager, settings, job);
  DeliveryResult result;
  const Service* const service = configuration.FindService(job.response.service);
  Field field = Field::kNothing;
  if (const std::string missing = WhatIsMissing(service, field); !missing.empty()) {
    result.report = PlainReport(manager, Verdict::kNotPossible, missing);
    result.report.field = NameOf(field);
  } else {
    Tries tries(manager, job, *service, configuration, settings);
    result.report = tries.Run();
    result.backup_may_help = tries.MayFareBetter();
    MaskReport(SecretsOf(*service, configuration), result.report);
  }
  result.report.started = started;
  result.report.ended = Now();
  return result;
}

Report WithTriesBefore(const Job& job, Report last) {
  if (job.tries.empty()) return last;
  Report whole = std::move(last);
  std::vector<ReportStep> steps;
  std::string transcript, explanation;
  for (const Report& one : job.tries) {
    for (ReportStep step : one.steps) {
      step.name = one.manager + ": " + step.name;
      steps.push_back(std::move(step));
    }
    transcript += "* " + one.manager + ":\n" + one.transcript;
    explanation += one.manager + " could not deliver it: " + one.explanation + ' ';
    if (whole.field.empty()) whole.field = one.field;
    whole.started = job.tries.front().started;
  }
  for (ReportStep& step : whole.steps) {
    step.name = whole.manager + ": " + step.name;
    steps.push_back(std::move(step));
  }
  whole.steps = std::move(steps);
  whole.transcript = transcript + "* " + whole.manager + ":\n" + whole.transcript;
  whole.explanation = explanation + "The backup, " + whole.manager + ", " +
                      (IsSuccess(whole.verdict) ? "took it over. " : "could not either. ") +
                      whole.explanation;
  return whole;
}

Report NotTakenOver(const Job& job, const std::string& backup) {
  Report report = job.tries.back();
  report.explanation += backup.empty() ? " There was no backup to take it over."
                                       : " The backup, " + backup +
                                             ", did not take it over: see that an alert "
                                             "server is running there.";
  report.ended = Now();
  return report;
}

Report PlainReport(const std::string& manager, Verdict verdict, std::string explanation) {
  Report report;
  report.verdict = verdict;
  report.manager = manager;
  report.explanation = std::move(explanation);
  report.started = report.ended = Now();
  return report;
}

}  // namespace alertserver
