// SPDX-License-Identifier: MIT
#include "platform/base/module.h"

#include <dlfcn.h>

namespace platform {
namespace {

thread_local const Module* current_module = nullptr;

}  // namespace

const std::string& Module::String(int id) const {
  static const std::string empty;
  const auto found = strings_.find(id);
  return found != strings_.end() ? found->second : empty;
}

std::span<const std::uint8_t> Module::Resource(const std::string& name) const {
  const auto found = resources_.find(name);
  return found != resources_.end() ? found->second : std::span<const std::uint8_t>();
}

const Module& Module::Current() {
  static const Module untitled{""};
  return current_module != nullptr ? *current_module : untitled;
}

ModuleScope::ModuleScope(const Module& module) : before_(current_module) { current_module = &module; }

ModuleScope::~ModuleScope() { current_module = before_; }

DynamicLibrary::~DynamicLibrary() {
  if (library_ != nullptr) dlclose(library_);
}

bool DynamicLibrary::Load(const std::string& path) {
  void* library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) {
    error_ = dlerror();
    return false;
  }
  if (library_ != nullptr) dlclose(library_);
  library_ = library;
  error_.clear();
  return true;
}

void* DynamicLibrary::Find(const std::string& decorated_name) const {
  if (library_ == nullptr) return nullptr;
  const std::size_t at = decorated_name.rfind('@');
  if (at == std::string::npos) return dlsym(library_, decorated_name.c_str());
  const std::string version = "ARGS_" + decorated_name.substr(at + 1);
  return dlvsym(library_, decorated_name.substr(0, at).c_str(), version.c_str());
}

}  // namespace platform
