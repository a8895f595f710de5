// SPDX-License-Identifier: MIT
// Runs the entry function of a fuzzer over its stored corpus and over mutations of it: the same ones every time, or others
// for as many seconds as ALERTING_FUZZ_SECONDS says. Linked with a fuzzer's own main instead, the entry function looks for
// more.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <random>
#include <string>
#include <vector>

#include "platform/base/descriptor.h"
#include "platform/base/paths.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

constexpr std::size_t kMutations = 20000;
/// No input may take longer, whatever the build; the kernel ends the program then.
constexpr unsigned kSecondsOfAnInput = 10;
constexpr std::size_t kLongestInput = 64 * 1024;

/// The inputs of a corpus, in the order of their names, so that the mutations are the same on every machine.
std::vector<std::string> Corpus() {
  std::vector<std::filesystem::path> files(std::filesystem::directory_iterator(FUZZ_CORPUS), {});
  std::ranges::sort(files);
  std::vector<std::string> inputs(files.size());
  for (std::size_t i = 0; i < files.size(); ++i)
    EXPECT_TRUE(platform::ReadWholeFile(files[i], inputs[i]) && !inputs[i].empty()) << files[i];
  return inputs;
}

/// Feeds inputs to the entry function. The one in hand is in a file, which is there after whatever it does.
class Feeder {
 public:
  void Feed(const std::string& input) {
    ASSERT_EQ(ftruncate(file_.Get(), static_cast<off_t>(input.size())), 0) << FUZZ_INPUT;
    ASSERT_EQ(pwrite(file_.Get(), input.data(), input.size(), 0), static_cast<ssize_t>(input.size()));
    alarm(kSecondsOfAnInput);
    EXPECT_EQ(LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size()), 0);
    alarm(0);
  }

 private:
  const platform::Descriptor file_{open(FUZZ_INPUT, O_CREAT | O_WRONLY | O_CLOEXEC, 0600)};
};

class Mutator {
 public:
  explicit Mutator(std::uint32_t seed) : random_(seed) {}

  const std::string& Pick(const std::vector<std::string>& inputs) { return inputs[Below(inputs.size())]; }

  /// Some bytes changed, a piece copied over another or between two, one of another input put in, or the end cut off.
  std::string Mutate(std::string input, const std::string& other) {
    for (std::size_t i = Below(8); i > 0; --i) input[Below(input.size())] = Extreme();
    if (Below(4) == 0) input.replace(Below(input.size()), 4, input, Below(input.size()), 4);
    if (Below(4) == 0) input.insert(Below(input.size()), std::string(input, Below(input.size()), Below(64)));
    if (Below(8) == 0) input.insert(Below(input.size()), other, Below(other.size()), Below(64));
    if (Below(8) == 0) input.erase(Below(input.size()), Below(64));
    if (Below(8) == 0) input.resize(Below(input.size() + 1));
    return input;
  }

 private:
  std::size_t Below(std::size_t limit) { return limit == 0 ? 0 : random_() % limit; }
  char Extreme() {
    constexpr char kExtremes[] = {0, 1, 2, 127, -128, -1};
    return Below(2) == 0 ? kExtremes[Below(sizeof kExtremes)] : static_cast<char>(Below(256));
  }

  std::mt19937 random_;
};

TEST(FuzzTest, TheCorpusAndItsMutationsAreReadWithoutHarm) {
  const std::vector<std::string> corpus = Corpus();
  ASSERT_FALSE(corpus.empty());
  Feeder feeder;
  Mutator mutator(20);
  for (const std::string& input : corpus) {
    ASSERT_NO_FATAL_FAILURE(feeder.Feed(input));
    for (std::size_t i = 0; i < kMutations / corpus.size(); ++i)
      ASSERT_NO_FATAL_FAILURE(feeder.Feed(mutator.Mutate(input, mutator.Pick(corpus))));
  }
}

/// Mutations of mutations, further away the longer they go without a new start.
TEST(FuzzTest, SoAreOthersForTheSecondsAskedFor) {
  const char* const seconds = std::getenv("ALERTING_FUZZ_SECONDS");
  if (seconds == nullptr) GTEST_SKIP() << "ALERTING_FUZZ_SECONDS is not set";
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(std::atoi(seconds));
  const std::vector<std::string> corpus = Corpus();
  ASSERT_FALSE(corpus.empty());
  Feeder feeder;
  Mutator mutator(std::random_device{}());
  std::uint64_t fed = 0;
  while (std::chrono::steady_clock::now() < end) {
    std::string input = mutator.Pick(corpus);
    for (int step = 0; step < 8 && !input.empty() && input.size() <= kLongestInput; ++step, ++fed) {
      input = mutator.Mutate(input, mutator.Pick(corpus));
      ASSERT_NO_FATAL_FAILURE(feeder.Feed(input));
    }
  }
  RecordProperty("inputs", std::to_string(fed));
  std::cout << fed << " inputs\n";
}

}  // namespace
