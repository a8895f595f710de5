// SPDX-License-Identifier: MIT
#include "tests/powercut/disk.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <utility>

namespace powercut {
namespace {

constexpr std::size_t kSector = 512;

std::string NameOf(const std::string& path) { return std::filesystem::path(path).filename(); }

}  // namespace

// The shared-memory index is rebuilt after a cut; nobody syncs it.
bool Disk::IsInside(const std::string& path) const {
  return std::filesystem::path(path).parent_path() == plan_.directory && !path.ends_with("-shm");
}

void Disk::Open(int fd, const std::string& path, bool truncates) {
  if (path == plan_.directory) open_[fd] = nullptr;
  if (!IsInside(path)) return;
  const std::string name = NameOf(path);
  if (!names_.contains(name)) ChangeNames({{name, std::make_shared<File>()}});
  open_[fd] = names_[name];
  if (truncates) Truncate(fd, 0);
}

void Disk::Write(int fd, std::size_t offset, std::string_view bytes) {
  open_[fd]->unsynced.push_back({offset, std::string(bytes), false});
  CountDown();
}

void Disk::Truncate(int fd, std::size_t size) {
  open_[fd]->unsynced.push_back({size, {}, true});
  CountDown();
}

void Disk::Sync(int fd) {
  CountDown();
  if (plan_.lies) return;
  if (const auto& file = open_[fd]) {
    for (const Change& change : file->unsynced) Apply(change, Luck::kAll, file->bytes);
    file->unsynced.clear();
  } else {
    for (const Names& change : unsynced_names_) Apply(change, kept_names_);
    unsynced_names_.clear();
  }
}

void Disk::Rename(const std::string& from, const std::string& to) {
  if (IsInside(from)) ChangeNames({{NameOf(from), nullptr}, {NameOf(to), names_[NameOf(from)]}});
}

void Disk::Remove(const std::string& path) {
  if (IsInside(path)) ChangeNames({{NameOf(path), nullptr}});
}

void Disk::ChangeNames(Names change) {
  Apply(change, names_);
  unsynced_names_.push_back(std::move(change));
  CountDown();
}

void Disk::CountDown() {
  if (++events_ == plan_.cut_at) Cut();
}

void Disk::Cut() {
  const std::size_t arrived = plan_.tears ? random_() % (unsynced_names_.size() + 1) : 0;
  for (std::size_t i = 0; i < arrived; ++i) Apply(unsynced_names_[i], kept_names_);
  std::filesystem::create_directory(plan_.kept);
  std::filesystem::permissions(plan_.kept, std::filesystem::perms::owner_all);
  for (const auto& [name, file] : kept_names_) {
    for (const Change& change : file->unsynced)
      Apply(change, plan_.tears ? static_cast<Luck>(random_() % 3) : Luck::kNone, file->bytes);
    std::ofstream(plan_.kept + '/' + name, std::ios::binary) << file->bytes;
  }
  _exit(kPowerCut);
}

void Disk::Apply(const Change& change, Luck luck, std::string& bytes) {
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

void Disk::Apply(const Names& change, Names& names) {
  for (const auto& [name, file] : change) {
    if (file != nullptr)
      names[name] = file;
    else
      names.erase(name);
  }
}

}  // namespace powercut
