// SPDX-License-Identifier: MIT
#include "server/serial/pager_session.h"

#include "server/serial/pager_blocks.h"

namespace alertserver {
namespace {

using Kind = PagerAnswer::Kind;
using Limit = Conversation::Limit;

constexpr int kMostRetries = 3;

StepOutcome Broken(const char* what, const std::string& said = {}) {
  return StepOutcome::Failed(Verdict::kNotReached, said, what, Field::kProviderPhone);
}

/// What a terminal's code says is wrong (version 1.8, appendix A).
StepOutcome Rejected(const PagerAnswer& answer) {
  constexpr int kTooLong = 513, kTooManyCharacters = 517;
  if (answer.code == kTooLong || answer.code == kTooManyCharacters)
    return StepOutcome::Failed(Verdict::kRefused, answer.text,
                               "The message is longer than the provider takes.", Field::kMaxTextLength);
  return StepOutcome::Failed(Verdict::kRefused, answer.text,
                             "The provider rejects the page. Is the identification of the pager right?",
                             Field::kAddress);
}

/// A block that was not accepted.
StepOutcome NotAccepted(const std::optional<PagerAnswer>& answer) {
  if (!answer) return Broken("The paging terminal does not answer the message.");
  if (answer->kind == Kind::kRejected) return Rejected(*answer);
  if (answer->kind != Kind::kAgain) return Broken("The paging terminal broke off.", answer->text);
  return StepOutcome::Failed(
      Verdict::kRefused, answer->text,
      "The message arrives damaged however often it is sent. Are speed, data bits and parity "
      "those of the provider?",
      Field::kBaudRate);
}

/// Pages that were taken before are on their way, and stay so.
StepOutcome AfterPages(std::size_t taken, std::size_t all, StepOutcome failure) {
  if (taken > 0) {
    const std::string counts = std::to_string(taken) + " of " + std::to_string(all);
    failure.explanation += " The provider has taken " + counts + " pages.";
  }
  return failure;
}

StepOutcome LoginRefused(const std::string& said) {
  return StepOutcome::Failed(
      Verdict::kRefused, said,
      "The provider refuses the login. Is the number that of a line without a password?",
      Field::kProviderPhone);
}

}  // namespace

std::optional<PagerAnswer> PagerSession::Hear(Conversation& line, Limit limit) {
  auto answer = line.Await(answers_, limit);
  if (answer && answer->kind == Kind::kDisconnected) has_ended_ = true;
  return answer;
}

StepOutcome PagerSession::Greet(Conversation& line) {
  constexpr Limit kBetween(2'000);
  constexpr int kMostCalls = 5;
  for (int calls = 0; calls < kMostCalls && !has_ended_; ++calls) {
    if (!line.Say("\r")) break;
    const auto answer = Hear(line, kBetween);
    if (answer && answer->kind == Kind::kWhoIsIt) return StepOutcome::Done("ID=");
  }
  return Broken("Whoever answers the call does not behave as a paging terminal.");
}

/// A terminal that asks once more gets the same login once more; some ask because they heard two calls.
StepOutcome PagerSession::LogIn(Conversation& line, std::string_view password) {
  constexpr Limit kAnswer(10'000);
  const std::string login = "\x1BPG1" + std::string(password) + "\r";
  std::optional<PagerAnswer> answer;
  std::string accepted;
  int refusals = 0;
  for (bool must_send = true; refusals < kMostRetries;) {
    if (must_send && !line.Say(login)) break;
    answer = Hear(line, kAnswer);
    if (!answer || has_ended_) break;
    if (answer->kind == Kind::kAccepted) accepted = answer->text;
    if (answer->kind == Kind::kGoAhead) {
      is_logged_in_ = true;
      return StepOutcome::Done(accepted.empty() ? answer->text : accepted);
    }
    must_send = answer->kind == Kind::kAgain || answer->kind == Kind::kRejected;
    if (must_send) ++refusals;
  }
  return answer ? LoginRefused(answer->text) : Broken("The paging terminal does not answer the login.");
}

std::optional<PagerAnswer> PagerSession::SendBlock(Conversation& line, const std::string& block) {
  constexpr Limit kAnswer(15'000);
  std::optional<PagerAnswer> answer;
  for (int sent = 0; sent <= kMostRetries && !has_ended_; ++sent) {
    if (!line.Say(block)) return std::nullopt;
    answer = Hear(line, kAnswer);
    if (!answer || answer->kind != Kind::kAgain) return answer;
  }
  return answer;
}

StepOutcome PagerSession::Send(Conversation& line, std::string_view pager,
                               const std::vector<std::string>& pages) {
  std::string said;
  for (std::size_t taken = 0; taken < pages.size(); ++taken) {
    for (const std::string& block : PagerBlocks(pager, pages[taken])) {
      const auto answer = SendBlock(line, block);
      if (!answer || answer->kind != Kind::kAccepted)
        return AfterPages(taken, pages.size(), NotAccepted(answer));
      said = answer->text;
    }
  }
  return StepOutcome::Delivered(said);
}

StepOutcome PagerSession::SignOff(Conversation& line) {
  constexpr Limit kAnswer(5'000);
  if (!is_logged_in_ || has_ended_)
    return StepOutcome::NotNeeded("The terminal has hung up, or was never logged in to.");
  line.Say("\x04\r");
  std::string said;
  while (const auto answer = Hear(line, kAnswer)) {
    said = answer->text;
    if (has_ended_) return StepOutcome::Done(said);
  }
  return StepOutcome::Done("The terminal did not say goodbye.");
}

}  // namespace alertserver
