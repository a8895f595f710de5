// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "lab/arrival.h"
#include "lab/faults.h"
#include "lab/session.h"
#include "lab/telephony/escape_watch.h"
#include "lab/telephony/pager_terminal.h"
#include "lab/telephony/phone_book.h"

namespace lab {

/// How long what takes time takes. All of it may be 0, for those in a hurry.
struct ModemTimes {
  Millis ring = 1500;   ///< until a call is answered, or is known not to be
  Millis comma = 2000;  ///< a pause in a dial string
  Millis guard = 1000;  ///< the silence around an escape
  Millis slow = 2000;
};

/// A modem with a telephone network behind it: commands as in ITU-T V.250, calls to the terminals of a phone book.
class Modem : public Session {
 public:
  static constexpr std::size_t kLongestLine = 512;

  Modem(const PhoneBook& book, const ModemTimes& times, const PagerSetup& pager, DeviceFaults& faults,
        DeviceFaults& pager_faults, ArrivalSink sink);

  void Take(std::string_view bytes, Millis now) override;
  void Pass(Millis now) override;
  void HangUp() override;
  bool Waits() const override;

 private:
  void TakeCommandByte(char byte);
  void Obey(std::string_view line);
  bool Do(const AtCommand& command);
  void Dial(const AtCommand& command);
  void Connect();
  void TakeOnline(std::string_view bytes);
  void PutDown();
  void Result(const char* words, int code, Millis delay = 0);

  const PhoneBook book_;
  const ModemTimes times_;
  const PagerSetup pager_;
  DeviceFaults& faults_;
  DeviceFaults& pager_faults_;
  const ArrivalSink sink_;
  std::string line_;
  bool echo_ = true, words_ = true, is_online_ = false;
  Millis now_ = 0, connect_at_ = -1;
  std::unique_ptr<PagerTerminal> remote_;
  EscapeWatch escape_;
};

}  // namespace lab
