// SPDX-License-Identifier: MIT
#pragma once

namespace ctxhelp {

/// The windows and pages that have help, by the number of their own topic (help_pages.def).
enum HelpPage : int {
  kNoHelpPage = 0,
#define HELP_PAGE(name, number, file) name = number,
#include "companions/ctxhelp/help_pages.def"
#undef HELP_PAGE
};

/// How many topics a page has room for; the ids of its controls are below.
inline constexpr int kTopicsPerPage = 1000;

/// The file of a page among the help texts, without its ending; "" for a number that is no page.
const char* HelpFileOf(int page);

}  // namespace ctxhelp
