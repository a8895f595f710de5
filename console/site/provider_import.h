// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "console/site/providers.h"

// Paging providers from a file of comma-separated values: a header line that names the columns, in either case and any
// order, then a provider a line. The columns are the fields of provider_fields.h.

namespace site {

struct ProviderFile {
  std::vector<Provider> providers;  ///< none when something is wrong
  /// All that is wrong, with line and column, each one line: "line 3, column 4 (phone): ...".
  std::vector<std::string> faults;
};

/// Throws a Failure when the file cannot be read, as ReadTextFile does; 5 MB are the most.
ProviderFile ReadProviderFile(const std::string& path);

struct ProvidersAdded {
  std::size_t added = 0;
  std::size_t known = 0;  ///< left out, as the site has the same
  std::string problem;    ///< what failed of the stores, how far it came and what to do; "" when nothing did
};

/// Adds those that the site does not have with all fields equal, each for itself.
ProvidersAdded AddMissingProviders(std::vector<Provider> providers);

}  // namespace site
