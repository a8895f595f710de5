// SPDX-License-Identifier: MIT
#include <memory>

#include "console/alertctl/site.h"
#include "console/alertctl/text.h"
#include "console/alertctl/verbs.h"

namespace alertctl {
namespace {

constexpr char kListExamples[] = "  alertctl response list";
constexpr char kShowExamples[] = "  alertctl response show 3217DA57-ADD1-11CF-8137-000000000001";

Result List() {
  const Json site = LoadSite();
  if (site["responses"].empty()) return {Json::array(), "There are no responses.\n"};
  TextTable table({"IDENTITY", "SERVICE", "USER", "SUBJECT"});
  for (const Json& response : site["responses"])
    table.Add(
        {response["id"], response["serviceName"], response["userName"], ShownMessage(response["subject"])});
  return {site["responses"], table.Text()};
}

Result Show(const std::string& name) {
  const auto id = platform::GUID::Parse(name);
  if (!id) throw Failure(kInvalid, "\"" + name + "\" is no identity: see \"alertctl response list\"");
  const Json site = LoadSite();
  for (const Json& response : site["responses"])
    if (IdOf(response) == *id) return {response, Described(response, 0)};
  throw Failure(kNothingMatched,
                "no response has the identity " + id->ToString() + ": see \"alertctl response list\"");
}

}  // namespace

void AddResponseVerbs(Verbs& verbs) {
  CLI::App& response = verbs.AddNoun("response", "Shows what is sent when alerts occur.");
  verbs.AddVerb(response, "list", Access::kRead, "Lists the responses, those of the test buttons included.",
                kListExamples, List);
  const auto id = std::make_shared<std::string>();
  verbs
      .AddVerb(response, "show", Access::kRead, "Shows one response whole.", kShowExamples,
               [id] { return Show(*id); })
      .add_option("response", *id, "Identity of the response")
      ->required();
}

}  // namespace alertctl
