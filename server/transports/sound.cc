// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <unistd.h>

#include <string_view>

#include "platform/base/descriptor.h"
#include "server/child_process.h"
#include "server/recipient.h"
#include "server/transports/transports.h"

// Sounds and speech, by the programs that this machine has for them. Whether anybody hears them no program knows.

namespace alertserver {
namespace {

using Words = std::vector<std::string>;

/// The programs that can do it, the best first.
const Words* FirstThere(const std::vector<Words>& programs, std::string& path) {
  for (const Words& words : programs)
    if (path = FindProgram(words.front()); !path.empty()) return &words;
  return nullptr;
}

std::string Names(const std::vector<Words>& programs) {
  std::string names;
  for (const Words& words : programs) names += (names.empty() ? "" : ", ") + words.front();
  return names;
}

/// A transport that ends with a program of the system.
class BySystemProgram : public Transport {
 protected:
  BySystemProgram(std::string what, std::vector<Words> programs)
      : what_(std::move(what)), programs_(std::move(programs)) {}

  Step FindProgramStep() {
    return {"Find the " + what_, [this](Context&) { return Find(); }};
  }
  StepOutcome Run(Context& context, const std::string& input, Field field) {
    const ChildResult result =
        RunChild(arguments_, input, std::min(context.settings.sound_limit, context.Left()));
    NoteOutput(result, context.transcript);
    if (result.end == ChildResult::End::kExited && result.status == 0)
      return StepOutcome::Sent(arguments_.front() + " ended without an error");
    return ChildFailure(result, what_, field);
  }
  void AddArgument(std::string argument) { arguments_.push_back(std::move(argument)); }

 private:
  StepOutcome Find() {
    std::string path;
    const Words* const words = FirstThere(programs_, path);
    if (words == nullptr)
      return StepOutcome::Failed(Verdict::kNotPossible, "",
                                 "Not possible from this server: its machine has none of the programs " +
                                     Names(programs_) + ". Install one of them.");
    arguments_ = *words;
    arguments_.front() = path;
    return StepOutcome::Done(path);
  }

  const std::string what_;
  const std::vector<Words> programs_;
  Words arguments_;
};

class WaveFile : public BySystemProgram {
 public:
  WaveFile() : BySystemProgram("player", {{"pw-play"}, {"paplay"}, {"aplay", "-q"}}) {}
  std::vector<Step> Steps(const Context&) override {
    return {CheckTargetStep("a sound is played"),
            {"Read the file", [](Context& context) { return ReadFile(context.job.subject); }},
            FindProgramStep(),
            {"Play the sound", [this](Context& context) {
               AddArgument(context.job.subject);
               return Run(context, "", Field::kSubject);
             }}};
  }

 private:
  /// Of a sound file the beginning tells that it is one.
  static StepOutcome ReadFile(const std::string& path) {
    if (!path.starts_with('/'))
      return StepOutcome::Failed(
          Verdict::kNotPossible, path,
          "The sound is not named by a whole path of this machine (\"/usr/share/...\").", Field::kSubject);
    const platform::Descriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file.IsOpen())
      return StepOutcome::Failed(
          Verdict::kNotReached, path,
          "The file cannot be read on this machine by the account of the alert server.", Field::kSubject);
    char header[12] = "";
    const ssize_t count = read(file.Get(), header, sizeof header);
    const std::string_view begins(header, count > 0 ? static_cast<std::size_t>(count) : 0);
    if (begins.size() == sizeof header && begins.starts_with("RIFF") && begins.ends_with("WAVE"))
      return StepOutcome::Done(path);
    return StepOutcome::Failed(Verdict::kRefused, path, "The file is no wave sound.", Field::kSubject);
  }
};

/// The text is read from standard input: in a command line everybody on the machine could see it.
class TextToSpeech : public BySystemProgram {
 public:
  TextToSpeech() : BySystemProgram("speech program", {{"espeak-ng", "--stdin"}, {"spd-say", "-e", "-w"}}) {}
  std::vector<Step> Steps(const Context&) override {
    return {CheckTargetStep("a text is spoken"),
            FindProgramStep(),
            {"Speak the text",
             [this](Context& context) { return Run(context, context.job.message, Field::kMessage); }}};
  }
};

}  // namespace

TransportPtr MakeWaveFile() { return std::make_unique<WaveFile>(); }
TransportPtr MakeTextToSpeech() { return std::make_unique<TextToSpeech>(); }

}  // namespace alertserver
