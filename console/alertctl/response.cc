// SPDX-License-Identifier: MIT
#include <memory>

#include "console/alertctl/listing.h"
#include "console/alertctl/site.h"
#include "console/alertctl/text.h"
#include "console/alertctl/verbs.h"

namespace alertctl {

void AddResponseChangeVerbs(Verbs& verbs, CLI::App& response);

namespace {

constexpr char kListExamples[] =
    "  alertctl response list\n"
    "  alertctl response list --where service=\"Internet Mail\" -q";
constexpr char kShowExamples[] = "  alertctl response show 3217DA57-ADD1-11CF-8137-000000000001";

Listing List() {
  const Json site = LoadSite();
  Listing listing{{"IDENTITY", "SERVICE", "USER", "SUBJECT", "MESSAGE"}, "There are no responses.\n", {}};
  for (const Json& response : site["responses"])
    listing.rows.push_back({{response["id"], response["serviceName"], response["userName"],
                             ShownMessage(response["subject"]), ShownMessage(response["message"])},
                            Made(response),
                            response["id"]});
  return listing;
}

Result Show(const std::string& name) {
  const Json site = LoadSite();
  const Json& response = FindResponse(site, name);
  return {response, Described(response, 0)};
}

}  // namespace

void AddResponseVerbs(Verbs& verbs) {
  CLI::App& response = verbs.AddNoun("response", "Shows and changes what is sent when alerts occur.");
  AddListVerb(verbs, response, "Lists the responses, those of the test buttons included.", kListExamples,
              List);
  const auto id = std::make_shared<std::string>();
  verbs
      .AddVerb(response, "show", Access::kRead, "Shows one response whole.", kShowExamples,
               [id] { return Show(*id); })
      .add_option("response", *id, "Identity of the response")
      ->required();
  AddResponseChangeVerbs(verbs, response);
}

}  // namespace alertctl
