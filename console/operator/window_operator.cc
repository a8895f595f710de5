// SPDX-License-Identifier: MIT
#include "console/operator/window_operator.h"

#include <chrono>
#include <thread>
#include <utility>

#include "console/operator/operated_window.h"
#include "console/site/failure.h"

namespace console_operator {

using platform::ui::Answer;
using platform::ui::Buttons;
using platform::ui::Modal;
using site::Failure;

namespace {

/// Without the screen behind it, on which there may be secrets.
std::string FirstSentence(const std::string& text) { return text.substr(0, text.find("; on the screen")); }

}  // namespace

void WindowOperator::Work(const std::function<void()>& action, std::vector<Story> stories, Opens first) {
  const std::size_t count = stories.size();
  auto outer = std::exchange(stories_, {stories.begin(), stories.end()});
  action();
  const bool opened = stories_.size() < count;
  stories_ = std::move(outer);
  if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
  if (!opened && first == Opens::kSurely) Refuse("the window did not open");
  if (const auto failures = script.Failures(); !failures.empty()) throw std::runtime_error(failures.front());
}

void WindowOperator::Refuse(const std::string& otherwise) const {
  throw Failure(site::kInvalid, said_.empty() ? otherwise : said_);
}

// What a story throws may not pass through the program that opened the window.
void WindowOperator::Follow(const Story& story, Modal& modal, desktops::Person& person) {
  OperatedWindow window(*this, modal, person);
  try {
    story(window);
    if (!modal.Ended()) Refuse("the window stayed open");
  } catch (const desktops::PersonError& error) {
    Note(std::make_exception_ptr(Failure(site::kInvalid, FirstSentence(error.what()))));
  } catch (...) {
    Note(std::current_exception());
  }
  if (!modal.Ended()) script.Guard([&] { modal.OnCloseRequest(); });
  modal.EndModal(platform::ui::kCancel);
}

void WindowOperator::Note(std::exception_ptr failure) {
  if (!failure_) failure_ = std::move(failure);
}

// A window that nobody expected is one of those that tell or offer something: it is closed.
int WindowOperator::RunModal(Modal& modal) {
  Story story = [](OperatedWindow& window) { window.Close(); };
  if (!stories_.empty()) {
    story = std::move(stories_.front());
    stories_.pop_front();
  }
  script.ExpectWindow(modal.AsWindow().Label(),
                      [&](desktops::Person& person) { Follow(story, modal, person); });
  return ScriptedDesktop::RunModal(modal);
}

Answer WindowOperator::ShowMessage(const platform::ui::Message& message) {
  RunPosted();
  if (answer_yes_ && message.buttons != Buttons::kOk) return Answer::kYes;
  said_ += (said_.empty() ? "" : " ") + message.text;
  return desktops::AnswerOfLeaving(message.buttons);
}

// Here the program really waits: for another console's lock, say.
void WindowOperator::Sleep(std::uint32_t milliseconds) {
  ScriptedDesktop::Sleep(milliseconds);
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

}  // namespace console_operator
