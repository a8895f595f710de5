// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "console/alertctl/verbs.h"

// What alertctl prints. Names come from records and arguments, and a terminal acts on what they hold.

namespace alertctl {

/// Keeps files that are opened later from taking the place of a closed standard input, output or error: what
/// is printed would land in them.
void ReserveStandardStreams();

/// False when standard output did not take all of it; LastOutputError() then says why.
bool PrintOut(const std::string& text);
std::string LastOutputError();
/// One line on standard error, with the name of the program.
void PrintError(const std::string& text);

/// The text without what a terminal would act on, and with U+FFFD for bytes that are no UTF-8; line breaks
/// stay when `lines` says so.
std::string Printable(std::string_view text, bool lines);
/// How many columns of a terminal the text takes: none for marks that join the letter before them, two for wide letters.
std::size_t ColumnsOf(std::string_view text);
/// JSON, indented, in which the same characters are escaped.
std::string JsonText(const Json& json);

}  // namespace alertctl
