// SPDX-License-Identifier: MIT
#include "desktops/qt/texts.h"

#include "platform/base/utf8.h"

namespace desktops::qt {
namespace {

/// What one step through a field's text takes up there and in the widget.
struct Piece {
  std::size_t bytes;
  QString shown;
};

Piece PieceAt(std::string_view text, std::size_t at, bool multi_line) {
  if (multi_line && text.substr(at, 2) == "\r\n") return {2, QStringLiteral("\n")};
  const std::size_t bytes = platform::Utf8Next(text, at) - at;
  return {bytes, ToQt(text.substr(at, bytes))};
}

}  // namespace

QString ToQt(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string FromQt(const QString& text) { return text.toStdString(); }

QString ShownText(std::string_view text, bool multi_line) {
  QString shown;
  for (std::size_t at = 0; at < text.size();) {
    const Piece piece = PieceAt(text, at, multi_line);
    shown += piece.shown;
    at += piece.bytes;
  }
  return shown;
}

int ShownPosition(std::string_view text, std::size_t position, bool multi_line) {
  qsizetype shown = 0;
  for (std::size_t at = 0; at < position && at < text.size();) {
    const Piece piece = PieceAt(text, at, multi_line);
    shown += piece.shown.size();
    at += piece.bytes;
  }
  return static_cast<int>(shown);
}

std::size_t BytePosition(std::string_view text, int shown, bool multi_line) {
  std::size_t at = 0;
  for (qsizetype passed = 0; passed < shown && at < text.size();) {
    const Piece piece = PieceAt(text, at, multi_line);
    passed += piece.shown.size();
    at += piece.bytes;
  }
  return at;
}

}  // namespace desktops::qt
