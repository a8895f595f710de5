// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <exception>
#include <functional>
#include <string>
#include <vector>

#include "desktops/scripted/scripted_desktop.h"

namespace console_operator {

class OperatedWindow;

/// Whether the first of the windows has to open.
enum class Opens { kSurely, kMaybe };

/// The desktop of a program that works windows in a person's place: it fills the same fields and presses the same buttons,
/// so that what a window refuses is refused here, by the same code and in the same words. Current while it lives.
class WindowOperator : public desktops::ScriptedDesktop {
 public:
  /// What is done in a window. What it throws cancels the window and comes out of Work.
  using Story = std::function<void(OperatedWindow&)>;

  /// Runs what opens windows, one after another; each is worked by the next story. Windows from the story's own
  /// presses have stories of their own (OperatedWindow::Open). Throws what the first story threw that failed, and a
  /// Failure (kInvalid) with what was said where the first window did not open; those after it may stay away.
  void Work(const std::function<void()>& action, std::vector<Story> stories, Opens first = Opens::kSurely);

  /// Whether questions are answered Yes; they are left otherwise.
  void AnswerYes(bool yes) { answer_yes_ = yes; }
  /// What messages said since Forget, one behind another. A question that was answered Yes is not among them.
  const std::string& Said() const { return said_; }
  void Forget() { said_.clear(); }
  /// Throws a Failure (kInvalid) with what was said, or with `otherwise` where nothing was.
  [[noreturn]] void Refuse(const std::string& otherwise) const;

  /// Throws one where anything was said: for what goes on after a message as if nothing were.
  void RequireQuiet() const {
    if (!said_.empty()) Refuse(said_);
  }

  int RunModal(platform::ui::Modal& modal) override;
  platform::ui::Answer ShowMessage(const platform::ui::Message& message) override;
  void Sleep(std::uint32_t milliseconds) override;

 private:
  /// Of several failures the first is told.
  void Note(std::exception_ptr failure);
  void Follow(const Story& story, platform::ui::Modal& modal, desktops::Person& person);

  std::deque<Story> stories_;
  std::exception_ptr failure_;
  std::string said_;
  bool answer_yes_ = false;
};

}  // namespace console_operator
