// SPDX-License-Identifier: MIT
#include "console/alertctl/output.h"

#include <fcntl.h>
#include <locale.h>
#include <unistd.h>
#include <wchar.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <clocale>
#include <cstring>
#include <cwchar>
#include <iostream>

#include "console/site/names.h"
#include "platform/base/utf8.h"

namespace alertctl {
namespace {

int g_output_error = 0;

using site::Classify;
using site::Piece;

template <class Visitor>
void ForEachSequence(std::string_view text, Visitor visit) {
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t next = platform::Utf8Next(text, at);
    visit(text.substr(at, next - at));
    at = next;
  }
}

std::string Escaped(std::string_view control) {
  const auto code = static_cast<unsigned>(site::CodePoint(control));
  std::array<char, 16> escape{};
  if (code < 0x10000U)
    std::snprintf(escape.data(), escape.size(), "\\u%04x", code);
  else  // JSON writes these as surrogates
    std::snprintf(escape.data(), escape.size(), "\\u%04x\\u%04x", 0xD800U + ((code - 0x10000U) >> 10U),
                  0xDC00U + ((code - 0x10000U) & 0x3FFU));
  return escape.data();
}

}  // namespace

void ReserveStandardStreams() {
  // Each is opened the wrong way round, so that using it fails as it does when it is closed.
  for (const auto& [descriptor, flags] : {std::pair{0, O_WRONLY}, {1, O_RDONLY}, {2, O_RDONLY}})
    if (fcntl(descriptor, F_GETFD) < 0) static_cast<void>(open("/dev/null", flags));
}

bool PrintOut(const std::string& text) {
  errno = 0;
  const bool printed = static_cast<bool>(std::cout << text << std::flush);
  g_output_error = printed ? 0 : errno;
  return printed;
}

std::string LastOutputError() {
  return g_output_error != 0 ? std::strerror(g_output_error) : "standard output takes nothing";
}

void PrintError(const std::string& text) { std::cerr << "alertctl: " << Printable(text, false) << '\n'; }

std::string Printable(std::string_view text, bool lines) {
  const auto is_plain = [lines](char c) { return (c >= ' ' && c <= '~') || (lines && c == '\n'); };
  if (std::ranges::all_of(text, is_plain)) return std::string(text);  // as nearly all of it is
  std::string result;
  ForEachSequence(text, [&](std::string_view sequence) {
    const Piece piece = lines && sequence == "\n" ? Piece::kText : Classify(sequence);
    if (piece == Piece::kText)
      result += sequence;
    else
      result += piece == Piece::kControl ? " " : "\uFFFD";
  });
  return result;
}

namespace {

/// Makes the C library's table of widths that of UTF-8, whatever the user's locale.
class Utf8Locale {
 public:
  Utf8Locale() : locale_(newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr)) {
    if (locale_ != nullptr) before_ = uselocale(locale_);
  }
  ~Utf8Locale() {
    if (locale_ == nullptr) return;
    uselocale(before_);
    freelocale(locale_);
  }
  Utf8Locale(const Utf8Locale&) = delete;
  Utf8Locale& operator=(const Utf8Locale&) = delete;

 private:
  locale_t locale_, before_ = nullptr;
};

std::size_t WidthOf(const std::string& sequence) {
  wchar_t letter = 0;
  std::mbstate_t state{};
  if (std::mbrtowc(&letter, sequence.data(), sequence.size(), &state) > sequence.size()) return 1;
  const int width = wcwidth(letter);
  return width < 0 ? 1 : static_cast<std::size_t>(width);
}

}  // namespace

std::size_t ColumnsOf(std::string_view text) {
  const auto is_ascii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
  if (std::ranges::all_of(text, is_ascii)) return text.size();
  const Utf8Locale utf8;
  std::size_t columns = 0;
  ForEachSequence(text, [&](std::string_view sequence) { columns += WidthOf(std::string(sequence)); });
  return columns;
}

// JSON has the controls of ASCII escaped already, but for the last one.
std::string JsonText(const Json& json) {
  std::string result;
  ForEachSequence(json.dump(2, ' ', false, Json::error_handler_t::replace), [&](std::string_view sequence) {
    if (sequence != "\n" && Classify(sequence) == Piece::kControl)
      result += Escaped(sequence);
    else
      result += sequence;
  });
  return result + "\n";
}

}  // namespace alertctl
