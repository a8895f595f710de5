// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "console/alertctl/verbs.h"
#include "console/site/providers.h"

namespace alertctl {

using site::Provider;

/// As they stand in the configuration file.
Json ProvidersJson(const std::vector<Provider>& providers);

/// All of them, in the order of adding. Throws a Failure with kStoreFailure.
std::vector<Provider> StoredProviders();
/// The provider of that company (either case) or identity. Throws kNothingMatched, or kInvalid when several match.
Provider FindProvider(const std::string& name);

std::string CompanyOf(const Provider& provider);

}  // namespace alertctl
