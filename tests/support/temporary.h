// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

namespace test_support {

/// A new directory that goes with everything in it.
class TemporaryDirectory {
 public:
  explicit TemporaryDirectory(const std::filesystem::path& parent = testing::TempDir())
      : path_(parent / "test-XXXXXX") {
    if (mkdtemp(path_.data()) == nullptr) std::abort();
  }
  ~TemporaryDirectory() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

/// Gives a variable of the environment back the value that it had.
class SavedVariable {
 public:
  explicit SavedVariable(const char* name) : name_(name) {
    if (const char* value = getenv(name)) value_ = value;
  }
  ~SavedVariable() { value_ ? setenv(name_, value_->c_str(), 1) : unsetenv(name_); }
  SavedVariable(const SavedVariable&) = delete;
  SavedVariable& operator=(const SavedVariable&) = delete;

 private:
  const char* const name_;
  std::optional<std::string> value_;
};

}  // namespace test_support
