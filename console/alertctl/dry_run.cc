// SPDX-License-Identifier: MIT
#include "console/alertctl/dry_run.h"

#include <signal.h>
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

/// Keeps who interrupts the program waiting for as long as it lives: the copy holds passwords and is to be removed.
class HeldSignals {
 public:
  HeldSignals() {
    sigset_t ends;
    sigemptyset(&ends);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) sigaddset(&ends, signal);
    pthread_sigmask(SIG_BLOCK, &ends, &before_);
  }
  ~HeldSignals() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
  HeldSignals(const HeldSignals&) = delete;
  HeldSignals& operator=(const HeldSignals&) = delete;

 private:
  sigset_t before_{};
};

/// A data directory with the records of the one in use, which it stands in for as long as it lives.
class ScratchDirectory {
 public:
  ScratchDirectory();
  ~ScratchDirectory();
  ScratchDirectory(const ScratchDirectory&) = delete;
  ScratchDirectory& operator=(const ScratchDirectory&) = delete;

  /// The text with the name of the directory that it stands in for.
  std::string WithRealName(std::string text) const {
    for (std::size_t at; (at = text.find(path_)) != std::string::npos;) text.replace(at, path_.size(), real_);
    return text;
  }

 private:
  void CopyFrom(const std::string& directory) const;

  const HeldSignals held_;
  const std::string real_ = platform::DataDirectory();
  std::string path_;
};

std::string TemporaryFiles() {
  std::error_code none;
  const fs::path path = fs::temp_directory_path(none);
  return none ? "/tmp" : path.string();
}

ScratchDirectory::ScratchDirectory() : path_(TemporaryFiles() + "/alertctl-XXXXXX") {
  if (mkdtemp(path_.data()) == nullptr)
    throw Failure(kStoreFailure, "cannot make a directory for a copy of the data in " + TemporaryFiles() +
                                     ": make room there, or set TMPDIR");
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

/// What people call records, by their identity: as they were called before, so that a new name shows as a change.
using Labels = std::map<std::string, std::string>;

std::string LabelIn(const Json& item) {
  for (const char* member : {"name", "company", "address"})
    if (item.contains(member) && item[member].is_string() && item[member] != "") return item[member];
  return {};
}

/// Those that share a label in their list are told apart by their identity.
Labels LabelsOf(const Json& before, const Json& after) {
  Labels labels;
  for (const Json* document : {&before, &after})
    for (const auto& [list, items] : document->items()) {
      std::map<std::string, int> uses;
      for (const Json& item : items)
        if (item.is_object()) ++uses[LabelIn(item)];
      for (const Json& item : items) {
        if (!item.is_object() || !item.contains("id")) continue;
        const std::string id = item["id"], label = LabelIn(item);
        labels.emplace(id, label.empty() ? id : uses[label] > 1 ? label + " " + id : label);
      }
    }
  return labels;
}

std::string NameIn(const Json& list, std::size_t at, const Labels& labels) {
  const Json& item = list[at];
  for (const char* member : {"id", "serviceId", "userId"})
    if (item.is_object() && item.contains(member) && item[member].is_string()) {
      const auto label = labels.find(item[member].get<std::string>());
      return label != labels.end() ? label->second : item[member].get<std::string>();
    }
  return std::to_string(at + 1);
}

void Collect(const std::string& way, const Json& value, const Labels& labels, Flat& flat) {
  const auto on = [&](const std::string& name) { return way.empty() ? name : way + " / " + name; };
  if (value.is_object() && !value.contains("keywords"))
    for (const auto& [name, member] : value.items()) Collect(on(name), member, labels, flat);
  else if (value.is_array())
    for (std::size_t i = 0; i < value.size(); ++i) {
      const std::string member = on(NameIn(value, i, labels));
      flat.members[member] = value[i];
      Collect(member, value[i], labels, flat);
    }
  else
    flat.leaves[way] = value.is_object() ? Json(ShownMessage(value)) : value;
}

Flat Flattened(const Json& document, const Labels& labels) {
  Flat flat;
  Collect("", document, labels, flat);
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
  const Json before = LoadWholeSite();
  try {
    change();
  } catch (const Failure& failure) {
    throw Failure(failure.Code(), scratch.WithRealName(failure.what()), failure.Details());
  }
  const Json after = LoadWholeSite();
  const Labels labels = LabelsOf(before, after);
  return Difference(Flattened(before, labels), Flattened(after, labels));
}

}  // namespace alertctl
