// SPDX-License-Identifier: MIT
#include "alerting/services/service_list.h"

#include <gmock/gmock.h>

#include "tests/support/service_fixture.h"

namespace {

using namespace alerting;      // NOLINT
using namespace test_support;  // NOLINT
using ::testing::ElementsAre;

class ServiceListTest : public ServiceTest {
 protected:
  static std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (int i = 0; i < TheServices().GetCount(); ++i) names.push_back(TheServices().GetAt(i)->Name());
    return names;
  }
};

TEST_F(ServiceListTest, ListsTypesWithAClassInTheOrderOfTheStore) {
  SeedService(kTypeWave, "a wave");
  for (const std::uint32_t type : {RecordTypeOf(kTypePhone), RecordTypeOf(kTypeScript), 0U, 16U})
    SeedCommon(type, "a phone call, a script, or no type");
  SeedService(kTypeProgram, "a program");
  const GUID second_wave = SeedService(kTypeWave, "another wave");
  ASSERT_TRUE(TheServices().Read());
  EXPECT_THAT(Names(), ElementsAre("a wave", "a program", "another wave"));
  EXPECT_EQ(TheServices().GetAt(-1), nullptr);
  EXPECT_EQ(TheServices().GetAt(3), nullptr);
  EXPECT_EQ(TheServices().FindById(second_wave), 2);
  EXPECT_EQ(TheServices().FindById(kNullGuid), std::nullopt);
  for (int i = -1; i < 4; ++i) EXPECT_EQ(TheServices().IsFirstOfType(i), i == 0 || i == 1) << i;

  EXPECT_TRUE(TheServices().DeleteAt(0));
  EXPECT_THAT(Names(), ElementsAre("a program", "another wave"));
  EXPECT_EQ(TheServices().FindById(second_wave), 1);
  EXPECT_TRUE(TheServices().IsFirstOfType(1));
}

TEST_F(ServiceListTest, ADeleteThatFailsStillTakesTheServiceFromTheList) {
  SeedService(kTypeProgram, "a program");
  ASSERT_TRUE(TheServices().Read());
  library.engine->FailAll("", StoreOp::kDelete);
  EXPECT_FALSE(TheServices().DeleteAt(0));
  EXPECT_EQ(TheServices().GetCount(), 0);
  EXPECT_FALSE(TheServices().DeleteAt(0));
  EXPECT_THAT(desktop.TakeMessages(),
              ElementsAre("Unable to read the record from the notification service database."));
}

TEST_F(ServiceListTest, AddsFromTheStoreAtTheEnd) {
  SeedService(kTypeProgram, "first");
  ASSERT_TRUE(TheServices().Read());
  EXPECT_TRUE(TheServices().AddFromStore(SeedService(kTypeTts, "second")));
  EXPECT_FALSE(TheServices().AddFromStore(SeedCommon(RecordTypeOf(kTypeScript), "script"))) << "silently";
  EXPECT_FALSE(TheServices().AddFromStore(GUID::Generate()));
  EXPECT_THAT(desktop.TakeMessages(),
              ElementsAre("Unable to read records from the notification service database. (waiting)"));
  EXPECT_THAT(Names(), ElementsAre("first", "second"));
}

}  // namespace
