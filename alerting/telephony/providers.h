// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "alerting/frame/stores.h"

namespace alerting {

/// The paging providers that can be chosen, in the store's order. What the store has beyond them is not shown.
struct ProviderTable {
  std::array<ALRTAPAGE_SERVICE_PROVIDER_REC, 1000> entries;
  std::size_t count;
};

/// The table as it was loaded last.
const ProviderTable& TheProviders();

/// Reads the table again. An empty store leaves it empty: false, after a message.
bool LoadProviderTable();

/// A provider's location in one text.
std::string LocationOf(const ALRTAPAGE_SERVICE_PROVIDER_REC& provider);

/// Puts a provider's data into a service's record; its other fields stay.
void CopyProvider(const ALRTAPAGE_SERVICE_PROVIDER_REC& provider, ALRTAPAGESERVICEREC& record);

}  // namespace alerting
