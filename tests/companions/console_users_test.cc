// SPDX-License-Identifier: MIT
#include "companions/alertstore/console_users.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "tests/companions/store_fixture.h"

using namespace alertstore;
using platform::GUID;

namespace {

using ConsoleUsersTest = StoreTest;

TEST_F(ConsoleUsersTest, HaveNamesAndAreListedInTheOrderOfAdding) {
  const GUID ann = GUID::Generate(), bob = GUID::Generate();
  ASSERT_EQ(AddConsoleUser(bob, "Bob"), kOk);
  ASSERT_EQ(AddConsoleUser(ann, std::string(64, 'x')), kOk);
  EXPECT_EQ(AddConsoleUser(ann, "Anna"), kNotUnique);
  for (const std::string& name : {std::string(65, 'x'), std::string("a\0b", 3), std::string()})
    EXPECT_EQ(AddConsoleUser(GUID::Generate(), name), kInvalidArgument) << name;
  EXPECT_EQ(AddConsoleUser(platform::kNullGuid, "Ann"), kInvalidArgument);
  std::vector<ConsoleUser> users;
  ASSERT_EQ(ListConsoleUsers(users), kOk);
  ASSERT_EQ(users.size(), 2u);
  EXPECT_EQ(users[0].name, "Bob");
  EXPECT_EQ(users[1].id, ann);

  EXPECT_EQ(RemoveConsoleUser(bob), kOk);
  EXPECT_EQ(RemoveConsoleUser(bob), kNotFound);
  char name[10] = "as it was";
  EXPECT_EQ(QevGetUserName(bob, sizeof name, name), kNotFound);
  EXPECT_STREQ(name, "as it was");
  ASSERT_EQ(ListConsoleUsers(users), kOk);
  EXPECT_EQ(users.size(), 1u);
}

TEST_F(ConsoleUsersTest, ANameIsCutToTheBufferBeforeAWholeCharacter) {
  const GUID id = GUID::Generate();
  ASSERT_EQ(AddConsoleUser(id, "Zo\u00EB"), kOk);  // four bytes and the terminator
  char name[8];
  const auto name_in = [&](std::uint32_t size) {
    std::memset(name, '#', sizeof name);
    EXPECT_EQ(QevGetUserName(id, size, name), kOk);
    EXPECT_EQ(name[size], '#') << "written past the end";
    return std::string(name);
  };
  EXPECT_EQ(name_in(5), "Zo\u00EB");
  EXPECT_EQ(name_in(4), "Zo");
  EXPECT_EQ(name_in(1), "");
  EXPECT_EQ(QevGetUserName(id, 0, name), kInvalidArgument);
  EXPECT_EQ(QevGetUserName(id, 8, nullptr), kInvalidArgument);
}

}  // namespace
