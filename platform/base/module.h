// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <string>

namespace platform {

/// The resources of one component: its title, its string table, its pictures. Components register their own
/// when they load and make it current for each call (ModuleScope), so that messages bear the right title.
class Module {
 public:
  explicit Module(std::string title) : title_(std::move(title)) {}

  const std::string& Title() const { return title_; }
  void SetTitle(std::string title) { title_ = std::move(title); }
  void AddString(int id, std::string text) { strings_[id] = std::move(text); }
  /// The string with that identifier, or "" where there is none.
  const std::string& String(int id) const;
  /// `bytes` must live as long as the module.
  void AddResource(std::string name, std::span<const std::uint8_t> bytes) {
    resources_[std::move(name)] = bytes;
  }
  /// The bytes of a picture or file, empty where there is none.
  std::span<const std::uint8_t> Resource(const std::string& name) const;

  /// The module current on this thread, or an untitled one.
  static const Module& Current();

 private:
  friend class ModuleScope;

  std::string title_;
  std::map<int, std::string> strings_;
  std::map<std::string, std::span<const std::uint8_t>> resources_;
};

/// Makes a module current on this thread while it lives. Scopes nest.
class ModuleScope {
 public:
  explicit ModuleScope(const Module& module);
  ~ModuleScope();
  ModuleScope(const ModuleScope&) = delete;
  ModuleScope& operator=(const ModuleScope&) = delete;

 private:
  const Module* before_;
};

/// A dynamic library, loaded for its functions.
class DynamicLibrary {
 public:
  DynamicLibrary() = default;
  ~DynamicLibrary();
  DynamicLibrary(const DynamicLibrary&) = delete;
  DynamicLibrary& operator=(const DynamicLibrary&) = delete;

  /// False, with the reason in Error(), when it cannot be loaded.
  bool Load(const std::string& path);
  const std::string& Error() const { return error_; }

  /// The function with that decorated name: "_DomainServiceType@16" is the symbol "_DomainServiceType" of
  /// version "ARGS_16"; a name without "@" is a plain symbol. Null where there is none.
  void* Find(const std::string& decorated_name) const;

 private:
  void* library_ = nullptr;
  std::string error_;
};

}  // namespace platform
