// SPDX-License-Identifier: MIT
#include "server/server.h"

#include <unistd.h>

#include <algorithm>

#include "platform/base/atomic_write.h"
#include "server/log.h"

namespace alertserver {
namespace {

/// More would be no test of an administrator.
constexpr std::size_t kMaxRunning = 16;

void LogJob(std::uint32_t number, const std::string& text) {
  Log("job " + std::to_string(number) + ": " + text);
}

/// What the log says of a report: nothing that a person wrote.
std::string Summary(const Report& report) {
  std::string text = "verdict " + std::string(WordOf(report.verdict));
  if (!report.steps.empty()) text += ", last step \"" + report.steps.back().name + '"';
  if (!report.field.empty()) text += ", to correct: " + report.field;
  return text;
}

Settings SettingsOf(const std::string& data) {
  std::vector<std::string> problems;
  Settings settings = ReadSettings(data + "/alertserver.json", problems);
  for (const std::string& problem : problems) Log("alertserver.json: " + problem);
  return settings;
}

}  // namespace

Server::Server(std::string data, std::string manager)
    : data_(std::move(data)), manager_(std::move(manager)), spool_(data_ + "/spool") {}

Server::~Server() {
  for (Running& one : running_) one.thread.join();
}

bool Server::Refuse(std::uint32_t number, const Claim& claim, const std::string& problem) {
  if (!refused_.insert(number).second) return false;
  LogJob(number, "refused, because " + problem);
  std::string failure;
  const Report report = PlainReport(manager_, Verdict::kRefused,
                                    "The alert server refused the test's file, because " + problem + ".");
  if (!spool_.HasReport(number) && !spool_.WriteReport(number, report, failure))
    LogJob(number, "its report cannot be written: " + failure);
  RemoveJob(spool_, number, claim);
  if (access(spool_.JobPath(number).c_str(), F_OK) != 0) refused_.erase(number);
  return true;
}

std::optional<Server::Work> Server::Take(std::uint32_t number, Handling& handling) {
  handling = Handling::kNothing;
  Claim claim = ClaimJob(spool_, number);
  if (claim.outcome == Claim::Outcome::kRefused) {
    handling = Handling::kRefused;
    Refuse(number, claim, claim.problem);
  }
  return claim.outcome == Claim::Outcome::kHeld ? Read(number, std::move(claim), handling) : std::nullopt;
}

std::optional<Server::Work> Server::Read(std::uint32_t number, Claim claim, Handling& handling) {
  std::string problem;
  auto job = ParseJob(claim.text, number, problem);
  if (!job) {
    handling = Handling::kRefused;
    Refuse(number, claim, problem);
    return std::nullopt;
  }
  const auto now = std::chrono::system_clock::now();
  if (RoleOf(manager_, *job, {}, now) == Role::kNone) return std::nullopt;  // the configuration may be long
  Work work{number, std::move(claim), std::move(*job), Role::kNone, {}, {}};
  work.configuration = ReadConfiguration(data_ + "/alert-managers.json", work.problem);
  work.role = RoleOf(manager_, work.job, work.configuration.value_or(Configuration{}), now);
  if (work.role == Role::kNone || work.role == Role::kWait) return std::nullopt;
  // The server that had it before ended between the report and this.
  if (spool_.HasReport(number)) {
    LogJob(number, "was answered before");
    RemoveJob(spool_, number, work.claim);
    handling = Handling::kAnswered;
    return std::nullopt;
  }
  return work;
}

void Server::Finish(Work work) {
  if (work.role == Role::kStale) {
    LogJob(work.number, "nobody waits for it any more; removed");
    RemoveJob(spool_, work.number, work.claim);
  } else if (!work.configuration) {
    Answer(work,
           PlainReport(manager_, Verdict::kNotPossible,
                       "The alert manager's configuration cannot be read, because " + work.problem + "."));
  } else if (work.role == Role::kAnswer) {
    Answer(work, NotTakenOver(work.job, NextManager(manager_, work.job, *work.configuration)));
  } else {
    DeliverAndReport(work);
  }
}

void Server::DeliverAndReport(Work& work) {
  LogJob(work.number, "taken");
  DeliveryResult result = Deliver(manager_, work.job, *work.configuration, SettingsOf(data_));
  const std::string missing = MissingManagers(manager_, work.job, *work.configuration);
  if (!missing.empty())
    result.report.explanation = missing +
                                " did not take the test: see that an alert server is running there. " +
                                result.report.explanation;
  if (result.backup_may_help && HandOn(work, result.report)) return;
  Answer(work, WithTriesBefore(work.job, result.report));
}

/// The job becomes one that its backup may take. True when it did.
bool Server::HandOn(const Work& work, const Report& report) {
  const std::string next = NextManager(manager_, work.job, *work.configuration);
  if (next.empty() || !platform::IsFileAt(spool_.JobPath(work.number), work.claim.file.Get())) return false;
  const std::string text = WithTry(work.claim.text, report, std::chrono::system_clock::now());
  if (platform::ReplaceFile(spool_.JobPath(work.number), text, 0600) == platform::WriteOutcome::kFailed)
    return false;
  LogJob(work.number, Summary(report) + "; handed on to " + next);
  return true;
}

/// A full disk may have room again while somebody waits for the report; what was sent must not be sent again for it.
void Server::Answer(const Work& work, const Report& report) {
  std::string problem;
  while (!spool_.WriteReport(work.number, report, problem)) {
    LogJob(work.number, "its report cannot be written: " + problem);
    if (std::chrono::system_clock::now() - work.job.time > AnswerLimit(work.job)) break;
    std::this_thread::sleep_for(std::chrono::seconds(1));
  }
  RemoveJob(spool_, work.number, work.claim);
  LogJob(work.number, Summary(report));
}

Handling Server::Handle(std::uint32_t number) {
  Handling handling = Handling::kNothing;
  auto work = Take(number, handling);
  if (!work) return handling;
  Finish(std::move(*work));
  return Handling::kAnswered;
}

void Server::Look() {
  JoinThoseThatAreOver();
  Handling ignored;
  for (const std::uint32_t number : spool_.Jobs()) {
    if (running_.size() >= kMaxRunning) return;
    if (IsRunning(number)) continue;
    if (auto work = Take(number, ignored)) Start(std::move(*work));
  }
}

void Server::Start(Work work) {
  const std::lock_guard lock(mutex_);
  const std::uint32_t number = work.number;
  std::thread thread([this, number, mine = std::make_shared<Work>(std::move(work))] {
    try {
      Finish(std::move(*mine));
    } catch (const std::exception& error) {  // no memory; the job is taken again
      LogJob(number, error.what());
    }
    const std::lock_guard over(mutex_);
    std::ranges::find(running_, number, &Running::number)->is_over = true;
  });
  running_.push_back({number, std::move(thread), false});
}

bool Server::IsRunning(std::uint32_t number) {
  const std::lock_guard lock(mutex_);
  return std::ranges::find(running_, number, &Running::number) != running_.end();
}

void Server::JoinThoseThatAreOver() {
  std::vector<Running> over;
  {
    const std::lock_guard lock(mutex_);
    const auto rest = std::ranges::partition(running_, [](const Running& one) { return !one.is_over; });
    std::ranges::move(rest, std::back_inserter(over));
    running_.erase(rest.begin(), rest.end());
  }
  for (Running& one : over) one.thread.join();
}

}  // namespace alertserver
