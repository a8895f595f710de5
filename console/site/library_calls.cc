// SPDX-License-Identifier: MIT
#include "console/site/library_calls.h"

#include <cstdlib>
#include <filesystem>

namespace site {
namespace {

namespace fs = std::filesystem;

template <class Function>
void Find(const platform::DynamicLibrary& library, const std::string& decorated_name, Function*& function,
          std::string& missing) {
  function = reinterpret_cast<Function*>(library.Find(decorated_name));
  if (function == nullptr && missing.empty()) missing = decorated_name;
}

}  // namespace

int LibraryCalls::IndexOf(const platform::GUID& service) const {
  const int count = DomainServiceGetCount();
  for (int index = 0; index < count; ++index)
    if (DomainServiceGetInfo(index)->serviceId == service) return index;
  return -1;
}

bool LibraryCalls::Reopen() const {
  CloseDBs();
  return OpenDBs() <= kStoresWereOpen;
}

std::string LibraryPath(const std::string& given) {
  if (!given.empty()) return given;
  if (const char* named = std::getenv("ALERTING_LIBRARY"); named != nullptr && *named != '\0') return named;
  std::error_code ignored;
  const fs::path program = fs::read_symlink("/proc/self/exe", ignored);
  const fs::path beside = program.parent_path() / ALERTING_LIBRARY_BESIDE;
  return fs::exists(beside, ignored) ? beside.lexically_normal().string() : beside.filename().string();
}

std::string FindCalls(const platform::DynamicLibrary& library, LibraryCalls& calls) {
  std::string missing;
#define ALERTING_EXPORT(result, name, arguments, bytes) \
  Find(library, "_" #name "@" #bytes, calls.name, missing);
#define ALERTING_PLAIN_EXPORT(result, name, arguments) Find(library, #name, calls.name, missing);
#include "alerting/exports.def"
#undef ALERTING_EXPORT
#undef ALERTING_PLAIN_EXPORT
  return missing;
}

}  // namespace site
