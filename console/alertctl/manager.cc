// SPDX-License-Identifier: MIT
#include <memory>

#include "console/alertctl/listing.h"
#include "console/alertctl/site.h"
#include "console/alertctl/text.h"
#include "console/alertctl/verbs.h"
#include "console/site/backup_manager.h"

namespace alertctl {

void AddManagerChangeVerbs(Verbs& verbs, CLI::App& manager);

namespace {

constexpr char kListExamples[] = "  alertctl manager list --json";
constexpr char kShowExamples[] = "  alertctl manager show \"$(uname -n)\"";

std::string ServiceName(const Json& site, const Json& entry) {
  for (const Json& service : site["services"])
    if (service["id"] == entry["serviceId"])
      return service["name"].get<std::string>() + (entry["backup"] == true ? " (backup)" : "");
  return {};
}

/// The services enabled on a manager; entries of services that were deleted are left out.
std::vector<std::string> ServiceNames(const Json& site, const Json& manager) {
  std::vector<std::string> names;
  for (const Json& entry : manager["services"])
    if (std::string name = ServiceName(site, entry); !name.empty()) names.push_back(std::move(name));
  return names;
}

Json Summary(const Json& site, const Json& manager) {
  return {{"id", manager["id"]}, {"name", manager["name"]}, {"services", ServiceNames(site, manager)}};
}

Listing List() {
  const Json site = LoadSite();
  Listing listing{{"NAME", "SERVICES", "IDENTITY"},
                  "There are no alert managers. \"alertctl init\" makes this machine one.\n",
                  {}};
  for (const Json& manager : site["alertManagers"]) {
    const Json summary = Summary(site, manager);
    listing.rows.push_back({{manager["name"], std::to_string(summary["services"].size()), manager["id"]},
                            Made(summary),
                            manager["id"]});
  }
  return listing;
}

Result Show(const std::string& name) {
  const Json site = LoadSite();
  Json shown = Summary(site, FindOne(site["alertManagers"], name, "alert manager", "alertctl manager list"));
  shown["backup"] = IdOf(shown) == site::ReadBackupManager();
  return {shown, Described(shown, 0)};
}

}  // namespace

void AddManagerVerbs(Verbs& verbs) {
  CLI::App& manager = verbs.AddNoun("manager", "Shows and changes the alert managers, which deliver alerts.");
  AddListVerb(verbs, manager, "Lists the alert managers and how many services each delivers.", kListExamples,
              List);
  const auto name = std::make_shared<std::string>();
  verbs
      .AddVerb(manager, "show", Access::kRead, "Shows one alert manager and what it delivers.", kShowExamples,
               [name] { return Show(*name); })
      .add_option("manager", *name, "Name or identity of the alert manager")
      ->required();
  AddManagerChangeVerbs(verbs, manager);
}

}  // namespace alertctl
