// SPDX-License-Identifier: MIT
#pragma once

#include <cstring>
#include <optional>
#include <string>
#include <vector>

#include "companions/netpath/netpath.h"

namespace test_support {

/// Answers each operation as told, and writes down what it was asked.
class FakeNetPath : public netpath::NetPath {
 public:
  std::uint32_t Operation13(std::uint32_t) override { return operation13; }
  std::uint32_t Operation43(std::uint32_t, const char* path, char* buffer, std::uint32_t size) override {
    return Answer("43 ", path, resolved, buffer, size);
  }
  std::uint32_t Operation159(std::uint32_t, const char* path, char* buffer, std::uint32_t size) override {
    return Answer("159 ", path, universal, buffer, size);
  }
  std::uint32_t NetTreeFromPath(std::uint32_t, const char* path, char* buffer, std::uint32_t size) override {
    return Answer("tree ", path, tree, buffer, size);
  }

  std::uint32_t operation13 = netpath::kNoConversion;
  std::optional<std::string> resolved, universal, tree;  ///< nothing: the operation fails
  std::vector<std::string> asked;

 private:
  std::uint32_t Answer(const char* operation, const char* path, const std::optional<std::string>& answer,
                       char* buffer, std::uint32_t size) {
    asked.push_back(std::string(operation) + path);
    if (!answer || answer->size() >= size) return 1;
    std::memcpy(buffer, answer->c_str(), answer->size() + 1);
    return 0;
  }
};

}  // namespace test_support
