// SPDX-License-Identifier: MIT
#pragma once

#include <gmock/gmock.h>
#include <sys/wait.h>

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <thread>
#include <vector>

#include "platform/base/atomic_write.h"
#include "platform/base/paths.h"
#include "tests/support/opened_store.h"
#include "tests/support/temporary.h"

struct Ran {
  int code;
  std::string out;
  std::string err;
};

inline std::ostream& operator<<(std::ostream& out, const Ran& ran) {
  return out << "code " << ran.code << ", said:\n" << ran.out << ran.err;
}

/// Ended with that code and said so on standard error alone.
inline auto Fails(int code, const testing::Matcher<std::string>& says) {
  using testing::Field;
  return testing::AllOf(Field(&Ran::code, code), Field(&Ran::err, says), Field(&Ran::out, ""));
}
/// And this stands in what it said.
inline auto Fails(int code, const char* text) { return Fails(code, testing::HasSubstr(text)); }
inline auto Fails(int code, const std::string& text) { return Fails(code, testing::HasSubstr(text)); }

/// Runs the real program in a data directory of the test's own.
class AlertctlTest : public testing::Test {
 protected:
  using Arguments = std::vector<std::string>;
  using json = nlohmann::json;

  AlertctlTest() { setenv("ALERTING_DATA", data_.c_str(), 1); }

  static std::string Quoted(const std::string& argument) { return "'" + argument + "'"; }

  static std::string CommandOf(const Arguments& arguments) {
    std::string command = Quoted(ALERTCTL);
    for (const std::string& argument : arguments) command += " " + Quoted(argument);
    return command;
  }

  /// Runs a line of the shell, with its output caught unless the line sends it elsewhere.
  Ran RunLine(const std::string& line) {
    const std::string files = root_ + "/" + std::to_string(++runs_);
    const std::string command =
        "cd " + Quoted(root_) + "; { " + line + "; } >" + files + ".out 2>" + files + ".err";
    const int status = std::system(command.c_str());
    Ran ran{WIFEXITED(status) ? WEXITSTATUS(status) : -1, {}, {}};
    platform::ReadWholeFile(files + ".out", ran.out);
    platform::ReadWholeFile(files + ".err", ran.err);
    return ran;
  }

  Ran Run(const Arguments& arguments) { return RunLine(CommandOf(arguments) + " </dev/null"); }

  /// Runs all of them at once.
  std::vector<Ran> RunTogether(const std::vector<Arguments>& commands) {
    std::vector<Ran> ran(commands.size());
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < commands.size(); ++i)
      threads.emplace_back([&, i] { ran[i] = Run(commands[i]); });
    for (std::thread& thread : threads) thread.join();
    return ran;
  }

  /// What a verb prints with --json; it must succeed.
  json RunJson(Arguments arguments) {
    arguments.push_back("--json");
    const Ran ran = Run(arguments);
    EXPECT_EQ(ran.code, 0) << ran.err;
    return json::parse(ran.out, nullptr, false);
  }

  std::string ConfigFile() {
    EXPECT_EQ(Run({"config", "write"}).code, 0);
    std::string bytes;
    EXPECT_TRUE(platform::ReadWholeFile(data_ + "/alert-managers.json", bytes));
    return bytes;
  }

  const test_support::TemporaryDirectory temporary_;
  const std::string &root_ = temporary_.Path(), data_ = root_ + "/data";

 private:
  std::atomic<int> runs_{0};
};

/// Starts on a site that `init` has set up.
class AlertctlSiteTest : public AlertctlTest {
 protected:
  void SetUp() override { RunJson({"init"}); }
};

/// With a console user on it.
class AlertctlUserTest : public AlertctlSiteTest {
 protected:
  void SetUp() override {
    AlertctlSiteTest::SetUp();
    RunJson({"user", "add", "Ann"});
  }
};

using test_support::Opened;

/// Deletes the first record of a store.
template <class Store, class... Arguments>
void DeleteFirst(Arguments... arguments) {
  Opened<Store> store(arguments...);
  EXPECT_EQ(store.DBAlertRecDelete(store.First().guid), alertstore::kOk);
}
