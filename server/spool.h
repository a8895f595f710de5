// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/base/descriptor.h"
#include "server/report.h"

// The directory through which tests come and reports go; docs/spool.md has the rules.

namespace alertserver {

/// Where things are in a spool.
class Spool {
 public:
  explicit Spool(std::string directory) : directory_(std::move(directory)) {}

  const std::string& Directory() const { return directory_; }
  std::string LockPath() const { return directory_ + "/server.lock"; }
  std::string JobPath(std::uint32_t job) const;
  std::string ReportPath(std::uint32_t job) const;
  bool HasJob(std::uint32_t job) const;
  bool HasReport(std::uint32_t job) const;

  /// The numbers of the jobs, in ascending order.
  std::vector<std::uint32_t> Jobs() const;

  /// Answers whether the report is in place; otherwise `problem` says why not.
  bool WriteReport(std::uint32_t job, const Report& report, std::string& problem) const;

 private:
  std::string directory_;
};

/// The number that a job's file is named after; nothing for another name.
std::optional<std::uint32_t> JobNumberOf(std::string_view file_name);

/// A job's file, locked: nobody else works on it.
struct Claim {
  enum class Outcome {
    kHeld,
    kBusy,    ///< another one has it
    kGone,    ///< there is none of that number
    kRefused  ///< it is no file that a console would write; `problem` says why
  };

  Outcome outcome = Outcome::kGone;
  platform::Descriptor file{};  ///< open while the claim is held
  std::string text{};           ///< the whole file
  std::string problem{};        ///< words that can follow "because"
};

Claim ClaimJob(const Spool& spool, std::uint32_t job);

/// Removes the job, if its name still stands for the claimed file.
void RemoveJob(const Spool& spool, std::uint32_t job, const Claim& claim);

}  // namespace alertserver
