// SPDX-License-Identifier: MIT
#include "console/hosts/provider_import.h"

#include <algorithm>

#include "console/hosts/host_dialog.h"
#include "console/site/failure.h"
#include "console/site/provider_import.h"
#include "platform/ui/file_dialog.h"

namespace hosts {
namespace {

/// More than these would make a message that does not fit on a screen.
constexpr std::size_t kMostFaults = 10;

std::string ChosenFile(ui::Window* parent) {
  ui::FileDialog dialog(parent);
  dialog.title = "Import Paging Providers";
  dialog.default_extension = "csv";
  dialog.filters = {{"Comma-separated values", "*.csv"}, {"All files", "*"}};
  return dialog.RunModal() == ui::kOk ? dialog.Path() : "";
}

std::string FaultsText(const std::vector<std::string>& faults) {
  std::string text = "Nothing was imported. Correct the file and import it again.\n";
  const std::size_t shown = std::min(faults.size(), kMostFaults);
  for (std::size_t i = 0; i < shown; ++i) text += "\n" + Sentence(faults[i]);
  if (faults.size() > shown) text += "\nand " + std::to_string(faults.size() - shown) + " more.";
  return text;
}

std::string AddedText(const site::ProvidersAdded& result) {
  if (!result.problem.empty()) return result.problem;
  const std::string providers = result.added == 1 ? " paging provider was" : " paging providers were";
  const std::string text = std::to_string(result.added) + providers + " added";
  return result.known == 0 ? text : text + "; the site had " + std::to_string(result.known) + " already";
}

bool Import(const std::string& path) {
  site::ProviderFile file = site::ReadProviderFile(path);
  if (!file.faults.empty()) {
    Tell(FaultsText(file.faults));
    return false;
  }
  const site::ProvidersAdded result = site::AddMissingProviders(std::move(file.providers));
  Tell(AddedText(result));
  return result.added > 0;
}

}  // namespace

bool ImportProviders(ui::Window* parent) {
  const std::string path = ChosenFile(parent);
  if (path.empty()) return false;
  try {
    return Import(path);
  } catch (const site::Failure& failure) {
    Tell(failure.what());
    return false;
  }
}

}  // namespace hosts
