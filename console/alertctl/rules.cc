// SPDX-License-Identifier: MIT
#include <memory>

#include "console/alertctl/fields.h"
#include "console/alertctl/library.h"
#include "console/alertctl/text.h"
#include "console/site/dialing_rules.h"

namespace alertctl {
namespace {

constexpr char kShowExamples[] = "  alertctl rules show";
constexpr char kSetExamples[] =
    "  alertctl rules set --same-area 9, --long-distance 9,1 --international 9,011";

const FieldOption kFields[] = {
    {"--same-area",
     FieldKind::kText,
     "What goes before a number of the same area code",
     {"&Calls within the same area code:"}},
    {"--long-distance",
     FieldKind::kText,
     "What goes before a long distance number",
     {"&Long distance calls:"}},
    {"--international",
     FieldKind::kText,
     "What goes before an international number",
     {"&International calls:"}},
};

Json RulesJson(const site::DialingRules& rules) {
  return {{"sameArea", rules.same_area},
          {"longDistance", rules.long_distance},
          {"international", rules.international}};
}

Result Show() {
  const Json rules = RulesJson(site::ReadDialingRules());
  return {rules, Described(rules, 0)};
}

/// The window copies whole texts back: each buffer has room for the longer of what was there and what is given.
std::string BufferFor(const std::string& text, const GivenFields& fields, const std::string& option) {
  const std::string* given = fields.Find(option);
  std::string buffer = text;
  buffer.resize(std::max(text.size(), given != nullptr ? given->size() : 0) + 1);
  return buffer;
}

Result Set(const GivenFields& fields) {
  fields.RequireAny();
  const site::DialingRules rules = site::ReadDialingRules();
  std::string same_area = BufferFor(rules.same_area, fields, "--same-area"),
              long_distance = BufferFor(rules.long_distance, fields, "--long-distance"),
              international = BufferFor(rules.international, fields, "--international");
  Library library;
  library.Work("change the dialing rules",
               [&] {
                 library.Calls().RulesDialog(nullptr, same_area.data(), long_distance.data(),
                                             international.data());
               },
               {[&](console_operator::OperatedWindow& dialog) {
                 dialog.FillAll(fields.Values(), "a dialing rule");
                 dialog.Finish();
               }});
  const site::DialingRules changed = {same_area.c_str(), long_distance.c_str(), international.c_str()};
  if (const std::string problem = site::WriteDialingRules(changed); !problem.empty())
    throw Failure(kStoreFailure, "cannot keep the dialing rules: " + problem);
  return {RulesJson(changed), "Changed the dialing rules.\n"};
}

}  // namespace

void AddRulesVerbs(Verbs& verbs) {
  CLI::App& rules = verbs.AddNoun("rules", "Shows and changes how numbers are dialed.");
  verbs.AddVerb(rules, "show", Access::kRead, "Shows the dialing rules.", kShowExamples, Show);
  const auto fields = std::make_shared<GivenFields>();
  fields->AddTo(verbs.AddVerb(rules, "set", Access::kChange, "Changes the dialing rules that are named.",
                              kSetExamples, [fields] { return Set(*fields); }),
                kFields);
}

}  // namespace alertctl
