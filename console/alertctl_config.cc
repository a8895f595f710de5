// SPDX-License-Identifier: MIT
#include "companions/dbconfig/dbconfig.h"
#include "console/alertctl_site.h"
#include "console/alertctl_text.h"
#include "console/alertctl_verbs.h"
#include "platform/base/paths.h"

namespace alertctl {
namespace {

constexpr char kWriteExamples[] = "  alertctl config write";
constexpr char kShowExamples[] =
    "  alertctl config show\n"
    "  alertctl config show --json | jq '.alertManagers[].name'";

std::string FilePath() { return platform::DataDirectory() + "/" + dbconfig::kConfigFileName; }

Result Write() {
  const std::uint32_t status = dbconfig::MakeDbConfig()->CreateAlertServerConfigFile(0);
  if (status == dbconfig::kFileUnwritable)
    throw Failure(kStoreFailure,
                  "cannot write " + FilePath() +
                      ": check the permissions of the directory and the room on the disk; the file of "
                      "before is still there");
  if (status != 0) LoadSite();  // says which failure it is
  if (status != 0) throw Failure(kStoreFailure, "cannot read the stores for " + FilePath() + ": try again");
  return {{{"path", FilePath()}, {"written", true}}, "Wrote " + FilePath() + ".\n"};
}

std::string Overview(const Json& document) {
  std::string text = FilePath() + "\n";
  for (const auto& [name, value] : document.items())
    if (value.is_array()) text += name + ": " + std::to_string(value.size()) + "\n";
  return text;
}

Result Show() {
  std::string bytes;
  if (!platform::ReadWholeFile(FilePath(), bytes))
    throw Failure(kNothingMatched,
                  "there is no readable " + FilePath() + ": \"alertctl config write\" writes it");
  Json document = Json::parse(bytes, nullptr, false);
  if (!document.is_object())
    throw Failure(kInvalid, FilePath() + " is damaged: \"alertctl config write\" writes it anew");
  MaskPasswords(document);
  return {document, Overview(document)};
}

}  // namespace

void AddConfigVerbs(Verbs& verbs) {
  CLI::App& config = verbs.AddNoun("config", "Writes and shows the alert managers' configuration file.");
  verbs.AddVerb(config, "write", "Writes the file anew from the stores.", kWriteExamples, Write);
  verbs.AddVerb(config, "show",
                "Shows how much the file says; with --json the file itself, with passwords masked.",
                kShowExamples, Show);
}

}  // namespace alertctl
