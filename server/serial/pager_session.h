// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "server/serial/conversation.h"
#include "server/serial/pager_answers.h"

namespace alertserver {

/// A sender's part in a call to a paging terminal (telocator alphanumeric protocol, version 1.8, automatic mode).
class PagerSession {
 public:
  /// What came before the session began, such as right behind a modem's answer.
  void Take(std::string_view bytes) { answers_.Take(bytes); }

  /// Calls the terminal until it asks who is there.
  StepOutcome Greet(Conversation& line);
  /// Logs in; records keep no password, so there is one only where a caller has it from elsewhere.
  StepOutcome LogIn(Conversation& line, std::string_view password = {});
  /// Sends the pages to one pager, each in as many blocks as it needs.
  StepOutcome Send(Conversation& line, std::string_view pager, const std::vector<std::string>& pages);
  /// Says goodbye, where the terminal still listens.
  StepOutcome SignOff(Conversation& line);
  /// The terminal said that it hangs up.
  bool HasEnded() const { return has_ended_; }

 private:
  std::optional<PagerAnswer> SendBlock(Conversation& line, const std::string& block);
  std::optional<PagerAnswer> Hear(Conversation& line, Conversation::Limit limit);

  PagerAnswers answers_;
  bool is_logged_in_ = false, has_ended_ = false;
};

}  // namespace alertserver
