// SPDX-License-Identifier: MIT
#include <memory>

#include "console/alertctl/listing.h"
#include "console/alertctl/provider_records.h"
#include "console/alertctl/text.h"
#include "console/alertctl/verbs.h"
#include "console/site/provider_fields.h"

namespace alertctl {

void AddProviderChangeVerbs(Verbs& verbs, CLI::App& provider);

namespace {

constexpr char kListExamples[] =
    "  alertctl provider list\n"
    "  alertctl provider list --where company=north --sort phone";
constexpr char kShowExamples[] = "  alertctl provider show \"Example Paging North\"";

Listing List() {
  Listing listing{{"COMPANY", "LOCATION", "PHONE", "BAUD RATE", "TEXT LENGTH", "IDENTITY"},
                  "There are no paging providers. \"alertctl provider add\" adds one.\n",
                  {}};
  const std::vector<Provider> providers = StoredProviders();
  const Json items = ProvidersJson(providers);
  for (std::size_t i = 0; i < providers.size(); ++i) {
    const Provider& provider = providers[i];
    const std::string id = provider.guid.ToString();
    listing.rows.push_back(
        {{CompanyOf(provider),
          std::string(provider.regionA.View()) + " " + std::string(provider.regionB.View()),
          std::string(provider.phone.View()), std::to_string(provider.baudRate),
          std::to_string(provider.maxTextLength), id},
         Made(items[i]),
         id});
  }
  return listing;
}

Result Show(const std::string& name) {
  const Provider provider = FindProvider(name);
  Json shown = {{"identity", provider.guid.ToString()}};
  for (const site::ProviderField& field : site::ProviderFields())
    shown[std::string(field.name)] = field.text(provider);
  return {ProvidersJson({provider})[0], Described(shown, 0)};
}

}  // namespace

void AddProviderVerbs(Verbs& verbs) {
  CLI::App& provider =
      verbs.AddNoun("provider", "Shows and changes the paging providers that can be chosen.");
  AddListVerb(verbs, provider, "Lists the paging providers.", kListExamples, List);
  const auto name = std::make_shared<std::string>();
  verbs
      .AddVerb(provider, "show", Access::kRead, "Shows all about a paging provider.", kShowExamples,
               [name] { return Show(*name); })
      .add_option("provider", *name, "Company or identity of the provider")
      ->required();
  AddProviderChangeVerbs(verbs, provider);
}

}  // namespace alertctl
