// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace site {

enum class Piece { kText, kControl, kNoUtf8 };

/// The character of one UTF-8 sequence.
char32_t CodePoint(std::string_view sequence);
/// What one UTF-8 sequence, or one byte that is none, is to someone who looks at it.
Piece Classify(std::string_view sequence);

/// True when the text holds bytes that are not UTF-8, or characters that a terminal or a reader's eye would act on:
/// control characters, marks that change the direction of writing, characters without width.
bool HasUnprintable(std::string_view text);

/// What is wrong with a name or address that someone typed: it has 1 to `limit` bytes of UTF-8 with something to be seen
/// in it. `what` begins the sentence, as in "a user's name". "" when nothing is.
std::string NameProblem(const std::string& what, const std::string& text, std::size_t limit);

}  // namespace site
