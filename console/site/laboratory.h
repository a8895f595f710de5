// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "console/site/laboratory_plan.h"
#include "console/site/laboratory_process.h"
#include "console/site/open_mark.h"

namespace site {

/// A laboratory that this console runs, and with it the site's services pointed there. One at a time in a data directory.
class Laboratory {
 public:
  explicit Laboratory(std::chrono::milliseconds ready_limit = std::chrono::seconds(10))
      : ready_limit_(ready_limit) {}

  /// Starts it, remembers what the site has, and points the site at it. Throws a Failure where that cannot be done; the site
  /// is then as it was, or the text says what is not.
  void Start();
  /// Puts the site's own values back and ends it. What somebody changed meanwhile stays: the answer names it. Throws a
  /// Failure where not all could be put back; it runs on then, for another try.
  std::vector<std::string> Stop();

  /// Null while none runs.
  LaboratoryProcess* Process() { return process_.get(); }
  bool Runs() const { return process_ != nullptr; }
  /// What was pointed there, for people.
  const LaboratoryPlan& Plan() const { return plan_; }

 private:
  void StartMarked();

  const std::chrono::milliseconds ready_limit_;
  std::unique_ptr<OpenMark> mark_;
  std::unique_ptr<LaboratoryProcess> process_;
  LaboratoryPlan plan_;
};

/// Puts back what the laboratory of a console changed that was ended before it could. Answers what somebody changed meanwhile.
/// Throws a Failure where another console runs that laboratory, or not all could be put back.
std::vector<std::string> PutBackLeftOver();

/// "Not put back, because somebody changed it meanwhile: ..."; "" for nothing.
std::string LeftText(const std::vector<std::string>& left);
/// The things with commas and an "and" between them.
std::string Listed(const std::vector<std::string>& things);

}  // namespace site
