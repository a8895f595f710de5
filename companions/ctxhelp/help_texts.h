// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace ctxhelp {

/// The text of a topic, from the file of its page: {"like": "another page's file", "page": "text", "controls": {"100":
/// "text"}}. What a page does not say itself it says as the page named by "like" does. "" where there is none.
std::string HelpText(int topic);

}  // namespace ctxhelp
