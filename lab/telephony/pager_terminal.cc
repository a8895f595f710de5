// SPDX-License-Identifier: MIT
#include "lab/telephony/pager_terminal.h"

#include "platform/base/base64.h"

namespace lab {
namespace {

constexpr char kStx = 0x02, kEtx = 0x03, kEot = 0x04, kAck = 0x06, kNak = 0x15, kEtb = 0x17, kRs = 0x1E,
               kUs = 0x1F;
constexpr std::string_view kLogin = "\x1BPG1";
constexpr std::string_view kGoAhead = "\x1B[p\r";

/// A block ends with CR too, but so do the fields within it.
bool IsWhole(std::string_view line) {
  if (!line.starts_with(kStx)) return true;
  return line.size() > 4 && std::string_view{"\x03\x17\x1F"}.find(line[line.size() - 4]) != line.npos;
}

}  // namespace

std::string PagerChecksum(std::string_view block) {
  unsigned sum = 0;
  for (const char c : block) sum += static_cast<unsigned char>(c) & 0x7F;
  return {static_cast<char>('0' + (sum >> 8 & 15)), static_cast<char>('0' + (sum >> 4 & 15)),
          static_cast<char>('0' + (sum & 15))};
}

void PagerTerminal::Take(std::string_view bytes, Millis now) {
  now_ = now;
  for (const char byte : bytes)
    if (!IsOver()) TakeByte(static_cast<char>(byte & 0x7F));
}

void PagerTerminal::TakeByte(char byte) {
  if (byte == '\n') return;
  if (byte != '\r') {
    if (line_.size() < 2 * kLongestBlock) line_ += byte;
  } else if (IsWhole(line_) || line_.size() >= 2 * kLongestBlock) {
    TakeLine(std::exchange(line_, ""));
  } else {
    line_ += byte;
  }
}

void PagerTerminal::TakeLine(const std::string& line) {
  if (stage_ == Stage::kGreeting) {
    if (faults_.Has(Fault::kGreetingMissing)) return;
    stage_ = Stage::kLogin;
    Reply("ID=");
    if (line.empty()) return;
  }
  if (stage_ == Stage::kLogin) return line.empty() ? Reply("ID=") : LogIn(line);
  if (faults_.Has(Fault::kSilent)) return;
  if (line == std::string{kEot}) return SignOff();
  if (line.starts_with(kStx)) TakeBlock(line);
}

void PagerTerminal::LogIn(std::string_view line) {
  if (!line.starts_with(kLogin)) return RefuseLogin("507 Not a login of this terminal");
  const std::string_view password = line.substr(kLogin.size());
  if (faults_.Use(Fault::kWrongPassword) || (!setup_.password.empty() && password != setup_.password))
    return RefuseLogin("509 Invalid password");
  stage_ = Stage::kBlocks;
  Reply("110 1.8\r");
  Reply(std::string{kAck} + "\r");
  Reply(std::string(kGoAhead));
}

void PagerTerminal::RefuseLogin(const std::string& why) {
  sink_({faults_.Device(), "login refused", {{"said", why}}});
  Answer(why, kNak);
  if (++refusals_ >= kMostRefusals) Disconnect();
}

void PagerTerminal::TakeBlock(std::string_view block) {
  if (block.size() < 5) return Answer("515 Not a block", kRs);
  const std::string_view summed = block.substr(0, block.size() - 3);
  if (faults_.Use(Fault::kChecksum) || PagerChecksum(summed) != block.substr(block.size() - 3)) {
    sink_({faults_.Device(), "block refused", {{"said", "514 Checksum error"}}});
    Answer("514 Checksum error", kNak);
    if (++refusals_ > kMostRefusals) Disconnect();
    return;
  }
  ++blocks_;
  fields_ += summed.substr(1, summed.size() - 2);
  // A field that goes on in the next block is cut by US; by ETB too, in terminals that know but that one.
  if (summed.back() != kEtx && fields_.find('\r') != fields_.rfind('\r') && fields_.ends_with('\r'))
    fields_.pop_back();
  if (summed.back() == kEtx) return TakeTransaction();
  fields_.size() > 16 * kLongestBlock ? Disconnect() : Answer("", kAck);
}

/// The pager's number, then the message, whose further lines are further fields.
void PagerTerminal::TakeTransaction() {
  const std::string fields = std::exchange(fields_, "");
  const int blocks = std::exchange(blocks_, 0);
  const std::string pager = fields.substr(0, fields.find('\r'));
  std::string text = fields.substr(std::min(pager.size() + 1, fields.size()));
  if (text.ends_with('\r')) text.pop_back();
  if (faults_.Use(Fault::kRejected) || pager.empty()) {
    ++pages_refused_;
    sink_({faults_.Device(), "page refused", {{"pager", pager}, {"said", "511 Invalid pager"}}});
    return Answer("511 Invalid pager", kRs);
  }
  if (text.size() > setup_.longest) return Answer("513 The message is too long", kRs);
  ++pages_;
  const std::string raw = platform::EncodeBase64(text);
  for (char& c : text) c = c == '\r' ? '\n' : c;
  sink_({faults_.Device(), "page", {{"pager", pager}, {"text", text}, {"blocks", blocks}, {"raw", raw}}});
  Answer("211 Page accepted", kAck);
}

void PagerTerminal::SignOff() {
  if (pages_refused_ > 0) Reply("\x1E\r");
  Reply("115 Goodbye\r");
  Disconnect();
}

void PagerTerminal::Answer(const std::string& text, char sign) {
  Reply((text.empty() ? "" : text + "\r") + sign + "\r");
}

void PagerTerminal::Reply(const std::string& bytes) {
  Say(bytes, now_ + (faults_.Has(Fault::kSlow) ? setup_.slow : 0));
}

void PagerTerminal::Disconnect() {
  Reply("\x1B\x04\r");
  End();
}

}  // namespace lab
