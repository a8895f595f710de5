// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <cstddef>
#include <string>
#include <string_view>

namespace desktops::qt {

QString ToQt(std::string_view utf8);
std::string FromQt(const QString& text);

/// The text of a field as a widget shows it. In a multi-line field a line break of two characters is one
/// there. A byte that is no UTF-8 is shown as one replacement character, so positions can always be mapped.
QString ShownText(std::string_view text, bool multi_line);
/// The widget's position (UTF-16 units) of byte `position` of `text`, and the reverse. Positions past the end
/// are the end; those inside a sequence are the next boundary.
int ShownPosition(std::string_view text, std::size_t position, bool multi_line);
std::size_t BytePosition(std::string_view text, int shown, bool multi_line);

}  // namespace desktops::qt
