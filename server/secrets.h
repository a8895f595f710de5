// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace alertserver {

/// What must not be seen in reports and logs: passwords and community names.
class Secrets {
 public:
  /// Also remembers the base64 form, in which mail logins carry it. An empty text is no secret.
  void Add(std::string_view secret);

  /// The text with "***" in the place of every secret; the longest is replaced first.
  std::string Mask(std::string text) const;

 private:
  void Keep(std::string secret);

  std::vector<std::string> secrets_;  ///< longest first
};

}  // namespace alertserver
