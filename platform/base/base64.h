// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// Bytes as a text of letters, digits, '+' and '/', padded with '=' (RFC 4648, section 4).
std::string EncodeBase64(std::string_view bytes);
/// The bytes of such a text; nothing for any other text, one without its padding or with line breaks included.
std::optional<std::string> DecodeBase64(std::string_view text);

}  // namespace platform
