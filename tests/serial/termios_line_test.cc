// SPDX-License-Identifier: MIT
// Real pseudo-terminals, which keep what a port is set to.
#include "server/serial/termios_line.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/wait.h>

#include <filesystem>
#include <fstream>

#include "platform/base/descriptor.h"
#include "server/serial/line_lock.h"
#include "server/serial/port_settings.h"

namespace alertserver {
namespace {

using namespace std::chrono_literals;

class TermiosLineTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(master_.IsOpen() && grantpt(master_.Get()) == 0 && unlockpt(master_.Get()) == 0);
    device_ = ptsname(master_.Get());
  }
  std::unique_ptr<SerialLine> Open(const LineSettings& settings = {}) {
    return OpenTermiosLine(device_, settings, problem_);
  }

  platform::Descriptor master_{posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)};
  std::string device_;
  LineProblem problem_;
};

TEST_F(TermiosLineTest, ThePortIsSetWhileTheLineLivesAndAsItWasAfterwards) {
  const platform::Descriptor other(open(device_.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC));
  const PortSettings before = ReadPort(other.Get()).value();
  {
    const auto line = Open({14400, 8, 2, 0, true});
    ASSERT_TRUE(line) << problem_.text;
    const PortSettings now = ReadPort(other.Get()).value();
    EXPECT_EQ(now.c_ospeed, 14400U);
    EXPECT_EQ(now.c_lflag & (ICANON | ECHO | ISIG), 0U);
    EXPECT_NE(now.c_cflag & CSTOPB, 0U);
    EXPECT_NE(now.c_iflag & IXON, 0U);
  }
  const PortSettings after = ReadPort(other.Get()).value();
  EXPECT_EQ(after.c_ospeed, before.c_ospeed);
  EXPECT_EQ(after.c_lflag, before.c_lflag);
  EXPECT_EQ(after.c_cflag, before.c_cflag);
}

TEST_F(TermiosLineTest, BytesGoThroughUnchangedAndWaitsEnd) {
  const auto line = Open();
  ASSERT_TRUE(line) << problem_.text;
  const std::string all = {'\r', '\n', 3, 17, 0, static_cast<char>(255)};
  EXPECT_TRUE(line->Write(all, 1s));
  char bytes[16];
  ASSERT_EQ(read(master_.Get(), bytes, sizeof bytes), static_cast<ssize_t>(all.size()));
  EXPECT_EQ(std::string(bytes, all.size()), all);
  EXPECT_EQ(line->Read(10, 20ms), "");
  ASSERT_EQ(write(master_.Get(), all.data(), all.size()), static_cast<ssize_t>(all.size()));
  EXPECT_EQ(line->Read(4, 1s), all.substr(0, 4));
  EXPECT_FALSE(line->Write(std::string(1 << 20, 'x'), 50ms)) << "nobody reads so much";
  master_.Close();
  EXPECT_EQ(line->Read(10, 10s), "") << "and at once";
}

TEST_F(TermiosLineTest, APortThatCannotBeHadSaysWhy) {
  EXPECT_EQ(OpenTermiosLine("/dev/null", {}, problem_), nullptr);
  EXPECT_EQ(problem_.field, Field::kComPort);
  EXPECT_EQ(OpenTermiosLine("/no/such/port", {}, problem_), nullptr);
  EXPECT_NE(problem_.text.find("No such file"), std::string::npos) << problem_.text;
  EXPECT_EQ(Open({0, 8, 0, 0, false}), nullptr);
  EXPECT_EQ(problem_.field, Field::kBaudRate);
}

class LineLockTest : public testing::Test {
 protected:
  void SetUp() override { folder_ = mkdtemp((testing::TempDir() + "locksXXXXXX").data()); }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  std::string folder_;
};

TEST_F(LineLockTest, KeepsOthersOutWhileItLives) {
  const std::string path = folder_ + "/LCK..pts_3";
  {
    const LineLock first("/dev/pts/3", folder_);
    EXPECT_EQ(first.Holder(), 0);
    EXPECT_EQ(LineLock("/dev/pts/3", folder_).Holder(), getpid());
    EXPECT_EQ(std::filesystem::file_size(path), 11U);
  }
  EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(LineLockTest, ALockOfTheDeadIsTakenOver) {
  const pid_t gone = fork();
  if (gone == 0) _exit(0);
  waitpid(gone, nullptr, 0);
  std::ofstream(folder_ + "/LCK..ttyS0") << "      " << gone << "\n";
  EXPECT_EQ(LineLock("/dev/ttyS0", folder_).Holder(), 0);
  std::ofstream(folder_ + "/LCK..ttyS0") << "nonsense";
  EXPECT_EQ(LineLock("/dev/ttyS0", folder_).Holder(), 0);
  EXPECT_EQ(LineLock("/dev/ttyS0", folder_ + "/missing").Holder(), 0)
      << "nobody is kept out for want of a directory";
}

}  // namespace
}  // namespace alertserver
