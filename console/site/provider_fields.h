// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "console/site/providers.h"

// A provider as texts, which is how people write one: in a window, on a command line, in a file.

namespace site {

struct ProviderField {
  std::string_view name;  ///< "region A"
  bool required;          ///< false for what may be left empty
  std::string (*take)(Provider& provider, std::string_view text);
  std::string (*problem)(const Provider& provider);
  std::string (*text)(const Provider& provider);

  /// Puts what was written into the provider, without the blanks around it. Answers what is wrong with it, as a sentence, or
  /// "". What does not fit changes nothing.
  std::string Take(Provider& provider, std::string_view written) const;
};

/// In the order of columns and options.
const std::array<ProviderField, 9>& ProviderFields();

}  // namespace site
