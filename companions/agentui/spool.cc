// SPDX-License-Identifier: MIT
#include "companions/agentui/spool.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <optional>
#include <random>
#include <string_view>

#include "platform/base/atomic_write.h"
#include "platform/base/base64.h"
#include "platform/base/host_name.h"
#include "platform/base/paths.h"
#include "platform/base/utc_time.h"

namespace agentui {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

constexpr std::string_view kReportEnding = ".report.json";
constexpr std::string_view kJobEnding = ".json";
constexpr std::string_view kUnfinishedEnding = ".tmp";

constexpr std::chrono::hours kReportAge(7 * 24);
/// No console waits for so long.
constexpr std::chrono::hours kJobAge(1);

bool Exists(const std::string& path) {
  std::error_code ignored;
  return fs::exists(fs::symlink_status(path, ignored));
}

std::string Who() {
  const passwd* account = getpwuid(geteuid());
  const std::string user = account != nullptr ? account->pw_name : std::to_string(geteuid());
  return user + '@' + platform::HostName();
}

std::string JobText(const Job& job) {
  const auto* bytes = reinterpret_cast<const char*>(&job.record);
  const Json file = {{"version", 1},
                     {"job", job.number},
                     {"time", platform::ToUtcText(std::chrono::system_clock::now())},
                     {"who", Who()},
                     {"service", job.record.serviceId.ToString()},
                     {"managers", job.managers},
                     {"record", platform::EncodeBase64({bytes, sizeof job.record})}};
  return file.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

bool DropEnding(std::string_view& name, std::string_view ending) {
  if (!name.ends_with(ending)) return false;
  name.remove_suffix(ending.size());
  return true;
}

/// A file of the spool, told from its name.
struct SpoolFile {
  fs::path path;
  std::uint32_t job;
  bool is_report;  ///< a whole one
  fs::file_time_type written;
};

/// Nothing for a name that is not of the spool's making, such as a lock of an alert server.
std::optional<SpoolFile> AsSpoolFile(const fs::path& path) {
  const std::string file_name = path.filename();
  std::string_view name = file_name;
  SpoolFile file{path, 0, false, {}};
  const bool is_unfinished = DropEnding(name, kUnfinishedEnding);
  const bool is_report = DropEnding(name, kReportEnding);
  if (!is_report && !DropEnding(name, kJobEnding)) return std::nullopt;
  file.is_report = is_report && !is_unfinished;
  const char* const end = name.data() + name.size();
  const auto number = std::from_chars(name.data(), end, file.job);
  if (number.ec != std::errc() || number.ptr != end) return std::nullopt;
  std::error_code error;
  file.written = fs::last_write_time(path, error);
  return error ? std::nullopt : std::optional(std::move(file));
}

std::vector<SpoolFile> ListSpool(const std::string& spool) {
  std::vector<SpoolFile> files;
  std::error_code error;
  for (fs::directory_iterator at(spool, error), end; !error && at != end; at.increment(error))
    if (auto file = AsSpoolFile(at->path())) files.push_back(std::move(*file));
  return files;
}

}  // namespace

std::string SpoolDirectory() { return platform::DataDirectory() + "/spool"; }

std::string JobPath(const std::string& spool, std::uint32_t job) {
  return spool + '/' + std::to_string(job).append(kJobEnding);
}

std::string ReportPath(const std::string& spool, std::uint32_t job) {
  return spool + '/' + std::to_string(job).append(kReportEnding);
}

std::uint32_t NewJobNumber(const std::string& spool) {
  std::random_device random;
  for (;;) {
    const std::uint32_t number = random() & 0x7FFFFFFF;
    if (number != 0 && !Exists(JobPath(spool, number)) && !Exists(ReportPath(spool, number))) return number;
  }
}

std::string WriteJob(const std::string& spool, const Job& job) {
  platform::FileError error;
  for (const std::string& directory : {platform::ParentOf(spool), spool})
    if (!platform::PreparePrivateDirectory(directory, error)) return error.text;
  const auto outcome = platform::ReplaceFile(JobPath(spool, job.number), JobText(job), 0600, &error);
  return outcome == platform::WriteOutcome::kFailed ? error.text : "";
}

bool WriteSpoolFile(const std::string& path, const std::string& text) {
  return platform::ReplaceFile(path, text, 0600) != platform::WriteOutcome::kFailed;
}

void CleanSpool(const std::string& spool, const std::set<std::uint32_t>& pending) {
  std::vector<SpoolFile> files = ListSpool(spool);
  std::erase_if(files, [&](const SpoolFile& file) {
    return pending.contains(file.job) || (file.is_report && Exists(JobPath(spool, file.job)));
  });
  std::sort(files.begin(), files.end(),
            [](const SpoolFile& a, const SpoolFile& b) { return a.written > b.written; });
  const auto now = fs::file_time_type::clock::now();
  std::size_t reports = 0;
  for (const SpoolFile& file : files) {
    const bool is_old = now - file.written > (file.is_report ? kReportAge : kJobAge);
    const bool is_kept = !is_old && (!file.is_report || ++reports <= kMaxReports);
    std::error_code ignored;
    if (!is_kept) fs::remove(file.path, ignored);
  }
}

}  // namespace agentui
