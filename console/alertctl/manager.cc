// SPDX-License-Identifier: MIT
#include "console/alertctl/site.h"
#include "console/alertctl/text.h"
#include "console/alertctl/verbs.h"

namespace alertctl {
namespace {

constexpr char kExamples[] = "  alertctl manager list --json";

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

Result List() {
  const Json site = LoadSite();
  if (site["alertManagers"].empty())
    return {Json::array(), "There are no alert managers. \"alertctl init\" makes this machine one.\n"};
  Json list = Json::array();
  TextTable table({"NAME", "SERVICES", "IDENTITY"});
  for (const Json& manager : site["alertManagers"]) {
    const auto services = ServiceNames(site, manager);
    list.push_back({{"id", manager["id"]}, {"name", manager["name"]}, {"services", services}});
    table.Add({manager["name"], std::to_string(services.size()), manager["id"]});
  }
  return {list, table.Text()};
}

}  // namespace

void AddManagerVerbs(Verbs& verbs) {
  CLI::App& manager = verbs.AddNoun("manager", "Shows the alert managers.");
  verbs.AddVerb(manager, "list", Access::kRead,
                "Lists the alert managers and how many services each has enabled.", kExamples, List);
}

}  // namespace alertctl
