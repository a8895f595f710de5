// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace alertserver {

/// A result code of a modem (ITU-T V.250), in words or as a number.
struct ModemAnswer {
  enum class Kind { kOk, kConnect, kNoCarrier, kError, kNoDialTone, kBusy, kNoAnswer, kBarred };
  Kind kind;
  std::string text;  ///< as the modem wrote it
};

/// Finds result codes in what a modem sends. Echoes of commands, "RINGING" and noise are passed over. Keeps no more than a
/// line of a few hundred bytes, whatever arrives.
class ModemAnswers {
 public:
  void Take(std::string_view bytes);
  /// The next answer among the bytes that were taken, if there is one already.
  std::optional<ModemAnswer> Next();
  /// What came behind the answers. After kConnect it is the other side's.
  std::string TakeRest();

 private:
  std::string bytes_;
};

}  // namespace alertserver
