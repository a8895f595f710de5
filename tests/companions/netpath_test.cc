// SPDX-License-Identifier: MIT
#include "companions/netpath/netpath.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "platform/base/host_name.h"
#include "tests/companions/store_fixture.h"

namespace {

constexpr char kMounts[] =
    "/dev/sda1 / ext4 rw 0 0\n"
    "//files/alerts /mnt/alerts cifs rw 0 0\n"
    "//files/alerts/deep/ /mnt/alerts/deep smb3 rw 0 0\n"
    "tmpfs /mnt/alerts/local tmpfs rw 0 0\n"
    "//old/hidden /mnt/twice cifs rw 0 0\n"
    "tmpfs /mnt/twice tmpfs rw 0 0\n"
    "nas:/export/sounds /mnt/with\\040blank nfs4 rw 0 0\n"
    "broken line\n";

class NetPathTest : public StoreTest {
 protected:
  using Operation = std::uint32_t (netpath::NetPath::*)(std::uint32_t, const char*, char*, std::uint32_t);

  NetPathTest() {
    std::ofstream(directory_ + "/mounts") << kMounts;
    netpath_ = netpath::MakeNetPath(directory_ + "/mounts");
  }

  /// "-" where the operation fails, and with it an untouched buffer.
  std::string Ask(Operation operation, const std::string& path, std::uint32_t size = 261) {
    std::string buffer(size, '#');
    const std::string untouched = buffer;
    if ((netpath_.get()->*operation)(0, path.c_str(), buffer.data(), size) == 0) return buffer.c_str();
    EXPECT_EQ(buffer, untouched);
    return "-";
  }
  std::string Resolved(const std::string& path) { return Ask(&netpath::NetPath::Operation43, path); }
  std::string Universal(const std::string& path) { return Ask(&netpath::NetPath::Operation159, path); }
  std::string Tree(const std::string& path) { return Ask(&netpath::NetPath::NetTreeFromPath, path); }

  std::unique_ptr<netpath::NetPath> netpath_;
};

TEST_F(NetPathTest, PathsOfEitherSlashAreResolvedWhetherTheyExistOrNot) {
  const std::string real = std::filesystem::canonical(directory_);
  std::ofstream(directory_ + "/a\\b") << "a backslash in its name";
  std::filesystem::create_symlink(directory_, directory_ + "/link");
  const std::pair<std::string, std::string> rows[] = {
      {directory_ + "/x/../y.wav", real + "/y.wav"},
      {directory_ + "\\x\\y.wav", real + "/x/y.wav"},
      {directory_ + "/a\\b", real + "/a\\b"},
      {directory_ + "/link/y.wav", real + "/y.wav"},
      {"/no/such/file", "/no/such/file"},
      {"\\\\server\\share\\..\\x", "\\\\server\\share\\..\\x"},
      {"//server/share/x", "\\\\server\\share\\x"},
      {"C:\\SOUNDS\\X.WAV", "C:\\SOUNDS\\X.WAV"},
      {"here.wav", std::filesystem::current_path() / "here.wav"},
      {"", "-"},
      {"/" + std::string(259, 'x'), "/" + std::string(259, 'x')},
      {"/" + std::string(260, 'x'), "-"},
      {"/" + std::string(100'000, 'x'), "-"}};
  for (const auto& [path, resolved] : rows) EXPECT_EQ(Resolved(path), resolved) << path.substr(0, 300);
}

TEST_F(NetPathTest, PathsOnMountedSharesHaveAUniversalForm) {
  const std::pair<std::string, std::string> rows[] = {
      {"/mnt/alerts/x.wav", "\\\\files\\alerts\\x.wav"},
      {"/mnt/alerts", "\\\\files\\alerts"},
      {"/mnt/alerts/deep/x.wav", "\\\\files\\alerts\\deep\\x.wav"},
      {"/mnt/with blank/a/x.wav", "\\\\nas\\export\\sounds\\a\\x.wav"},
      {"\\\\server\\share\\x", "\\\\server\\share\\x"},
      {"/mnt/alertsandmore/x.wav", "-"},
      {"/mnt/alerts/local/x.wav", "-"},
      {"/mnt/twice/x.wav", "-"},
      {"/mnt/alerts/a\\b", "-"},
      {"/home/x.wav", "-"},
      {"C:\\X.WAV", "-"}};
  for (const auto& [path, universal] : rows) EXPECT_EQ(Universal(path), universal) << path;
  EXPECT_EQ(Ask(&netpath::NetPath::Operation159, "/mnt/alerts", 14), "-");
  netpath_ = netpath::MakeNetPath("/no/such/table");
  EXPECT_EQ(Universal("/mnt/alerts/x.wav"), "-");
}

TEST_F(NetPathTest, APathThroughADirectoryTreeNamesTheTree) {
  const std::pair<std::string, std::string> rows[] = {{"\\\\ACME\\.sys.dept.acme\\x.exe", "ACME"},
                                                      {"\\\\ACME\\.sys", "ACME"},
                                                      {"\\\\server\\share\\.hidden", "-"},
                                                      {"\\\\server\\..\\x", "-"},
                                                      {"\\\\server\\.\\x", "-"},
                                                      {"\\\\\\.sys", "-"},
                                                      {"\\\\ACME", "-"},
                                                      {"/ACME/.sys", "-"}};
  for (const auto& [path, tree] : rows) EXPECT_EQ(Tree(path), tree) << path;
}

TEST_F(NetPathTest, NoPathNeedsConvertingWhereEveryManagerIsThisMachine) {
  const auto add = [](const std::string& name) {
    alertstore::ALRT_SRV_CFGREC record{};
    record.managerName.Assign(name);
    test_support::AddRecord(Opened<alertstore::CAlert_SRV_CFGDB>(), record);
  };
  add(platform::HostName());
  EXPECT_EQ(netpath_->Operation13(0) & 0xFFFF, netpath::kNoConversion);
  add("another");
  EXPECT_NE(netpath_->Operation13(0) & 0xFFFF, netpath::kNoConversion);
  UseDirectory("/dev/null/data");
  EXPECT_NE(netpath_->Operation13(0) & 0xFFFF, netpath::kNoConversion) << "not known";
}

TEST_F(NetPathTest, MissingArgumentsAreFailures) {
  char buffer[261];
  EXPECT_NE(netpath_->Operation43(0, nullptr, buffer, 261), 0u);
  EXPECT_NE(netpath_->Operation159(0, "/x", nullptr, 261), 0u);
  EXPECT_NE(netpath_->NetTreeFromPath(0, "\\\\ACME\\.sys", buffer, 0), 0u);
}

}  // namespace
