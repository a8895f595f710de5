// SPDX-License-Identifier: MIT
#include "server/spool.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <filesystem>

#include "platform/base/atomic_write.h"
#include "platform/base/process_lock.h"
#include "server/job.h"
#include "server/safe_file.h"

namespace alertserver {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kEnding = ".json";

bool IsThere(const std::string& path) {
  struct stat found {};
  return lstat(path.c_str(), &found) == 0;
}

}  // namespace

std::optional<std::uint32_t> JobNumberOf(std::string_view file_name) {
  if (!file_name.ends_with(kEnding)) return std::nullopt;
  std::uint32_t number = 0;
  const char* const end = file_name.data() + file_name.size() - kEnding.size();
  const auto read = std::from_chars(file_name.data(), end, number);
  const bool is_job = read.ec == std::errc() && read.ptr == end && number >= 1 && number <= 0x7FFFFFFF &&
                      file_name.front() != '0';
  return is_job ? std::optional(number) : std::nullopt;
}

std::string Spool::JobPath(std::uint32_t job) const {
  return directory_ + '/' + std::to_string(job) + ".json";
}

std::string Spool::ReportPath(std::uint32_t job) const {
  return directory_ + '/' + std::to_string(job) + ".report.json";
}

bool Spool::HasJob(std::uint32_t job) const { return IsThere(JobPath(job)); }

bool Spool::HasReport(std::uint32_t job) const { return IsThere(ReportPath(job)); }

std::vector<std::uint32_t> Spool::Jobs() const {
  std::vector<std::uint32_t> jobs;
  std::error_code error;
  for (fs::directory_iterator at(directory_, error), end; !error && at != end; at.increment(error))
    if (const auto number = JobNumberOf(at->path().filename().string())) jobs.push_back(*number);
  std::ranges::sort(jobs);
  return jobs;
}

bool Spool::WriteReport(std::uint32_t job, const Report& report, std::string& problem) const {
  platform::FileError error;
  if (platform::ReplaceFile(ReportPath(job), ReportText(job, report), 0600, &error) !=
      platform::WriteOutcome::kFailed)
    return true;
  problem = error.text;
  return false;
}

Claim ClaimJob(const Spool& spool, std::uint32_t job) {
  using enum Claim::Outcome;
  const std::string path = spool.JobPath(job);
  std::string problem;
  platform::Descriptor file = OpenSafeFile(path, problem);
  if (!file.IsOpen()) return {problem.empty() ? kGone : kRefused, platform::Descriptor(), {}, problem};
  if (platform::LockOpenFile(file.Get(), std::chrono::milliseconds(0)) != platform::LockOutcome::kHeld)
    return {kBusy};
  // Whoever had it before may be done with it by now.
  if (!platform::IsFileAt(path, file.Get())) return {kGone};
  Claim claim{kHeld, std::move(file), {}, {}};
  if (!ReadOpenFile(claim.file.Get(), kMaxJobSize, claim.text, claim.problem)) claim.outcome = kRefused;
  return claim;
}

void RemoveJob(const Spool& spool, std::uint32_t job, const Claim& claim) {
  const std::string path = spool.JobPath(job);
  if (!claim.file.IsOpen() || platform::IsFileAt(path, claim.file.Get())) unlink(path.c_str());
}

}  // namespace alertserver
