// SPDX-License-Identifier: MIT
// Users' entries on services: links, user records, lists.
#include <gmock/gmock.h>

#include "alerting/services/user_list.h"
#include "tests/support/service_classes.h"

namespace {

using namespace alerting;      // NOLINT
using namespace test_support;  // NOLINT
using ::testing::ElementsAre;

/// Where the type's user record keeps the address, and how wide that is.
struct UserLayout {
  std::uint32_t code;
  std::size_t size, address, width, name, enabled;
};
const UserLayout kUserLayouts[] = {
    {0, 362, 32, 261, 293, 358}, {2, 431, 32, 261, 293, 358}, {3, 362, 32, 261, 293, 358},
    {4, 362, 32, 261, 293, 358}, {5, 362, 32, 261, 293, 358}, {6, 362, 32, 261, 293, 358},
    {10, 146, 113, 29, 48, 142}, {11, 131, 32, 26, 58, 123},
};

class UsersTest : public ServiceTest {
 protected:
  /// The type's current user record as bytes.
  static std::string CurrentUser(CNtfyService& service) {
    return WithUserRecord(service, [](auto&, auto& record) { return BytesOf(record); });
  }
  /// "name, address, enabled" as they are read over `entry`.
  static std::string EntryOf(CNtfyServiceUserBase& service, const GUID& user, UserEntry entry = {}) {
    EXPECT_TRUE(service.GetUserEntry(user, entry));
    return entry.name + ", " + entry.address + ", " + std::to_string(entry.enabled);
  }
  /// The address that is suggested; "-" for none.
  static std::string AddressOf(CNtfyServiceUserBase& service, const GUID& user) {
    std::string address;
    return service.GetUserAddress(user, address) ? address : "-";
  }
  static auto Links(const GUID& user) { return RecordsOf(UserLinkStore(), kLinkByUser, &user); }
};

TEST_F(UsersTest, AnEntryIsWrittenAtItsOffsetsAndUpdatedInPlace) {
  for (const UserLayout& layout : kUserLayouts) {
    SCOPED_TRACE(layout.code);
    const GUID user = MakeUser("Operator");
    CNtfyService& service = NewService(layout.code, "A service");
    const GUID id = service.ServiceId();
    EXPECT_FALSE(service.IsUserConfigured(user));
    ASSERT_TRUE(Users(service).SaveUserEntry(user, {"Op", "555-1", 1}));

    const std::string record = CurrentUser(service);
    ASSERT_EQ(record.size(), layout.size);
    EXPECT_EQ(std::memcmp(record.data() + 16, &user, 16), 0);
    EXPECT_EQ(record.substr(layout.address, layout.width), "555-1" + std::string(layout.width - 5, '\0'));
    EXPECT_EQ(record.substr(layout.name, 65), "Op" + std::string(63, '\0'));
    EXPECT_EQ(record.substr(layout.enabled, 4), std::string("\1\0\0\0", 4));
    ASSERT_EQ(Links(user).size(), 1U);
    ALRTUSRINSTSERV link = Links(user)[0];
    EXPECT_EQ(link.serviceId, service.ServiceId());
    EXPECT_EQ(std::memcmp(&link.userRecordId, record.data(), 16), 0);
    EXPECT_EQ(link.serviceName.View(), "A service");
    EXPECT_EQ(link.recordType, layout.code + 1);
    EXPECT_EQ(link.userEnabled, 1U);
    link.serviceName.Assign("Its old name");
    link.recordType = 99;
    ASSERT_EQ(UserLinkStore().DBAlertRecUpdate(link), kOk);

    // The bytes that are not its own are carried through an update.
    std::string expected = WithUserRecord(service, [&](auto& store, auto changed) {
      const GUID guid = changed.guid;
      std::memset(&changed, 0x5A, sizeof(changed));
      changed.guid = guid;
      changed.userId = user;
      EXPECT_EQ(store.DBAlertRecUpdate(changed), kOk);
      return BytesOf(changed);
    });
    ASSERT_TRUE(Users(service).SaveUserEntry(user, {"Op", "555-2", 0}));
    ASSERT_EQ(Links(user).size(), 1U);
    const ALRTUSRINSTSERV updated = Links(user)[0];
    EXPECT_EQ(updated.userRecordId, link.userRecordId) << "the same record, found through the link";
    EXPECT_EQ(updated.userEnabled, 0U);
    EXPECT_EQ(updated.serviceName.View(), "A service");
    EXPECT_EQ(updated.recordType, 99U) << "as it was";
    PutText(expected, layout.address, layout.width, "555-2");
    PutText(expected, layout.name, 65, "Op");
    PutU32(expected, layout.enabled, 0);
    EXPECT_EQ(CurrentUser(service), expected);

    TheServices().RemoveAll();
    CNtfyService& reread = *Find(id);
    EXPECT_EQ(EntryOf(Users(reread), user), "Op, 555-2, 0");
    EXPECT_EQ(CurrentUser(reread), expected) << "what was read is the current user";
  }
}

TEST_F(UsersTest, AListHoldsTenThousandUsers) {
  auto& service = NewServiceAs<CNtfyServiceSMTP>(kTypeSmtp, "Mail");
  for (int i = 0; i < 10'005; ++i)
    ASSERT_TRUE(service.AddUserWithLink("User " + std::to_string(i), "a", GUID::Generate()));
  ListDialog dialog;
  EXPECT_TRUE(service.FillUserList(dialog.list));
  EXPECT_EQ(dialog.list.Count(), 10'000);
}

TEST_F(UsersTest, AUserWithoutAnEntryHasTheConsolesNameAndIsEnabled) {
  const GUID user = MakeUser("Operator One");
  auto& service = NewServiceAs<CNtfyServiceSMTP>(kTypeSmtp, "Mail");
  EXPECT_EQ(EntryOf(service, user, {"", "as it was", 0}), "Operator One, as it was, 1");
  EXPECT_EQ(EntryOf(service, GUID::Generate(), {"kept", "", 0}), "kept, , 1");
}

TEST_F(UsersTest, ALinkToAnotherServiceOfTheTypeIsNoLinkToThisOne) {
  const GUID user = MakeUser("Operator");
  ASSERT_TRUE(Users(NewService(kTypeSmtp)).SaveUserEntry(user, {"Op", "op@example.org", 1}));
  auto& second = Users(NewService(kTypeSmtp));
  EXPECT_FALSE(second.IsUserConfigured(user));
  EXPECT_FALSE(second.DeleteUser(user));
  EXPECT_EQ(AddressOf(second, user), "op@example.org") << "an address is suggested without a link";
  EXPECT_EQ(AddressOf(second, GUID::Generate()), "-");
}

TEST_F(UsersTest, DeletingTakesRecordAndLinkButLeavesARecordWithoutALink) {
  const GUID user = MakeUser("Operator");
  auto& service = NewServiceAs<CNtfyServiceNum>(kTypeNumeric, "Pager");
  ASSERT_TRUE(service.SaveUserEntry(user, {"Op", "555-1", 1}));
  ASSERT_TRUE(service.DeleteUserLink(user));
  EXPECT_FALSE(service.DeleteUser(user));

  ASSERT_TRUE(service.SaveUserEntry(user, {"Op", "555-2", 1}));
  EXPECT_TRUE(service.DeleteUser(user));
  EXPECT_FALSE(service.IsUserConfigured(user));
  EXPECT_EQ(AddressOf(service, user), "555-1") << "only the record of the link is gone";
}

TEST_F(UsersTest, OneCallAddsAMailUserWithItsLink) {
  const GUID user = MakeUser("Operator");
  auto& service = NewServiceAs<CNtfyServiceMHS>(kTypeMhs, "Mail");
  ASSERT_TRUE(service.AddUserWithLink("Op", "op@site", user));
  EXPECT_EQ(EntryOf(service, user), "Op, op@site, 1");
  ASSERT_EQ(Links(user).size(), 1U);
  EXPECT_EQ(Links(user)[0].serviceName.View(), "Mail");
}

TEST_F(UsersTest, MciKeepsTheOtherMailSystemOfAUser) {
  const GUID user = MakeUser("Operator");
  auto& service = NewServiceAs<CNtfyServiceMCI>(kTypeMci, "MCI");
  std::uint32_t enabled = 7;
  std::string address = "kept";
  EXPECT_FALSE(service.GetUserExtra(enabled, address, user));
  ASSERT_TRUE(service.SaveUserEntry(user, {"Op", "op", 1}));
  EXPECT_TRUE(service.SetUserExtra(1, "EMS", user));
  EXPECT_TRUE(service.GetUserExtra(enabled, address, user));
  EXPECT_EQ(address + std::to_string(enabled), "EMS1");
  const std::string record = CurrentUser(service);
  EXPECT_STREQ(record.data() + 366, "EMS");
  EXPECT_EQ(record[362], 1);
}

TEST_F(UsersTest, ListsTheUsersOfThisServiceWithTheirIdentities) {
  auto& other = NewServiceAs<CNtfyServiceSMTP>(kTypeSmtp, "Other");
  ListDialog dialog;
  EXPECT_FALSE(other.FillUserList(dialog.list));
  const GUID ann = MakeUser("Ann"), bob = MakeUser("Bob"), eve = MakeUser("Eve");
  ASSERT_TRUE(other.SaveUserEntry(eve, {"Eve", "e", 1}));
  auto& service = NewServiceAs<CNtfyServiceSMTP>(kTypeSmtp, "Mail");
  EXPECT_FALSE(service.FillUserList(dialog.list)) << "the store has users, but none of this service";
  ASSERT_TRUE(service.SaveUserEntry(bob, {"Bob", "b", 1}));
  ASSERT_TRUE(service.SaveUserEntry(ann, {"Ann", "a", 1}));
  EXPECT_TRUE(service.FillUserList(dialog.list));
  ASSERT_EQ(dialog.list.Count(), 2);
  EXPECT_EQ(dialog.list.ItemText(0), "Ann");
  EXPECT_EQ(ListedUsers::UserOf(dialog.list.Data(0)), ann);
  EXPECT_EQ(ListedUsers::UserOf(dialog.list.Data(1)), bob);
  const char* none = "No records in the user installed services database.";
  EXPECT_THAT(desktop.TakeMessages(), ElementsAre(none, none));
}

TEST_F(UsersTest, TypesWithoutUsersAnswerForNone) {
  for (const std::uint32_t code : {1U, 7U, 8U, 12U, 13U}) {
    SCOPED_TRACE(code);
    const GUID user = MakeUser("Operator");
    CNtfyService& service = NewService(code);
    ListDialog dialog;
    EXPECT_FALSE(service.DeleteUser(user));
    EXPECT_TRUE(service.FillUserList(dialog.list));
    EXPECT_EQ(dialog.list.Count(), 0);
    ASSERT_TRUE(service.AddOrUpdateUserLink(user, GUID::Generate(), code + 1, 1));
    EXPECT_EQ(service.IsUserConfigured(user), code != kTypeTts && code != kTypeGeneric);
    auto* users = dynamic_cast<CNtfyServiceUserBase*>(&service);
    if (users == nullptr) continue;
    EXPECT_EQ(EntryOf(*users, user, {"kept", "kept", 5}), "kept, kept, 5");
    EXPECT_TRUE(users->SaveUserEntry(user, {"kept", "kept", 5}));
    EXPECT_EQ(AddressOf(*users, user), "-");
  }
}

}  // namespace
