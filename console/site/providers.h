// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "companions/alertstore/records_telephony.h"
#include "companions/alertstore/status.h"

// Paging providers, which the library only reads.

namespace site {

using Provider = alertstore::ALRTAPAGE_SERVICE_PROVIDER_REC;

/// In the order of adding; on failure `providers` stays as it was.
alertstore::Status ListProviders(std::vector<Provider>& providers);
/// Adds it under a new identity, which is written into it.
alertstore::Status AddProvider(Provider& provider);
alertstore::Status UpdateProvider(const Provider& provider);
alertstore::Status RemoveProvider(const platform::GUID& id);

/// One without names, with the line settings that most have.
Provider UsualProvider();

/// What keeps a pager from being reached through the provider, as a sentence; "" when nothing does.
std::string ProviderProblem(const Provider& provider);

}  // namespace site
