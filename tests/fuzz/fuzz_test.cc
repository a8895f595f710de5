// SPDX-License-Identifier: MIT
// Runs the entry function of a fuzzer over its stored corpus and over mutations of it, the same ones every time. Linked
// with a fuzzer's own main instead, the entry function looks for more.
#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "platform/base/paths.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

constexpr int kMutationsOfEach = 20000;

int Feed(const std::string& input) {
  return LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

class Mutator {
 public:
  /// Some bytes changed, a piece copied elsewhere, or the end cut off.
  std::string Mutate(std::string input) {
    for (std::size_t i = Below(8); i > 0; --i) input[Below(input.size())] = Extreme();
    if (Below(4) == 0) input.replace(Below(input.size()), 4, input, Below(input.size()), 4);
    if (Below(8) == 0) input.resize(Below(input.size()));
    return input;
  }

 private:
  std::size_t Below(std::size_t limit) { return random_() % limit; }
  char Extreme() {
    constexpr char kExtremes[] = {0, 1, 2, 127, -128, -1};
    return Below(2) == 0 ? kExtremes[Below(sizeof kExtremes)] : static_cast<char>(Below(256));
  }

  std::mt19937 random_{20};
};

TEST(FuzzTest, TheCorpusAndItsMutationsAreReadWithoutHarm) {
  Mutator mutator;
  int files = 0;
  for (const auto& file : std::filesystem::directory_iterator(FUZZ_CORPUS)) {
    std::string input;
    ASSERT_TRUE(platform::ReadWholeFile(file.path(), input));
    ASSERT_FALSE(input.empty()) << file.path();
    ++files;
    EXPECT_EQ(Feed(input), 0) << file.path();
    for (int i = 0; i < kMutationsOfEach; ++i) EXPECT_EQ(Feed(mutator.Mutate(input)), 0);
  }
  EXPECT_GT(files, 0);
}

}  // namespace
