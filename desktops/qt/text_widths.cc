// SPDX-License-Identifier: MIT
#include "desktops/qt/text_widths.h"

#include <algorithm>

namespace desktops::qt {

// Characters of other scripts change their shape beside each other.
qreal TextWidths::Of(const QString& text) {
  const bool is_western =
      std::all_of(text.begin(), text.end(), [&](QChar c) { return c.unicode() < advances_.size(); });
  if (!is_western) return metrics_.horizontalAdvance(text);
  qreal width = 0;
  for (const QChar c : text) width += Advance(c.unicode());
  return width;
}

qreal TextWidths::Advance(char16_t character) {
  std::optional<qreal>& advance = advances_[character];
  if (!advance) advance = metrics_.horizontalAdvance(QChar(character));
  return *advance;
}

}  // namespace desktops::qt
