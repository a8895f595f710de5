// SPDX-License-Identifier: MIT
#include "console/alertctl/dry_run.h"

#include <stdlib.h>

#include <filesystem>
#include <map>

#include "companions/alertstore/backup.h"
#include "companions/alertstore/problem.h"
#include "console/alertctl/site.h"
#include "console/alertctl/text.h"
#include "platform/base/paths.h"

namespace alertctl {
namespace {

namespace fs = std::filesystem;

/// What stands in no record: the backup manager, dialing rules.
constexpr const char* kFilesBesideRecords[] = {"console.json"};

/// A data directory with the records of the one in use, which it stands in for as long as it lives.
class ScratchDirectory {
 public:
  ScratchDirectory();
  ~ScratchDirectory();
  ScratchDirectory(const ScratchDirectory&) = delete;
  ScratchDirectory& operator=(const ScratchDirectory&) = delete;

 private:
  void CopyFrom(const std::string& directory) const;

  const std::string real_ = platform::DataDirectory();
  std::string path_ = (fs::temp_directory_path() / "alertctl-XXXXXX").string();
};

ScratchDirectory::ScratchDirectory() {
  if (mkdtemp(path_.data()) == nullptr)
    throw Failure(kStoreFailure, "cannot make a directory for a copy of the data in " +
                                     fs::temp_directory_path().string() + ": make room there, or set TMPDIR");
  try {
    CopyFrom(real_);
  } catch (...) {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
    throw;
  }
  setenv("ALERTING_DATA", path_.c_str(), 1);
}

ScratchDirectory::~ScratchDirectory() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);  // it holds passwords
  setenv("ALERTING_DATA", real_.c_str(), 1);
}

void ScratchDirectory::CopyFrom(const std::string& directory) const {
  alertstore::Copied copied;
  const alertstore::Status status = alertstore::BackUp(path_ + "/alerting.db", copied);
  if (status != alertstore::kOk && status != alertstore::kNotFound)
    throw Failure(kStoreFailure, "cannot copy the records: " + alertstore::ProblemText(status));
  std::error_code ignored;
  for (const char* file : kFilesBesideRecords)
    fs::copy_file(fs::path(directory) / file, fs::path(path_) / file, ignored);
}

/// Every value of a document by the way to it, in which members of lists are named by what people call them; and those
/// members by theirs, for what comes or goes as a whole.
struct Flat {
  std::map<std::string, Json> leaves, members;
};

std::string NameIn(const Json& list, std::size_t at) {
  const Json& item = list[at];
  if (!item.is_object()) return std::to_string(at + 1);
  const auto same_name = [&](const Json& other) {
    return other.value("name", Json()) == item.value("name", Json());
  };
  if (item.contains("name") && std::ranges::count_if(list, same_name) == 1)
    return item["name"].get<std::string>();
  for (const char* member : {"id", "serviceId", "userId"})
    if (item.contains(member) && item[member].is_string()) return item[member].get<std::string>();
  return std::to_string(at + 1);
}

void Collect(const std::string& way, const Json& value, Flat& flat) {
  const auto on = [&](const std::string& name) { return way.empty() ? name : way + " / " + name; };
  if (value.is_object() && !value.contains("keywords"))
    for (const auto& [name, member] : value.items()) Collect(on(name), member, flat);
  else if (value.is_array())
    for (std::size_t i = 0; i < value.size(); ++i) {
      const std::string member = on(NameIn(value, i));
      flat.members[member] = value[i];
      Collect(member, value[i], flat);
    }
  else
    flat.leaves[way] = value.is_object() ? Json(ShownMessage(value)) : value;
}

Flat FlatSite() {
  Flat flat;
  Collect("", LoadWholeSite(), flat);
  return flat;
}

/// What may be shown of a value: not what is a secret, unless it is empty.
Json Shown(const std::string& way, Json value) {
  const bool is_secret = way.ends_with("/ password") || way.ends_with("/ community");
  if (is_secret && !value.is_null() && value != "") return "(hidden)";
  MaskSecrets(value);
  return value;
}

std::string Told(const Json& value) {
  if (value.is_null()) return "nothing";
  return value.is_object() ? "all of it" : value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

void Note(const std::string& way, const Json& before, const Json& after, Result& result) {
  const Json change = {{"what", way}, {"before", Shown(way, before)}, {"after", Shown(way, after)}};
  result.text += "  " + way + ": " + Told(change["before"]) + " -> " + Told(change["after"]) + "\n";
  result.json["changes"].push_back(change);
}

Json ValueAt(const std::map<std::string, Json>& values, const std::string& way) {
  const auto found = values.find(way);
  return found == values.end() ? Json() : found->second;
}

/// The members that only one of the two has, but for those within another such.
void NoteMembers(const Flat& before, const Flat& after, Result& result, std::vector<std::string>& noted) {
  auto all = before.members;
  all.insert(after.members.begin(), after.members.end());
  for (const auto& [way, ignored] : all) {
    const bool is_within = !noted.empty() && way.starts_with(noted.back() + " / ");
    if (is_within || before.members.contains(way) == after.members.contains(way)) continue;
    noted.push_back(way);
    Note(way, ValueAt(before.members, way), ValueAt(after.members, way), result);
  }
}

Result Difference(const Flat& before, const Flat& after) {
  Result result{{{"dryRun", true}, {"changes", Json::array()}}, ""};
  std::vector<std::string> noted;
  NoteMembers(before, after, result, noted);
  auto all = before.leaves;
  all.insert(after.leaves.begin(), after.leaves.end());
  for (const auto& [way, ignored] : all) {
    const auto is_within = [&way](const std::string& member) {
      return way == member || way.starts_with(member + " / ");
    };
    if (std::ranges::any_of(noted, is_within)) continue;
    const Json was = ValueAt(before.leaves, way), is = ValueAt(after.leaves, way);
    if (was != is) Note(way, was, is, result);
  }
  result.text = result.text.empty()
                    ? "Nothing would change.\n"
                    : "This would change:\n" + result.text + "Nothing was changed (--dry-run).\n";
  return result;
}

}  // namespace

Result DryRun(const std::function<void()>& change) {
  const ScratchDirectory scratch;
  const Flat before = FlatSite();
  change();
  return Difference(before, FlatSite());
}

}  // namespace alertctl
