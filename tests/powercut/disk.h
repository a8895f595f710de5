// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace powercut {

/// When the power fails, and what becomes of that which was not synced until then.
struct Plan {
  std::string directory;  ///< whose files are followed; not those of its subdirectories
  std::string kept;       ///< a directory that is filled with what the disk holds at the end
  long cut_at = 0;        ///< the write, sync or change of a name at which the power fails
  unsigned seed = 0;
  bool tears = false;  ///< some of the unsynced writes have arrived, by sectors; else none has
  bool lies = false;   ///< a sync succeeds and keeps nothing
};

/// Lets a disk of that plan follow the calls of this process from now on.
void Follow(const Plan& plan);

/// How a process ends whose power was cut.
inline constexpr int kPowerCut = 77;

/// A disk that keeps no more than it must. A file's bytes are kept by a sync of that file, names (made, renamed,
/// removed) by a sync of the directory alone, since no standard promises that the sync of a new file keeps its
/// name. When the disk tears, every unsynced write has arrived or has not, or some of its 512-byte sectors
/// have, in no order among the writes; of the changed names a beginning has, as file systems with a journal
/// keep their order. Not modelled: sectors that turn into garbage, and syncs that fail.
class Disk {
 public:
  explicit Disk(const Plan& plan) : plan_(plan), random_(plan.seed) {}

  bool Follows(int fd) const { return open_.contains(fd); }

  void Open(int fd, const std::string& path) {
    if (path == plan_.directory) open_[fd] = nullptr;
    if (!IsInside(path)) return;
    auto& file = names_[NameOf(path)];
    if (file == nullptr) ChangeNames({{NameOf(path), std::make_shared<File>()}});
    open_[fd] = file;
  }

  void Close(int fd) { open_.erase(fd); }

  void Write(int fd, std::size_t offset, const std::string& bytes) {
    open_[fd]->unsynced.push_back({offset, bytes, false});
    CountDown();
  }

  void Truncate(int fd, std::size_t size) {
    open_[fd]->unsynced.push_back({size, "", true});
    CountDown();
  }

  void Sync(int fd) {
    CountDown();
    if (plan_.lies) return;
    if (File* file = open_[fd].get()) {
      for (const Change& change : file->unsynced) Apply(change, 2, file->bytes);
      file->unsynced.clear();
    } else {
      KeepNames(unsynced_names_.size());
      unsynced_names_.clear();
    }
  }

  void Rename(const std::string& from, const std::string& to) {
    if (IsInside(from)) ChangeNames({{NameOf(from), nullptr}, {NameOf(to), names_[NameOf(from)]}});
  }

  void Remove(const std::string& path) {
    if (IsInside(path)) ChangeNames({{NameOf(path), nullptr}});
  }

 private:
  struct Change {
    std::size_t offset;
    std::string bytes;
    bool truncates;
  };
  struct File {
    std::string bytes;
    std::vector<Change> unsynced;
  };
  // Of names that change together, as by a rename; null for a name that goes.
  using Names = std::map<std::string, std::shared_ptr<File>>;

  static constexpr std::size_t kSector = 512;

  static std::string NameOf(const std::string& path) { return std::filesystem::path(path).filename(); }

  // The index in shared memory is rebuilt after a cut; nobody syncs it.
  bool IsInside(const std::string& path) const {
    return std::filesystem::path(path).parent_path() == plan_.directory && !path.ends_with("-shm");
  }

  void ChangeNames(const Names& change) {
    for (const auto& [name, file] : change) names_[name] = file;
    unsynced_names_.push_back(change);
    CountDown();
  }

  void CountDown() {
    if (++events_ == plan_.cut_at) Cut();
  }

  [[noreturn]] void Cut() {
    KeepNames(plan_.tears ? random_() % (unsynced_names_.size() + 1) : 0);
    for (const auto& [name, file] : kept_names_) {
      if (file == nullptr) continue;
      for (const Change& change : file->unsynced) Apply(change, plan_.tears ? random_() % 3 : 0, file->bytes);
      std::ofstream(plan_.kept + '/' + name, std::ios::binary) << file->bytes;
    }
    _exit(kPowerCut);
  }

  void KeepNames(std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
      for (const auto& [name, file] : unsynced_names_[i]) kept_names_[name] = file;
  }

  // Of two chances a sector takes `luck`: none, one or both.
  bool Arrives(std::size_t luck) { return random_() % 2 < luck; }

  void Apply(const Change& change, std::size_t luck, std::string& bytes) {
    if (change.truncates && Arrives(luck)) bytes.resize(change.offset);
    std::size_t count = 0;
    for (std::size_t at = 0; at < change.bytes.size(); at += count) {
      const std::size_t place = change.offset + at;
      count = std::min(kSector - place % kSector, change.bytes.size() - at);
      if (!Arrives(luck)) continue;
      bytes.resize(std::max(bytes.size(), place + count));
      bytes.replace(place, count, change.bytes, at, count);
    }
  }

  const Plan plan_;
  std::mt19937 random_;
  long events_ = 0;
  std::map<int, std::shared_ptr<File>> open_;  // null for the directory itself
  Names names_;
  Names kept_names_;
  std::vector<Names> unsynced_names_;
};

}  // namespace powercut
