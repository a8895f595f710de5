// SPDX-License-Identifier: MIT
#include "console/alertctl/provider_records.h"

#include <algorithm>

#include "companions/dbconfig/document.h"
#include "console/alertctl/site.h"

namespace alertctl {

Json ProvidersJson(const std::vector<Provider>& providers) {
  dbconfig::Site only;
  for (const Provider& provider : providers)
    only.providers.emplace_back(reinterpret_cast<const char*>(&provider), sizeof provider);
  return Json::parse(dbconfig::WriteDocument(only))["pagingProviders"];
}

std::vector<Provider> StoredProviders() {
  std::vector<Provider> providers;
  const alertstore::Status status = site::ListProviders(providers);
  if (status != alertstore::kOk) throw StoreFailure("read the paging providers", status);
  return providers;
}

Provider FindProvider(const std::string& name) {
  const std::vector<Provider> providers = StoredProviders();
  Json objects = Json::array();
  for (const Provider& provider : providers)
    objects.push_back({{"id", provider.guid.ToString()}, {"name", CompanyOf(provider)}});
  const platform::GUID id = IdOf(FindOne(objects, name, "paging provider", "alertctl provider list"));
  return *std::ranges::find(providers, id, &Provider::guid);
}

std::string CompanyOf(const Provider& provider) { return std::string(provider.company.View()); }

}  // namespace alertctl
