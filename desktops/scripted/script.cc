// SPDX-License-Identifier: MIT
#include "desktops/scripted/script.h"

#include <exception>

namespace desktops {

using platform::ui::Answer;
using platform::ui::Buttons;

namespace {

std::string Describe(Script::Expectation::Kind kind, const std::string& text) {
  switch (kind) {
    case Script::Expectation::Kind::kWindow:
      return "window \"" + text + "\"";
    case Script::Expectation::Kind::kMessage:
      return "message \"" + text + "\"";
    case Script::Expectation::Kind::kFile:
      return "file dialog \"" + text + "\"";
  }
  return text;
}

const char* NameOf(Answer answer) {
  switch (answer) {
    case Answer::kOk:
      return "OK";
    case Answer::kYes:
      return "Yes";
    case Answer::kNo:
      return "No";
    case Answer::kCancel:
      return "Cancel";
  }
  return "?";
}

}  // namespace

bool Offers(Buttons buttons, Answer answer) {
  switch (answer) {
    case Answer::kOk:
      return buttons == Buttons::kOk;
    case Answer::kYes:
    case Answer::kNo:
      return buttons != Buttons::kOk;
    case Answer::kCancel:
      return buttons == Buttons::kYesNoCancel;
  }
  return false;
}

Answer AnswerOfLeaving(Buttons buttons) {
  if (buttons == Buttons::kOk) return Answer::kOk;
  return buttons == Buttons::kYesNo || buttons == Buttons::kNoYes ? Answer::kNo : Answer::kCancel;
}

void Script::ExpectWindow(std::string caption, Story story) {
  expected_.push_back({Expectation::Kind::kWindow, std::move(caption), std::move(story), Answer::kOk, {}});
}

void Script::ExpectMessage(std::string text, Answer answer) {
  expected_.push_back({Expectation::Kind::kMessage, std::move(text), {}, answer, {}});
}

void Script::ExpectFileDialog(std::string title, std::string path) {
  ExpectFileDialog(std::move(title), std::move(path), {});
}

void Script::ExpectFileDialog(std::string title, std::string path, Story story) {
  expected_.push_back(
      {Expectation::Kind::kFile, std::move(title), std::move(story), Answer::kOk, std::move(path)});
}

std::vector<std::string> Script::Failures() const {
  std::vector<std::string> all = failures_;
  for (const Expectation& e : expected_) all.push_back("Never appeared: " + Describe(e.kind, e.text));
  return all;
}

bool Script::Take(Expectation::Kind kind, const std::string& text, Expectation& taken) {
  if (expected_.empty() || expected_.front().kind != kind || expected_.front().text != text) {
    const std::string next =
        expected_.empty() ? "nothing" : Describe(expected_.front().kind, expected_.front().text);
    AddFailure("Unexpected " + Describe(kind, text) + "; expected " + next);
    return false;
  }
  taken = std::move(expected_.front());
  expected_.pop_front();
  return true;
}

void Script::Run(const Story& story, Person& person) {
  if (story) Guard([&] { story(person); });
}

bool Script::Guard(const std::function<void()>& action) {
  try {
    action();
    return true;
  } catch (const PersonError& error) {
    AddFailure(error.what());
  } catch (const std::exception& error) {
    AddFailure(std::string("A handler or story threw: ") + error.what());
  } catch (...) {
    AddFailure("A handler or story threw what is no exception");
  }
  return false;
}

Answer Script::AnswerTo(const platform::ui::Message& message) {
  messages.push_back(message.text);
  titles.push_back(message.title);
  Expectation expected;
  if (!Take(Expectation::Kind::kMessage, message.text, expected)) return AnswerOfLeaving(message.buttons);
  if (Offers(message.buttons, expected.answer)) return expected.answer;
  AddFailure("No button " + std::string(NameOf(expected.answer)) + " in " +
             Describe(Expectation::Kind::kMessage, message.text));
  return AnswerOfLeaving(message.buttons);
}

}  // namespace desktops
