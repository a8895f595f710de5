// SPDX-License-Identifier: MIT
#include "server/runner.h"

#include <exception>

namespace alertserver {
namespace {

using Kind = StepOutcome::Kind;

/// An answer is a cell of a table.
constexpr std::size_t kMaxSaid = 1000;

StepOutcome Guarded(const Step& step, Context& context) {
  try {
    return step.run(context);
  } catch (const std::exception& error) {
    return StepOutcome::Failed(Verdict::kNotPossible, error.what(),
                               "The server itself failed in the step \"" + step.name + "\".");
  }
}

const char* ResultText(Kind kind) {
  return kind == Kind::kDone ? "done" : kind == Kind::kNotNeeded ? "not needed" : "failed";
}

/// A modem's fields are those of the modem that was tried.
std::string RecordOf(const StepOutcome& outcome, const Context& context) {
  if (outcome.field == Field::kNothing) return {};
  const bool is_modems = IsOfModem(outcome.field) && context.modem != nullptr;
  return is_modems ? context.modem->modemName : outcome.record;
}

/// Puts together what the steps came to.
class Tally {
 public:
  void Add(const Step& step, const StepOutcome& outcome) {
    if (!outcome.settles || (step.always && outcome.kind == Kind::kFailed)) return;
    if (!settled_ || outcome.verdict > result_.verdict) Take(outcome);
    settled_ = true;
    if (outcome.kind == Kind::kFailed) stopped_ = !outcome.goes_on;
  }
  bool Stopped() const { return stopped_; }

  RunResult Result() && {
    if (!settled_) result_.explanation = "No step told what became of the message.";
    return std::move(result_);
  }
  RunResult& Rows() { return result_; }

 private:
  void Take(const StepOutcome& outcome) {
    result_.verdict = outcome.verdict;
    result_.explanation = outcome.explanation;
    result_.field = NameOf(outcome.field);
  }

  RunResult result_;
  bool settled_ = false;
  bool stopped_ = false;
};

}  // namespace

RunResult RunSteps(const std::vector<Step>& steps, Context& context) {
  Tally tally;
  for (const Step& step : steps) {
    if (tally.Stopped() && !step.always) continue;
    const auto started = Context::Clock::now();
    const StepOutcome outcome = Guarded(step, context);
    const auto taken = std::chrono::duration_cast<std::chrono::milliseconds>(Context::Clock::now() - started);
    tally.Rows().steps.push_back({step.name, ResultText(outcome.kind),
                                  static_cast<std::uint64_t>(taken.count()),
                                  context.transcript.PlainLine(outcome.said, kMaxSaid),
                                  std::string(NameOf(outcome.field)), RecordOf(outcome, context)});
    tally.Add(step, outcome);
  }
  return std::move(tally).Result();
}

}  // namespace alertserver
