// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "alerting/ui/scripts_folder.h"
#include "alerting/ui/universal_path.h"
#include "tests/support/service_fixture.h"

namespace alerting {
namespace {

using Optional = std::optional<std::string>;

using PathsTest = test_support::ServiceTest;

TEST_F(PathsTest, APathIsBroughtAsNearToUniversalFormAsItCanBe) {
  struct Row {
    std::string about;
    std::uint32_t operation13;
    Optional resolved, universal, tree;
    PathCode code;
    std::string path;
  };
  const Row rows[] = {
      {"nobody else reads it", 0xABCD0004, "/r/x.wav", "\\\\s\\r\\x.wav", "TREE", kPathDone, "x.wav"},
      {"on a share", 0x00040000, "/r/x.wav", "\\\\s\\r\\x.wav", {}, kPathDone, "\\\\s\\r\\x.wav"},
      {"on a share already", 0, "\\\\s\\r\\x.wav", {}, {}, kPathDone, "\\\\s\\r\\x.wav"},
      {"on this machine's disk", 0, "/r/x.wav", {}, {}, kPathNotUniversal, "/r/x.wav"},
      {"not resolved", 0, {}, "\\\\s\\r\\x.wav", {}, kPathNotUniversal, "x.wav"},
      {"in a tree", 0, "/r/x.wav", "\\\\T\\.v\\x.wav", "T", kPathInTree, "\\\\T\\.v\\x.wav"},
      {"in a tree, not translated", 0, "/r/x.wav", {}, "T", kPathInTree, "/r/x.wav"}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.about);
    library.netpath.operation13 = row.operation13;
    library.netpath.resolved = row.resolved;
    library.netpath.universal = row.universal;
    library.netpath.tree = row.tree;
    char path[kPathSize] = "x.wav";
    EXPECT_EQ(MakeUniversalPath(path, path), row.code);
    EXPECT_EQ(path, row.path);
  }
}

TEST_F(PathsTest, EachStepWorksOnTheResultOfTheOneBefore) {
  library.netpath.operation13 = 0;
  library.netpath.resolved = "/r/x.wav";
  library.netpath.universal = "\\\\s\\x.wav";
  char path[kPathSize];
  MakeUniversalPath(path, "x.wav");
  EXPECT_EQ(library.netpath.asked,
            (std::vector<std::string>{"43 x.wav", "159 /r/x.wav", "tree \\\\s\\x.wav"}));
}

TEST_F(PathsTest, MissingAndOverLongPathsAreInvalid) {
  char path[kPathSize] = "kept";
  EXPECT_EQ(MakeUniversalPath(path, nullptr), kPathInvalid);
  EXPECT_EQ(MakeUniversalPath(nullptr, path), kPathInvalid);
  EXPECT_EQ(MakeUniversalPath(path, std::string(261, 'x').c_str()), kPathInvalid);
  EXPECT_STREQ(path, "kept");
  EXPECT_EQ(MakeUniversalPath(path, std::string(260, 'x').c_str()), kPathDone);
  EXPECT_EQ(path, std::string(260, 'x'));
}

TEST_F(PathsTest, ScriptsLieBesideTheDataDirectory) {
  const std::pair<std::string, std::string> rows[] = {{"C:\\QEV\\DATA", "C:\\QEV\\console\\mgrs\\"},
                                                      {"C:\\QEV\\DATA\\", "C:\\QEV\\DATA\\console\\mgrs\\"},
                                                      {"/srv/data", "/srv/console/mgrs/"},
                                                      {"/srv/data/", "/srv/data/console/mgrs/"}};
  for (const auto& [data, scripts] : rows) {
    library.dbconfig.data_directory = data;
    EXPECT_EQ(ScriptsFolder(), scripts);
  }
}

}  // namespace
}  // namespace alerting
