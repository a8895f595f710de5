// SPDX-License-Identifier: MIT
#include "console/site/laboratory.h"

#include "console/site/data_directory.h"
#include "console/site/failure.h"
#include "console/site/laboratory_settings.h"
#include "console/site/laboratory_steps.h"
#include "console/site/managers_file.h"

namespace site {
namespace {

/// Throws a Failure where the laboratory is another console's, or nothing can be kept in the data directory.
std::unique_ptr<OpenMark> TakeMark() {
  auto mark = std::make_unique<OpenMark>("laboratory");
  if (const auto& other = mark->Other())
    throw Failure(kStoreFailure, "another console runs a laboratory on this site (" + other->who +
                                     ", since " + other->since + "): stop it there first");
  if (!mark->Problem().empty())
    throw Failure(kStoreFailure,
                  "the site's values cannot be changed for the laboratory: " + mark->Problem());
  return mark;
}

void TellManagers() {
  ManagersFile file;
  if (!file.Write()) throw Failure(kStoreFailure, "the alert managers could not be told: " + file.Problem());
}

/// All of it: what is remembered is forgotten last.
std::vector<std::string> PutBack(const LaboratoryChanges& changes) {
  std::vector<std::string> left;
  for (const LaboratoryStep& step : StepsBack(changes, left)) step();
  TellManagers();
  ForgetLaboratory();
  return left;
}

/// Nothing half done: what was pointed before a step failed is put back.
void PointOrPutBack(const LaboratoryChanges& changes) {
  try {
    for (const LaboratoryStep& step : StepsToLaboratory(changes)) step();
    TellManagers();
  } catch (const Failure& failure) {
    const std::string why = failure.what();
    try {
      PutBack(changes);
    } catch (const Failure& second) {
      throw Failure(failure.Code(), why + "; and what was changed before that could not be put back: " +
                                        second.what() + "; the console tries again when it starts");
    }
    throw Failure(failure.Code(), why + "; the site is as it was");
  }
}

}  // namespace

void Laboratory::Start() {
  if (Runs()) return;
  RequireData();
  mark_ = TakeMark();
  try {
    StartMarked();
  } catch (...) {
    process_.reset();
    mark_.reset();
    throw;
  }
}

void Laboratory::StartMarked() {
  const DirectoryTurn turn;
  if (const auto left_over = RememberedLaboratory()) PutBack(*left_over);
  plan_ = PlanLaboratory();
  process_ = std::make_unique<LaboratoryProcess>(ready_limit_);
  plan_.changes.settings = PlanSettings(process_->Places());
  RememberLaboratory(plan_.changes);
  PointOrPutBack(plan_.changes);
}

std::vector<std::string> Laboratory::Stop() {
  if (!Runs()) return {};
  std::vector<std::string> left;
  {
    const DirectoryTurn turn;
    left = PutBack(plan_.changes);
  }
  process_.reset();
  mark_.reset();
  return left;
}

std::vector<std::string> PutBackLeftOver() {
  const auto mark = TakeMark();
  const DirectoryTurn turn;
  const auto changes = RememberedLaboratory();
  return changes ? PutBack(*changes) : std::vector<std::string>();
}

std::string Listed(const std::vector<std::string>& things) {
  std::string text;
  for (std::size_t i = 0; i < things.size(); ++i)
    text += (i == 0 ? "" : i + 1 < things.size() ? ", " : " and ") + things[i];
  return text;
}

std::string LeftText(const std::vector<std::string>& left) {
  return left.empty() ? "" : "Not put back, because somebody changed it meanwhile: " + Listed(left) + ".";
}

}  // namespace site
