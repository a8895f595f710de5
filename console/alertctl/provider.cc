// SPDX-License-Identifier: MIT
#include <memory>

#include "console/alertctl/provider_records.h"
#include "console/alertctl/text.h"
#include "console/alertctl/verbs.h"
#include "console/site/provider_fields.h"

namespace alertctl {

void AddProviderChangeVerbs(Verbs& verbs, CLI::App& provider);

namespace {

constexpr char kListExamples[] = "  alertctl provider list";
constexpr char kShowExamples[] = "  alertctl provider show \"Example Paging North\"";

Result List() {
  const std::vector<Provider> providers = StoredProviders();
  if (providers.empty())
    return {Json::array(), "There are no paging providers. \"alertctl provider add\" adds one.\n"};
  TextTable table({"COMPANY", "LOCATION", "PHONE", "BAUD RATE", "TEXT LENGTH", "IDENTITY"});
  for (const Provider& provider : providers)
    table.Add({CompanyOf(provider),
               std::string(provider.regionA.View()) + " " + std::string(provider.regionB.View()),
               std::string(provider.phone.View()), std::to_string(provider.baudRate),
               std::to_string(provider.maxTextLength), provider.guid.ToString()});
  return {ProvidersJson(providers), table.Text()};
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
  verbs.AddVerb(provider, "list", Access::kRead, "Lists the paging providers.", kListExamples, List);
  const auto name = std::make_shared<std::string>();
  verbs
      .AddVerb(provider, "show", Access::kRead, "Shows all about a paging provider.", kShowExamples,
               [name] { return Show(*name); })
      .add_option("provider", *name, "Company or identity of the provider")
      ->required();
  AddProviderChangeVerbs(verbs, provider);
}

}  // namespace alertctl
