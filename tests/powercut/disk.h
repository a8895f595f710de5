// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <string_view>
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

/// How a process ends whose power was cut.
inline constexpr int kPowerCut = 77;

/// A disk that keeps no more than it must. A file's bytes are kept by a sync of that file, names (made, renamed,
/// removed) by a sync of the directory alone, since no standard promises that the sync of a new file keeps its
/// name. When the disk tears, every unsynced write has arrived or has not, or some of its 512-byte sectors
/// have, in no order among the writes; of the changed names a beginning has, as file systems with a journal
/// keep their order. Not modelled: sectors that turn into garbage, and syncs that fail.
class Disk {
 public:
  explicit Disk(Plan plan) : plan_(std::move(plan)), random_(plan_.seed) {}

  void Open(int fd, const std::string& path, bool truncates);
  void Close(int fd) { open_.erase(fd); }
  bool Follows(int fd) const { return open_.contains(fd); }
  void Write(int fd, std::size_t offset, std::string_view bytes);
  void Truncate(int fd, std::size_t size);
  void Sync(int fd);
  void Rename(const std::string& from, const std::string& to);
  void Remove(const std::string& path);

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
  using Names = std::map<std::string, std::shared_ptr<File>>;

  enum class Luck { kNone, kSome, kAll };

  bool IsInside(const std::string& path) const;
  void ChangeNames(Names change);
  void CountDown();
  [[noreturn]] void Cut();
  bool Arrives(Luck luck) { return luck == Luck::kAll || (luck == Luck::kSome && random_() % 2 == 0); }
  void Apply(const Change& change, Luck luck, std::string& bytes);
  static void Apply(const Names& change, Names& names);

  const Plan plan_;
  std::mt19937 random_;
  long events_ = 0;
  std::map<int, std::shared_ptr<File>> open_;  // null for the directory itself
  Names names_;
  Names kept_names_;
  std::vector<Names> unsynced_names_;  // each a change that arrives as a whole; null removes a name
};

/// Lets a disk follow the calls of this process from now on.
void Follow(Plan plan);

}  // namespace powercut
