// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace alertserver {

/// What a paging terminal says (telocator alphanumeric protocol, version 1.8).
struct PagerAnswer {
  enum class Kind {
    kWhoIsIt,      ///< "ID=": log in
    kAccepted,     ///< ACK
    kAgain,        ///< NAK: damaged, or the login is wanted once more
    kRejected,     ///< RS: give this page up
    kGoAhead,      ///< ESC [p: pages may come
    kDisconnected  ///< ESC EOT: the terminal hangs up
  };
  Kind kind;
  int code = 0;      ///< of three digits, 0 where there was none
  std::string text;  ///< the messages before the sign, their code in front; "" for none
};

/// Finds such answers in what arrives, whose top bits are parity. Line feeds are passed over, and so is noise. Keeps no more
/// than a few hundred bytes.
class PagerAnswers {
 public:
  void Take(std::string_view bytes);
  std::optional<PagerAnswer> Next();

 private:
  PagerAnswer Make(PagerAnswer::Kind kind);
  std::optional<PagerAnswer> TakeLine(std::string_view line);

  std::string bytes_, text_;
};

}  // namespace alertserver
