// SPDX-License-Identifier: MIT
#include <filesystem>

#include "companions/dbconfig/dbconfig.h"
#include "console/alertctl/site.h"
#include "console/alertctl/text.h"
#include "console/alertctl/verbs.h"
#include "platform/base/json_object.h"
#include "platform/base/paths.h"

namespace alertctl {
namespace {

constexpr char kWriteExamples[] = "  alertctl config write";
constexpr char kShowExamples[] =
    "  alertctl config show\n"
    "  alertctl config show --json | jq '.alertManagers[].name'";

std::string FilePath() { return platform::DataDirectory() + "/" + dbconfig::kConfigFileName; }

bool IsThere(const std::string& path) {
  std::error_code ignored;
  return std::filesystem::exists(std::filesystem::symlink_status(path, ignored));
}

Result Write() {
  const bool had_one = IsThere(FilePath());
  const std::uint32_t status = dbconfig::MakeDbConfig()->CreateAlertServerConfigFile(0);
  const std::string cause = dbconfig::LastFailureText();
  if (status == dbconfig::kNotFlushed)
    throw Failure(kStoreFailure, "wrote " + FilePath() + ", but it may be lost in a power cut: " + cause +
                                     "; write it again when that is mended");
  if (status != 0)
    throw Failure(kStoreFailure, "cannot write " + FilePath() + ": " + cause +
                                     (had_one ? "; what was there before is still there" : ""));
  return {{{"path", FilePath()}, {"written", true}}, "Wrote " + FilePath() + ".\n"};
}

std::string Overview(const Json& document) {
  std::string text = FilePath() + "\n";
  for (const auto& [name, value] : document.items())
    if (value.is_array()) text += name + ": " + std::to_string(value.size()) + "\n";
  return text;
}

/// The bytes of the file. One that is there and cannot be read is another failure than none.
std::string FileBytes() {
  std::string bytes;
  if (platform::ReadWholeFile(FilePath(), bytes)) return bytes;
  if (IsThere(FilePath()))
    throw Failure(kStoreFailure, "cannot read " + FilePath() +
                                     ": it is a directory, or its permissions keep this account out");
  throw Failure(kNothingMatched, "there is no " + FilePath() + ": \"alertctl config write\" writes it");
}

Result Show() {
  Json document = platform::ParseJsonObject<Json>(FileBytes());
  if (!document.is_object())
    throw Failure(kInvalid, FilePath() + " is damaged: \"alertctl config write\" writes it anew");
  if (document.value("format", Json()) != "alerting-configuration" || document.value("version", Json()) != 1)
    throw Failure(kInvalid, FilePath() +
                                " is no configuration file of this version: move it away if it is needed "
                                "elsewhere, \"alertctl config write\" replaces it");
  MaskSecrets(document);
  return {document, Overview(document)};
}

}  // namespace

void AddConfigVerbs(Verbs& verbs) {
  CLI::App& config = verbs.AddNoun("config", "Writes and shows the alert managers' configuration file.");
  verbs.AddVerb(config, "write", Access::kExport, "Writes the file anew from the stores.", kWriteExamples,
                Write);
  verbs.AddVerb(
      config, "show", Access::kFile,
      "Shows how much the file says; with --json the file itself, with passwords and community names masked.",
      kShowExamples, Show);
}

}  // namespace alertctl
