// SPDX-License-Identifier: MIT
#include <unistd.h>

#include <filesystem>

#include "server/child_process.h"
#include "server/command_line.h"
#include "server/recipient.h"
#include "server/transports/transports.h"

namespace alertserver {
namespace {

class ProgramLaunch : public Transport {
 public:
  std::vector<Step> Steps(const Context&) override {
    return {CheckTargetStep("a program is started"),
            {"Find the program", [this](Context& context) { return Find(context); }},
            {"Read the command line", [this](Context& context) { return ReadCommandLine(context); }},
            {"Run the program", [this](Context& context) { return Run(context); }}};
  }

 private:
  StepOutcome Find(const Context& context) {
    program_ = context.job.subject;
    std::error_code none;
    if (!program_.starts_with('/'))
      return StepOutcome::Failed(
          Verdict::kNotPossible, program_,
          "The program is not named by a whole path of this machine (\"/usr/bin/...\").", Field::kSubject);
    if (!std::filesystem::is_regular_file(program_, none))
      return StepOutcome::Failed(Verdict::kNotReached, program_, "There is no such program on this machine.",
                                 Field::kSubject);
    if (access(program_.c_str(), X_OK) != 0)
      return StepOutcome::Failed(Verdict::kRefused, program_,
                                 "The file may not be run as a program by the account of the alert server.",
                                 Field::kSubject);
    return StepOutcome::Done(program_);
  }

  /// The words are told apart before keywords are filled in, so that no value becomes two words.
  StepOutcome ReadCommandLine(const Context& context) {
    const StoredText& stored = context.job.response.message;
    const auto words = SplitCommandLine(stored.text);
    if (!words)
      return StepOutcome::Failed(Verdict::kRefused, "",
                                 "The command line has a quotation mark that is not closed.",
                                 Field::kMessage);
    KeywordFiller filler(stored.keywords, context.job.keyword_sources);
    arguments_ = {program_};
    for (const std::string& word : *words) arguments_.push_back(filler.Fill(word));
    return StepOutcome::Done(std::to_string(words->size()) + " arguments");
  }

  StepOutcome Run(Context& context) {
    context.transcript.Note("Started without a shell: " + JoinForShow(arguments_));
    const ChildResult result =
        RunChild(arguments_, "", std::min(context.settings.program_limit, context.Left()));
    NoteOutput(result, context.transcript);
    if (result.end == ChildResult::End::kExited && result.status == 0)
      return StepOutcome::Delivered("exit status 0");
    return ChildFailure(result, "program", Field::kSubject);
  }

  std::string program_;
  std::vector<std::string> arguments_;
};

}  // namespace

TransportPtr MakeProgramLaunch() { return std::make_unique<ProgramLaunch>(); }

}  // namespace alertserver
