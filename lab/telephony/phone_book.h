// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "lab/telephony/at_commands.h"

namespace lab {

/// Who is behind which number.
struct PhoneBook {
  std::vector<std::string> numeric, alphanumeric;
};

/// A call as it is answered.
struct Call {
  bool is_numeric = false;  ///< a terminal that hears keyed digits; else one that speaks to modems
  std::string number;       ///< what was dialed, access digits included
  std::string keyed;        ///< what was keyed after it
};

/// A number of the book is found behind any access digits. For others the way of dialing decides: who keeps the modem in
/// command state has keyed the message, behind the last pause; who waits for a carrier wants to speak.
Call WhoAnswers(const PhoneBook& book, const DialString& dial);

}  // namespace lab
