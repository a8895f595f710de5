// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lab/arrival.h"
#include "lab/faults.h"
#include "lab/session.h"

namespace lab {

/// How the alphanumeric paging terminal is set up.
struct PagerSetup {
  std::string password;        ///< what callers must log in with; "" for any
  std::size_t longest = 1000;  ///< the longest message that it takes, in characters
  Millis slow = 2000;          ///< how long a slow terminal thinks
};

/// The three characters behind a block: the sum of its bytes from STX to its end, without their top bits.
std::string PagerChecksum(std::string_view block);

/// The side of the paging provider in the telocator alphanumeric protocol (TAP, version 1.8), automatic mode.
class PagerTerminal : public Session {
 public:
  static constexpr std::size_t kLongestBlock = 256;
  static constexpr int kMostRefusals = 3;

  PagerTerminal(const PagerSetup& setup, DeviceFaults& faults, ArrivalSink sink)
      : setup_(setup), faults_(faults), sink_(std::move(sink)) {}

  void Take(std::string_view bytes, Millis now) override;

 private:
  enum class Stage { kGreeting, kLogin, kBlocks };

  void TakeByte(char byte);
  void TakeLine(const std::string& line);
  void LogIn(std::string_view line);
  void RefuseLogin(const std::string& why);
  void TakeBlock(std::string_view block);
  void TakeTransaction();
  void SignOff();
  void Answer(const std::string& text, char sign);
  void Reply(const std::string& bytes);
  void Disconnect();

  const PagerSetup setup_;
  DeviceFaults& faults_;
  const ArrivalSink sink_;
  Stage stage_ = Stage::kGreeting;
  Millis now_ = 0;
  std::string line_, fields_;
  int refusals_ = 0, blocks_ = 0, pages_ = 0, pages_refused_ = 0;
};

}  // namespace lab
