// SPDX-License-Identifier: MIT
#include "platform/base/sibling_program.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

namespace platform {

std::string SiblingProgram(const std::string& name, const char* variable) {
  if (const char* named = std::getenv(variable); named != nullptr && *named != '\0') return named;
  std::error_code error;
  const auto beside = std::filesystem::read_symlink("/proc/self/exe", error).parent_path() / name;
  return !error && access(beside.c_str(), X_OK) == 0 ? beside.string() : name;
}

}  // namespace platform
