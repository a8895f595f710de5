// SPDX-License-Identifier: MIT
#include "companions/agentui/recent_lists.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "platform/base/atomic_write.h"
#include "platform/base/json_object.h"
#include "platform/base/paths.h"

namespace agentui {
namespace {

using Json = nlohmann::json;

std::string FilePath() { return platform::DataDirectory() + "/recent.json"; }

/// An empty object where the file cannot be used; the next write then replaces it.
Json ReadFile() {
  std::string bytes;
  if (!platform::ReadWholeFile(FilePath(), bytes)) return Json::object();
  Json file = platform::ParseJsonObject<Json>(bytes);
  if (!file.is_object()) return Json::object();
  return file;
}

std::vector<std::string> EntriesOf(const Json& file, const std::string& list) {
  std::vector<std::string> entries;
  const auto found = file.find(list);
  if (found == file.end() || !found->is_array()) return entries;
  for (const Json& entry : *found)
    if (entry.is_string()) entries.push_back(entry.get<std::string>());
  return entries;
}

}  // namespace

std::vector<std::string> RecentEntries(const std::string& list) { return EntriesOf(ReadFile(), list); }

void AddRecentEntry(const std::string& list, std::string_view entry) {
  if (entry.empty()) return;
  Json file = ReadFile();
  std::vector<std::string> entries = EntriesOf(file, list);
  std::erase(entries, entry);
  entries.insert(entries.begin(), std::string(entry));
  entries.resize(std::min(entries.size(), kRecentLimit));
  file[list] = entries;
  platform::FileError unfit;
  if (!platform::PreparePrivateDirectory(platform::DataDirectory(), unfit)) return;
  platform::WriteFileAtomically(FilePath(), file.dump(2, ' ', false, Json::error_handler_t::replace) + "\n",
                                0600);
}

}  // namespace agentui
