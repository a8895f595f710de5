// SPDX-License-Identifier: MIT
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "companions/alertstore/records_common.h"
#include "server/job.h"
#include "tests/support/temporary.h"

namespace test_support {

using Json = nlohmann::ordered_json;

/// The alert manager of the tests.
inline constexpr char kManager[] = "ALPHA";

/// A data directory as a console leaves it: the configuration file, and jobs in the spool.
class TestSite {
 public:
  TestSite();

  const std::string& Data() const { return directory_.Path(); }
  std::string Spool() const { return Data() + "/spool"; }
  std::string JobPath(std::uint32_t job) const { return Spool() + '/' + std::to_string(job) + ".json"; }
  std::string ReportPath(std::uint32_t job) const {
    return Spool() + '/' + std::to_string(job) + ".report.json";
  }

  /// Adds a service that kManager delivers, and makes `response` one that goes through it. The configuration as
  /// a whole can be changed in `configuration`; WriteConfiguration puts it in place.
  Json& AddService(const std::string& type, std::uint32_t record_type, Json settings = nullptr);
  /// The recipient of `response`, with an address on the service that was added last.
  void AddUser(const std::string& name, const std::string& address);
  void WriteConfiguration() const;
  void WriteSettings(const Json& settings) const;

  Json JobJson(std::uint32_t job) const;
  void WriteJob(std::uint32_t job) const { WriteJob(job, JobJson(job).dump()); }
  void WriteJob(std::uint32_t job, const std::string& bytes) const;
  bool HasJob(std::uint32_t job) const;
  /// Null where there is none.
  Json Report(std::uint32_t job) const;

  /// Takes and answers one job in this process; its report.
  Json Serve(std::uint32_t job = 1, const std::string& manager = kManager) const;

  Json configuration;
  alertstore::ALERTRESPREC response{};
  std::vector<std::string> managers{kManager};
  std::string sent_at;  ///< the job's time, "" for now

 private:
  TemporaryDirectory directory_;
};

void WriteFile(const std::string& path, const std::string& bytes);
std::string ReadFile(const std::string& path);
/// "done failed" and so on: the results of a report's steps.
std::string Results(const Json& report);
/// The step of that name; null where there is none.
Json StepOf(const Json& report, const std::string& name);

}  // namespace test_support
