// SPDX-License-Identifier: MIT
// Opening and closing the store set.
#include "alerting/frame/stores.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/service_fixture.h"

namespace {

using namespace alerting;      // NOLINT
using namespace test_support;  // NOLINT
using ::testing::ElementsAre;

class StoreSetTest : public ServiceTest {
 protected:
  static int Created() {
    int created = 0;
    TheStores().ForEach([&created](const auto& store) {
      created += store != nullptr;
      return true;
    });
    return created;
  }
  static int Opened() {
    int opened = 0;
    TheStores().ForEach([&opened](const auto& store) {
      opened += store != nullptr && store->IsOpen();
      return true;
    });
    return opened;
  }
};

TEST_F(StoreSetTest, OpensTheEighteenStoresOnceInTheirOrder) {
  EXPECT_EQ(TheApp().OpenStores(), 0U);
  EXPECT_EQ(Opened(), 18);
  EXPECT_TRUE(TheApp().StoresOpen());
  std::vector<std::string> files;
  TheStores().ForEach([&files](const auto& store) {
    files.push_back(store->Schema().file);
    return true;
  });
  EXPECT_EQ(files[2], "QModemDB.dat");
  EXPECT_NE(files[1], files[2]);
  const std::size_t calls = library.engine->Calls().size();
  EXPECT_EQ(TheApp().OpenStores(), 1U);
  EXPECT_EQ(library.engine->Calls().size(), calls) << "the second call creates nothing";
}

TEST_F(StoreSetTest, StopsAtTheFirstStoreThatDoesNotOpen) {
  for (int broken = 1; broken <= 7; broken += 3) {
    SCOPED_TRACE(broken);
    library.engine->FailNth("", StoreOp::kOpen, broken);
    EXPECT_EQ(TheApp().OpenStores(), 131274U);
    EXPECT_EQ(Created(), 18) << "those behind it are created but not opened";
    EXPECT_EQ(Opened(), broken - 1);
    EXPECT_FALSE(TheApp().StoresOpen());
    TheApp().CloseStores();
    EXPECT_EQ(Created(), 0);
  }
  EXPECT_EQ(desktop.wait_cursors, 0);
}

TEST_F(StoreSetTest, ClosingWaitsForTheConversionAndEmptiesTheList) {
  SeedService(kTypeProgram, "a program");
  ASSERT_TRUE(TheServices().Read());
  library.dbconfig.polls_until_complete = 3;
  TheApp().CloseStores();
  EXPECT_THAT(desktop.sleeps, ElementsAre(1000U, 1000U, 1000U));
  EXPECT_EQ(TheServices().GetCount(), 0);
  library.dbconfig.polls_until_complete = 1;
  TheApp().CloseStores();
  EXPECT_EQ(desktop.sleeps.size(), 4U) << "waits with nothing open too";
}

TEST_F(StoreSetTest, OnlyTheFirstEntryAfterLoadOpens) {
  TheApp().EnsureStoresOpen();
  EXPECT_TRUE(TheApp().StoresOpen());
  TheApp().CloseStores();
  TheApp().EnsureStoresOpen();
  EXPECT_FALSE(TheApp().StoresOpen());

  // The host closed the stores and went on calling: everything fails with its message, nothing crashes.
  EXPECT_FALSE(TheServices().Read());
  EXPECT_EQ(ServiceStore().DBAlertRecDelete(kNullGuid), kStoreClosed);
  EXPECT_THAT(desktop.TakeMessages(),
              ElementsAre("Unable to read records from the notification service database."));
  EXPECT_EQ(TheApp().OpenStores(), 0U);
}

}  // namespace
