// SPDX-License-Identifier: MIT
#include "lab/telephony/modem.h"

#include "platform/base/utf8.h"

namespace lab {

Modem::Modem(const PhoneBook& book, const ModemTimes& times, const PagerSetup& pager, DeviceFaults& faults,
             DeviceFaults& pager_faults, ArrivalSink sink)
    : book_(book),
      times_(times),
      pager_(pager),
      faults_(faults),
      pager_faults_(pager_faults),
      sink_(std::move(sink)),
      escape_(times.guard) {}

bool Modem::Waits() const {
  return Session::Waits() || connect_at_ >= 0 || (remote_ && remote_->Waits()) || escape_.Waits();
}

void Modem::Take(std::string_view bytes, Millis now) {
  now_ = now;
  if (faults_.Has(Fault::kSilent)) return;
  if (is_online_) return TakeOnline(bytes);
  for (const char byte : bytes) TakeCommandByte(byte);
}

void Modem::TakeOnline(std::string_view bytes) {
  const std::string data = escape_.Take(bytes, now_);
  if (remote_ && !data.empty()) remote_->Take(data, now_);
}

/// A byte that arrives while the number is being dialed gives the call up.
void Modem::TakeCommandByte(char byte) {
  if (connect_at_ >= 0) {
    PutDown();
    return Result("NO CARRIER", 3);
  }
  if (echo_ && byte != '\n') Say({byte}, now_);
  if (byte == '\r') return Obey(std::exchange(line_, ""));
  if (byte == '\b' && !line_.empty()) line_.pop_back();
  if (byte >= ' ' && line_.size() < kLongestLine) line_ += byte;
}

/// What does not begin with AT is noise, such as what a caller sends to find out the speed.
void Modem::Obey(std::string_view line) {
  while (!line.empty() && line.front() == ' ') line.remove_prefix(1);
  if (!platform::StartsWithIgnoringCase(line, "AT")) return;
  const auto commands = ParseAtLine(line.substr(2));
  if (!commands || faults_.Has(Fault::kError)) return Result("ERROR", 4);
  for (const AtCommand& command : *commands)
    if (!Do(command)) return;
  Result("OK", 0);
}

/// False when the line has had its result.
bool Modem::Do(const AtCommand& command) {
  const std::string& name = command.name;
  const bool is_zero = command.argument.empty() || command.argument == "0";
  if (name == "E") echo_ = !is_zero;
  if (name == "V") words_ = !is_zero;
  if (name == "Z" || name == "&F") echo_ = words_ = true;
  if (name == "H" && is_zero) PutDown();
  if (name == "O" && remote_) return is_online_ = true, Result("CONNECT", 1), false;
  if (name == "D") return Dial(command), false;
  return true;
}

void Modem::Dial(const AtCommand& command) {
  const DialString dial = ParseDialString(command.argument);
  const Call call = WhoAnswers(book_, dial);
  const Millis keyed = dial.pauses * times_.comma;
  sink_({faults_.Device(), "dialed", {{"string", command.argument}, {"number", call.number}}});
  if (faults_.Use(Fault::kNoDialTone)) return Result("NO DIALTONE", 6);
  if (faults_.Use(Fault::kBusy)) return Result("BUSY", 7, times_.ring);
  if (faults_.Use(Fault::kNoAnswer)) return Result("NO ANSWER", 8, 4 * times_.ring);
  if (faults_.Use(Fault::kNoCarrier) || call.number.empty()) return Result("NO CARRIER", 3, 2 * times_.ring);
  if (call.is_numeric) {
    sink_({pager_faults_.Device(),
           "digits",
           {{"number", call.number}, {"digits", call.keyed}, {"pauses", dial.pauses}}});
    // Such a terminal has no carrier: who waits for one waits in vain.
    return dial.stays_in_commands ? Result("OK", 0, keyed) : Result("NO CARRIER", 3, keyed + times_.ring);
  }
  connect_at_ = now_ + keyed + times_.ring;
}

void Modem::Pass(Millis now) {
  now_ = now;
  if (connect_at_ >= 0 && now >= connect_at_) Connect();
  if (escape_.Escaped(now)) is_online_ = false, Result("OK", 0);
  if (!remote_) return;
  const std::string said = remote_->Due(now);
  if (is_online_ && !said.empty()) Say(said, now);
  if (!remote_->IsOver()) return;
  PutDown();
  Result("NO CARRIER", 3);
}

void Modem::Connect() {
  connect_at_ = -1;
  is_online_ = true;
  escape_.Begin(now_);
  Result("CONNECT 2400", 10);
  remote_ = std::make_unique<PagerTerminal>(pager_, pager_faults_, sink_);
}

void Modem::PutDown() {
  connect_at_ = -1;
  is_online_ = false;
  remote_.reset();
}

void Modem::HangUp() {
  PutDown();
  SayNothingMore();
  line_.clear();
}

void Modem::Result(const char* words, int code, Millis delay) {
  const Millis at = now_ + delay + (faults_.Has(Fault::kSlow) ? times_.slow : 0);
  Say(words_ ? "\r\n" + std::string(words) + "\r\n" : std::to_string(code) + "\r", at);
}

}  // namespace lab
