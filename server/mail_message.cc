// SPDX-License-Identifier: MIT
#include "server/mail_message.h"

#include <algorithm>
#include <ctime>

#include "platform/base/base64.h"
#include "platform/base/utf8.h"

namespace alertserver {
namespace {

constexpr std::size_t kLongestLine = 998;  // RFC 5322
constexpr std::size_t kEncodedLine = 57;   // bytes that make 76 digits
constexpr std::size_t kEncodedWord = 42;   // bytes that make an encoded word of at most 75 characters

bool IsAscii(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

bool IsControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }

/// Days and months as the format has them, whatever the locale.
std::string DateText(platform::UtcTime date) {
  constexpr const char* kDays[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  constexpr const char* kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                     "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  const std::time_t seconds = std::chrono::system_clock::to_time_t(date);
  std::tm fields{};
  gmtime_r(&seconds, &fields);
  char day[16], rest[32];
  std::strftime(day, sizeof day, "%d", &fields);
  std::strftime(rest, sizeof rest, "%Y %H:%M:%S +0000", &fields);
  return std::string(kDays[fields.tm_wday]) + ", " + day + ' ' + kMonths[fields.tm_mon] + ' ' + rest;
}

std::string OneLine(std::string text) {
  std::ranges::replace_if(text, IsControl, ' ');
  return text;
}

/// RFC 2047, where the text is more than plain ASCII or looks as if it were encoded already.
std::string HeaderText(const std::string& given) {
  const std::string text = OneLine(given);
  if (IsAscii(text) && text.find("=?") == std::string::npos) return text;
  std::string encoded;
  for (std::string_view rest = text; !rest.empty();) {
    const std::size_t length = platform::Utf8Prefix(rest, kEncodedWord);
    encoded += (encoded.empty() ? "=?UTF-8?B?" : "\r\n =?UTF-8?B?") +
               platform::EncodeBase64(rest.substr(0, length)) + "?=";
    rest.remove_prefix(length);
  }
  return encoded;
}

/// Every kind of line end as CR LF, one at the end.
std::string WireLines(std::string_view text) {
  std::string lines;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '\r' && text.substr(at + 1).starts_with('\n')) continue;
    if (text[at] == '\r' || text[at] == '\n')
      lines += "\r\n";
    else
      lines += text[at];
  }
  if (!lines.ends_with("\r\n")) lines += "\r\n";
  return lines;
}

bool HasLongLine(std::string_view lines) {
  for (std::size_t end; (end = lines.find("\r\n")) != std::string_view::npos; lines.remove_prefix(end + 2))
    if (end > kLongestLine) return true;
  return false;
}

std::string EncodedLines(std::string_view bytes) {
  std::string lines;
  for (; !bytes.empty(); bytes.remove_prefix(std::min(bytes.size(), kEncodedLine)))
    lines += platform::EncodeBase64(bytes.substr(0, kEncodedLine)) + "\r\n";
  return lines;
}

std::string PriorityHeaders(std::uint16_t priority) {
  if (priority == 0) return "X-Priority: 1 (Highest)\r\nImportance: high\r\n";
  return priority == 2 ? "X-Priority: 5 (Lowest)\r\nImportance: low\r\n"
                       : "X-Priority: 3 (Normal)\r\nImportance: normal\r\n";
}

}  // namespace

bool IsMailAddress(std::string_view address) {
  const auto ends_it = [](char c) { return IsControl(c) || c == ' ' || c == '<' || c == '>'; };
  const std::size_t at = address.rfind('@');
  return std::ranges::none_of(address, ends_it) && at != std::string_view::npos && at > 0 &&
         at + 1 < address.size();
}

std::string MailText(const MailMessage& message) {
  const std::string body = WireLines(message.body);
  const bool plain = IsAscii(body) && !HasLongLine(body);
  return "Date: " + DateText(message.date) + "\r\nMessage-ID: <" + message.message_id +
         ">\r\nFrom: Alerting <" + message.from + ">\r\nTo: <" + message.to +
         ">\r\nSubject: " + HeaderText(message.subject) + "\r\n" + PriorityHeaders(message.priority) +
         "Auto-Submitted: auto-generated\r\nMIME-Version: 1.0\r\nContent-Type: text/plain; charset=utf-8\r\n"
         "Content-Transfer-Encoding: " +
         (plain ? "7bit" : "base64") + "\r\n\r\n" + (plain ? body : EncodedLines(body));
}

}  // namespace alertserver
