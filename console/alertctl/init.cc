// SPDX-License-Identifier: MIT
#include "console/alertctl/text.h"
#include "console/alertctl/verbs.h"
#include "console/site/starter.h"
#include "platform/base/paths.h"

namespace alertctl {
namespace {

constexpr char kExamples[] =
    "  alertctl init\n"
    "  alertctl init --data alerting-data --json";

Result Init() {
  const site::Added added = site::AddStarterData();
  const std::string directory = platform::DataDirectory();
  const Json counts = {{"alertManagers", added.managers},
                       {"computers", added.computers},
                       {"locations", added.locations},
                       {"modemTypes", added.modem_types},
                       {"pagingProviders", added.paging_providers},
                       {"services", added.services},
                       {"testResponses", added.test_responses}};
  const std::string text =
      added.Any()
          ? "Added to " + directory + ": " + Count(added.services, "service") + ", " +
                Count(added.test_responses, "test response") + ", " + Count(added.managers, "alert manager") +
                ", " + Count(added.computers, "computer") + ", " + Count(added.modem_types, "modem type") +
                ", " + Count(added.paging_providers, "example paging provider") + ", " +
                Count(added.locations, "location") + ".\n"
          : "Nothing to add: " + directory + " is set up already.\n";
  return {{{"directory", directory}, {"changed", added.Any()}, {"added", counts}}, text};
}

}  // namespace

void AddInitVerb(Verbs& verbs) {
  verbs.AddVerb(verbs.Root(), "init", Access::kSetUp,
                "Adds what a first start needs: this machine as alert manager, one service of every type "
                "with a default message and a test response, modem types, examples of paging providers and a "
                "location. Run again it changes nothing.",
                kExamples, Init);
}

}  // namespace alertctl
