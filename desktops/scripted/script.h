// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "desktops/scripted/person.h"
#include "platform/ui/message.h"

namespace desktops {

/// True when a message with those buttons can be answered so.
bool Offers(platform::ui::Buttons buttons, platform::ui::Answer answer);
/// The answer of who goes away from a message: its Cancel, its No, or its only button.
platform::ui::Answer AnswerOfLeaving(platform::ui::Buttons buttons);

/// What is expected to appear on the screen, in order, and what the person does there. One script serves the
/// scripted desktop and the one of real widgets. A window, message or file dialog that is not next in the
/// script is a failure by name; it is then cancelled (a question answered Cancel, or No). Windows opened from
/// within a story take their expectations from the same queue, so nested ones are written in the order they
/// appear.
class Script {
 public:
  using Story = std::function<void(Person&)>;

  /// A dialog or sheet with that caption. It must have ended when the story returns.
  void ExpectWindow(std::string caption, Story story);
  /// A message with exactly that text; the answer must be one of its buttons.
  void ExpectMessage(std::string text, platform::ui::Answer answer = platform::ui::Answer::kOk);
  /// A file or folder dialog with that title, in which `path` is chosen; "" cancels it. A dialog that wants
  /// existing files refuses any other.
  void ExpectFileDialog(std::string title, std::string path);
  /// The same, with something done in its preview area first: the highlighted file is told, then the story
  /// runs.
  void ExpectFileDialog(std::string title, std::string path, Story story);

  /// What went wrong so far, expectations not met included; empty when all went as written.
  std::vector<std::string> Failures() const;
  void AddFailure(std::string text) { failures_.push_back(std::move(text)); }

  struct Expectation {
    enum class Kind { kWindow, kMessage, kFile };
    Kind kind;
    std::string text;
    Story story;
    platform::ui::Answer answer = platform::ui::Answer::kOk;
    std::string path;
  };
  /// Takes the next expectation when it is of that kind and text; else notes the failure and answers false.
  bool Take(Expectation::Kind kind, const std::string& text, Expectation& taken);
  /// Runs a story; what it throws becomes a failure.
  void Run(const Story& story, Person& person);
  /// Runs what a person set off; what it throws becomes a failure. Answers whether it threw nothing.
  bool Guard(const std::function<void()>& action);
  /// The next expectation of a message, taken; the answer to give it.
  platform::ui::Answer AnswerTo(const platform::ui::Message& message);

  /// Recorded, not slept.
  std::vector<std::uint32_t> sleeps;
  int beeps = 0;
  /// Texts of all messages shown, in order.
  std::vector<std::string> messages;
  /// The titles of the same.
  std::vector<std::string> titles;

 private:
  std::deque<Expectation> expected_;
  std::vector<std::string> failures_;
};

}  // namespace desktops
