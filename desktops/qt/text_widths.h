// SPDX-License-Identifier: MIT
#pragma once

#include <QFontMetricsF>
#include <array>
#include <optional>

namespace desktops::qt {

/// How wide texts are in a font, in pixels, for the thousands of texts of a list: characters of western languages are
/// measured once each and added up. Kerning, which moves some of them closer together, is left out, so a text may be a
/// little narrower than this says.
class TextWidths {
 public:
  explicit TextWidths(const QFont& font) : metrics_(font) {}
  qreal Of(const QString& text);

 private:
  qreal Advance(char16_t character);

  const QFontMetricsF metrics_;
  std::array<std::optional<qreal>, 256> advances_;
};

}  // namespace desktops::qt
