// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "server/configuration.h"
#include "server/field.h"
#include "server/job.h"
#include "server/secrets.h"
#include "server/settings.h"
#include "server/verdict.h"

// A transport sends the messages of one type of service. It does so in steps, which the runner calls, times and reports
// (server/runner.h). So a transport cannot report what it did not do.

namespace alertserver {

/// What a step answers.
struct StepOutcome {
  enum class Kind {
    kDone,       ///< went on
    kNotNeeded,  ///< there was nothing to do; the next step follows
    kFailed      ///< the steps behind it are left out, unless they are always run
  };

  Kind kind = Kind::kDone;
  std::string said;  ///< what the other side said, or what was found out
  /// Of a failure: what became of the message. Of a step that went on: whether the receiver has it now, see Delivered
  /// and Sent; otherwise not looked at.
  Verdict verdict = Verdict::kNotReached;
  bool settles = false;  ///< `verdict` counts
  bool goes_on = false;  ///< the steps behind a failure are run all the same: they are about other receivers
  std::string explanation;        ///< of a failure: what happened and what to do, in sentences
  Field field = Field::kNothing;  ///< of a failure: what to correct
  std::string record;             ///< which of the field's list, as Of says

  static StepOutcome Done(std::string said = {}) {
    return {Kind::kDone, std::move(said), {}, false, false, {}, {}, {}};
  }
  static StepOutcome NotNeeded(std::string why) {
    return {Kind::kNotNeeded, std::move(why), {}, false, false, {}, {}, {}};
  }
  /// The step after which the receiver, or the next hop to it, is known to have the message.
  static StepOutcome Delivered(std::string said = {}) {
    return {Kind::kDone, std::move(said), Verdict::kDelivered, true, false, {}, {}, {}};
  }
  /// The step after which the message is gone, but nobody says that it arrived.
  static StepOutcome Sent(std::string said = {}) {
    return {Kind::kDone, std::move(said), Verdict::kSent, true, false, {}, {}, {}};
  }
  static StepOutcome Failed(Verdict verdict, std::string said, std::string explanation,
                            Field field = Field::kNothing) {
    return {Kind::kFailed, std::move(said), verdict, true, false, std::move(explanation), field, {}};
  }
  /// Names the record that has the field, where a site has several of its kind.
  StepOutcome Of(std::string name) && {
    record = std::move(name);
    return std::move(*this);
  }
  /// A failure that does not concern the steps behind it.
  StepOutcome AndGoOn() && {
    goes_on = true;
    return std::move(*this);
  }
};

/// All that was said, one line each, as the report has it, with secrets masked. What a transport knows to be one, such as
/// an answer to a login, it leaves out itself.
class Transcript {
 public:
  explicit Transcript(Secrets secrets = {}) : secrets_(std::move(secrets)) {}
  void Sent(std::string_view line) { Add("> ", line); }
  void Received(std::string_view line) { Add("< ", line); }
  void Note(std::string_view line) { Add("* ", line); }
  const std::string& Text() const { return text_; }

  /// What was said as one line without secrets, of which no more than `limit` bytes are kept. They are masked first: half
  /// a secret would not be found any more.
  std::string PlainLine(std::string_view said, std::size_t limit) const;

 private:
  /// Bytes that cannot be shown are written as "\x1B"; lines too many are left out.
  void Add(std::string_view mark, std::string_view line);

  Secrets secrets_;
  std::string text_;
};

/// What a delivery is made of. All of it outlives the steps.
struct Context {
  using Clock = std::chrono::steady_clock;

  const Job& job;
  const Service& service;
  const Configuration& configuration;
  const Settings& settings;
  /// The modem that this try uses: the service's own, or the backup's. Null where the service has none, or none was
  /// chosen.
  const ModemLink* modem = nullptr;
  /// When the step has to be over: the console does not wait for longer.
  Clock::time_point deadline = Clock::time_point::max();
  Transcript transcript{};

  std::chrono::milliseconds Left() const;
};

/// A step: its name, as the report has it ("Connect"), and what it does.
struct Step {
  std::string name;
  std::function<StepOutcome(Context&)> run;
  bool always =
      false;  ///< runs after a failure too: to hang up, to close. Its own failure changes no verdict.
};

/// Made anew for each try; keeps what its steps hand on to each other.
class Transport {
 public:
  virtual ~Transport() = default;
  /// The steps in their order, which may call into this object. Asked for once.
  virtual std::vector<Step> Steps(const Context& context) = 0;
};

using TransportPtr = std::unique_ptr<Transport>;

}  // namespace alertserver
