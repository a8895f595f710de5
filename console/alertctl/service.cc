// SPDX-License-Identifier: MIT
#include <memory>

#include "console/alertctl/listing.h"
#include "console/alertctl/site.h"
#include "console/alertctl/text.h"
#include "console/alertctl/verbs.h"

namespace alertctl {

void AddServiceChangeVerbs(Verbs& verbs, CLI::App& service);
void AddServiceSetVerb(Verbs& verbs, CLI::App& service);
void AddServiceTestVerb(Verbs& verbs, CLI::App& service);
void AddServiceNameVerbs(Verbs& verbs, CLI::App& service);

namespace {

constexpr char kListExamples[] =
    "  alertctl service list\n"
    "  alertctl service list --where delivered-by=\"$(uname -n)\" --sort type\n"
    "  alertctl service list --where type=pager -q\n"
    "  alertctl service list --json | jq -r '.[] | select(.enabled) | .name'";

constexpr char kShowExamples[] =
    "  alertctl service show \"Internet Mail\"\n"
    "  alertctl service show 5D1F0104-6B52-4C0E-9A37-21C48E7B9D60 --json";

std::string Joined(const std::vector<std::string>& texts) {
  std::string joined;
  for (const std::string& text : texts) joined += (joined.empty() ? "" : ", ") + text;
  return joined;
}

Json Summary(const Deliveries& deliveries, const Json& service) {
  return {{"id", service["id"]},
          {"name", service["name"]},
          {"type", service["type"]},
          {"typeName", TypeName(service)},
          {"enabled", service["enabled"]},
          {"users", service.value("users", Json::array()).size()},
          {"alertManagers", deliveries.Of(service)}};
}

Listing List() {
  const Json site = LoadSite();
  Listing listing{{"NAME", "TYPE", "ON", "USERS", "DELIVERED BY", "IDENTITY"},
                  "There are no services. \"alertctl init\" adds one of every type.\n",
                  {}};
  const Deliveries deliveries(site);
  for (const Json& service : site["services"]) {
    const Json summary = Summary(deliveries, service);
    listing.rows.push_back({{summary["name"], summary["typeName"], YesNo(summary["enabled"]),
                             summary["users"].dump(), Joined(summary["alertManagers"]), summary["id"]},
                            Made(summary),
                            summary["id"]});
  }
  return listing;
}

Result Show(const std::string& name) {
  const Json site = LoadSite();
  Json service = FindService(site, name);
  service["alertManagers"] = ManagersOf(site, service);
  return {service, Described(service, 0)};
}

}  // namespace

void AddServiceVerbs(Verbs& verbs) {
  CLI::App& service = verbs.AddNoun("service", "Shows and changes the site's notification services.");
  AddListVerb(verbs, service, "Lists the services.", kListExamples, List);
  const auto name = std::make_shared<std::string>();
  verbs
      .AddVerb(service, "show", Access::kRead, "Shows one service whole; passwords are masked.",
               kShowExamples, [name] { return Show(*name); })
      .add_option("service", *name, "Name or identity of the service")
      ->required();
  AddServiceSetVerb(verbs, service);
  AddServiceNameVerbs(verbs, service);
  AddServiceChangeVerbs(verbs, service);
  AddServiceTestVerb(verbs, service);
}

}  // namespace alertctl
