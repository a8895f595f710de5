// SPDX-License-Identifier: MIT
// Opening and closing the store set.
#include "alerting/frame/stores.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "tests/support/service_fixture.h"

namespace {

using namespace alerting;      // NOLINT
using namespace test_support;  // NOLINT
using ::testing::ElementsAre;

using Files = std::vector<std::string>;
/// Of the eighteen stores, in the order in which they are opened and destroyed.
const Files kFiles = {"InstNtfyServDB.dat",  "ModemDB.dat",         "QModemDB.dat",    "SrvCfgDB.dat",
                      "ModemLocationDB.dat", "ApageProviderDB.dat", "NtfyServDB.dat",  "RespDB.dat",
                      "UsrMhsDB.dat",        "UsrSnmpDB.dat",       "UsrMciDB.dat",    "UsrCompuDB.dat",
                      "UsrSmtpDB.dat",       "UsrMapiDB.dat",       "UsrCcmailDB.dat", "UsrApageDB.dat",
                      "UsrNpageDB.dat",      "UsrInstServDB.dat"};

/// Those of the eighteen, without the stores that one of them owns.
Files OfTheEighteen(Files files) {
  std::erase_if(files, [](const std::string& file) { return std::ranges::count(kFiles, file) == 0; });
  return files;
}

using StoreSetTest = ServiceTest;

/// How many stores there are, and how many of them are open.
std::pair<int, int> Counts() {
  int created = 0, opened = 0;
  TheStores().ForEach([&](const auto& store) {
    created += store != nullptr;
    opened += store != nullptr && store->IsOpen();
    return true;
  });
  return {created, opened};
}

TEST_F(StoreSetTest, OpensTheEighteenStoresOnceAndDestroysThemInTheSameOrder) {
  EXPECT_EQ(TheApp().OpenStores(), 0U);
  EXPECT_EQ(Counts(), std::pair(18, 18));
  EXPECT_TRUE(TheApp().StoresOpen());
  Files opened;
  for (const StoreCall& call : library.engine->Calls()) opened.push_back(call.store);
  EXPECT_EQ(OfTheEighteen(opened), kFiles);
  const std::size_t calls = library.engine->Calls().size();
  EXPECT_EQ(TheApp().OpenStores(), 1U);
  EXPECT_EQ(library.engine->Calls().size(), calls) << "the second call creates nothing";
  TheApp().CloseStores();
  EXPECT_EQ(OfTheEighteen(library.engine->Closed()), kFiles);
}

TEST_F(StoreSetTest, StopsAtTheFirstStoreThatDoesNotOpen) {
  for (int broken = 1; broken <= 7; broken += 3) {
    SCOPED_TRACE(broken);
    library.engine->FailNth("", StoreOp::kOpen, broken);
    EXPECT_EQ(TheApp().OpenStores(), 131274U);
    EXPECT_EQ(Counts(), std::pair(18, broken - 1)) << "those behind it are created but not opened";
    EXPECT_FALSE(TheApp().StoresOpen());
    TheApp().CloseStores();
    EXPECT_EQ(Counts(), std::pair(0, 0));
  }
}

TEST_F(StoreSetTest, ClosingWaitsForTheConversionAndEmptiesTheList) {
  SeedService(kTypeProgram, "a program");
  ASSERT_TRUE(TheServices().Read());
  library.dbconfig.polls_until_complete = 3;
  desktop.when_sleeping = [] {
    EXPECT_EQ(Counts(), std::pair(0, 0));
    EXPECT_EQ(TheServices().GetCount(), 1) << "emptied after the wait";
  };
  TheApp().CloseStores();
  EXPECT_THAT(desktop.sleeps, ElementsAre(1000U, 1000U, 1000U));
  EXPECT_EQ(TheServices().GetCount(), 0);
  desktop.when_sleeping = nullptr;
  library.dbconfig.polls_until_complete = 1;
  TheApp().CloseStores();
  EXPECT_EQ(desktop.sleeps.size(), 4U) << "waits with nothing open too";
}

TEST_F(StoreSetTest, WhoComesWhileTheStoresAreOpeningWaits) {
  struct Waiting {};
  TheApp().EnsureStoresOpen();  // no later one opens
  for (const auto come : {+[] { TheApp().CloseStores(); }, +[] { TheApp().EnsureStoresOpen(); }}) {
    TheApp().CloseStores();
    desktop.when_sleeping = [] { throw Waiting(); };
    desktop.when_waiting = come;
    EXPECT_THROW(TheApp().OpenStores(), Waiting);
    desktop.when_sleeping = desktop.when_waiting = nullptr;
  }
  EXPECT_THAT(desktop.sleeps, ElementsAre(100U, 100U));
}

TEST_F(StoreSetTest, OnlyTheFirstEntryAfterLoadOpens) {
  library.engine->FailNth("", StoreOp::kOpen, 1);
  for (int entry = 0; entry < 2; ++entry) {
    TheApp().EnsureStoresOpen();
    EXPECT_FALSE(TheApp().StoresOpen()) << "not even when it failed";
  }
  TheApp().CloseStores();
  EXPECT_EQ(TheApp().OpenStores(), 0U);
  TheApp().CloseStores();

  // The host closed the stores and went on calling: everything fails with its message, nothing crashes.
  EXPECT_FALSE(TheServices().Read());
  EXPECT_EQ(ServiceStore().DBAlertRecDelete(kNullGuid), kStoreClosed);
  EXPECT_THAT(desktop.TakeMessages(),
              ElementsAre("Unable to read records from the notification service database. (waiting)"));
  EXPECT_EQ(TheApp().OpenStores(), 0U);
}

}  // namespace
