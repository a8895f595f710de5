// SPDX-License-Identifier: MIT
#include "platform/base/atomic_write.h"

#include <gmock/gmock.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <thread>

#include "platform/base/paths.h"
#include "tests/support/temporary.h"

using platform::ReadWholeFile;
using platform::WriteFileAtomically;
using testing::UnorderedElementsAre;

namespace {

class AtomicWriteTest : public testing::Test {
 protected:
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(directory_))
      names.push_back(entry.path().filename());
    return names;
  }
  std::string Bytes() const {
    std::string bytes;
    EXPECT_TRUE(ReadWholeFile(path_, bytes));
    return bytes;
  }

  const test_support::TemporaryDirectory temporary_;
  const std::string& directory_ = temporary_.Path();
  const std::string path_ = directory_ + "/file";
};

TEST_F(AtomicWriteTest, KilledWritersLeaveOneTemporaryFileThatTheNextOneReplaces) {
  const std::string large(4 << 20, 'x');
  for (int round = 0; round < 8; ++round) {
    const pid_t writer = fork();
    ASSERT_GE(writer, 0);
    if (writer == 0)
      for (;;) WriteFileAtomically(path_, large, 0600);
    usleep(static_cast<useconds_t>(3000 + 2700 * round));
    kill(writer, SIGKILL);
    waitpid(writer, nullptr, 0);
    for (const std::string& name : Names()) EXPECT_TRUE(name == "file" || name == "file.tmp") << name;
  }
  ASSERT_TRUE(WriteFileAtomically(path_, "new", 0600));
  EXPECT_THAT(Names(), UnorderedElementsAre("file"));
  EXPECT_EQ(Bytes(), "new");
}

TEST_F(AtomicWriteTest, AFileThatWasLeftBehindGivesNeitherItsBytesNorItsMode) {
  ASSERT_TRUE(WriteFileAtomically(path_ + ".tmp", "longer than the new bytes", 0666));
  const std::string bytes("n\0w", 3), taken = directory_ + "/taken";
  ASSERT_TRUE(WriteFileAtomically(path_, bytes, 0600));
  struct stat info {};
  ASSERT_EQ(stat(path_.c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 0777, 0600u);
  EXPECT_EQ(Bytes(), bytes);
  ASSERT_TRUE(platform::MakeDirectories(taken));
  for (const std::string& path : {taken, directory_ + "/missing/file"})
    EXPECT_FALSE(WriteFileAtomically(path, "x", 0600)) << path;
  EXPECT_THAT(Names(), UnorderedElementsAre("file", "taken"));
}

TEST_F(AtomicWriteTest, WhatStoodUnderTheTemporaryNameIsNotWrittenTo) {
  const std::string temporary = path_ + ".tmp", precious = directory_ + "/precious";
  ASSERT_TRUE(WriteFileAtomically(precious, "precious", 0600));
  const auto fifo = [&] { return mkfifo(temporary.c_str(), 0600); };
  const auto soft = [&] { return symlink(precious.c_str(), temporary.c_str()); };
  const auto hard = [&] { return link(precious.c_str(), temporary.c_str()); };
  for (const std::function<int()>& prepare : {std::function<int()>(fifo), {soft}, {hard}}) {
    ASSERT_EQ(prepare(), 0);
    EXPECT_TRUE(WriteFileAtomically(path_, "new", 0600));
    EXPECT_EQ(Bytes(), "new");
    EXPECT_THAT(Names(), UnorderedElementsAre("file", "precious"));
  }
  std::string bytes;
  ASSERT_TRUE(ReadWholeFile(precious, bytes));
  EXPECT_EQ(bytes, "precious");
}

// The system administrator's account may write to a directory of another one, which must be able to go on.
TEST_F(AtomicWriteTest, NewFilesBelongToTheDirectorysOwner) {
  if (geteuid() != 0) GTEST_SKIP() << "only the system administrator's account gives files away";
  ASSERT_EQ(chown(directory_.c_str(), 1234, 1234), 0);
  ASSERT_TRUE(WriteFileAtomically(path_, "new", 0600));
  platform::FileError error;
  ASSERT_TRUE(platform::OpenPrivateFile(directory_ + "/lock", error).IsOpen());
  ASSERT_TRUE(platform::MakeDirectories(directory_ + "/a/b"));
  for (const char* name : {"/file", "/lock", "/a", "/a/b"}) {
    struct stat info {};
    ASSERT_EQ(stat((directory_ + name).c_str(), &info), 0);
    EXPECT_EQ(info.st_uid, 1234u) << name;
  }
}

TEST_F(AtomicWriteTest, ADirectoryThatCannotBeFlushedIsToldApartFromAFailure) {
  const auto in_child = [&] {
    if (geteuid() == 0 && (chown(directory_.c_str(), 1234, 1234) != 0 || setuid(1234) != 0)) return false;
    chmod(directory_.c_str(), 0300);
    platform::FileError error;
    return platform::ReplaceFile(path_, "new", 0600, &error) == platform::WriteOutcome::kNotFlushed &&
           error.number == EACCES;
  };
  const pid_t child = fork();
  if (child == 0) _exit(in_child() ? 0 : 1);
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
  chmod(directory_.c_str(), 0700);
  EXPECT_EQ(Bytes(), "new");
}

TEST_F(AtomicWriteTest, WritersOfOneFileTakeTurns) {
  std::vector<std::thread> writers;
  std::atomic<int> failures{0};
  for (char letter : {'a', 'b', 'c'}) {
    writers.emplace_back([&, letter] {
      for (int i = 0; i < 20; ++i)
        if (!WriteFileAtomically(path_, std::string(50000, letter), 0600)) ++failures;
    });
  }
  for (std::thread& writer : writers) writer.join();
  EXPECT_EQ(failures, 0);
  const std::string bytes = Bytes();
  EXPECT_EQ(bytes, std::string(50000, bytes.front()));
  EXPECT_THAT(Names(), UnorderedElementsAre("file"));
}

}  // namespace
