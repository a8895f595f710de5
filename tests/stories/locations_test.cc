// SPDX-License-Identifier: MIT
#include "alerting/telephony/locations.h"

#include "alerting/frame/strings.h"
#include "alerting/telephony/countries.h"
#include "alerting/telephony/dialing_properties_dlg.h"
#include "alerting/telephony/dialing_rules_dlg.h"
#include "alerting/telephony/location_name_dlg.h"
#include "alerting/telephony/providers.h"
#include "alerting/telephony/set_pager_provider_dlg.h"
#include "tests/stories/story_test.h"
#include "tests/support/service_fixture.h"

namespace stories {
namespace {

using namespace alerting;  // NOLINT
using platform::ui::Answer;
using test_support::StoreOp;

constexpr char kDialog[] = "Dialing Properties";
constexpr char kFrom[] = "I am &dialing from:";
constexpr char kAreaCode[] = "The area &code is:";
constexpr char kCountry[] = "&I am in:";
constexpr char kOutside[] = "To access an &outside line, first dial:";
constexpr char kLongDistance[] = "for long distance.";
constexpr char kCallWaiting[] = "This location has call &waiting.  To disable it, dial:";
constexpr char kDisable[] = "To disable call waiting, dial:";
constexpr char kUses[] = "The phone system at this location uses";
constexpr char kNoLocations[] =
    "No records in the modem location database. You will need to add a location (using the New button) in "
    "order to use a modem.";
constexpr char kDelete[] =
    "Are you sure you want to delete the location?  This operation is immediate and cannot be canceled "
    "later.";

class LocationsTest : public StoryTest {
 protected:
  void SetUp() override { EnsureStoresOpen(); }
  void Add(const char* name) {
    platform::GUID id{};
    ASSERT_TRUE(CreateLocation(name, id));
  }
  static ALRTMODEM_LOCATION Stored(const char* name) {
    ALRTMODEM_LOCATION location{};
    EXPECT_TRUE(ReadLocation(name, location)) << name;
    return location;
  }
  int Run(desktops::Script::Story story) {
    Script().ExpectWindow(kDialog, std::move(story));
    return CDialingPropertiesDlg(nullptr).RunModal();
  }

  test_support::LibraryUnderTest library_;
};

TEST_F(LocationsTest, EveryFieldIsStoredAtItsOffset) {
  Add("Office");
  EXPECT_EQ(Run([](Person& p) {
              EXPECT_EQ(p.Text(kCountry), "United States of America");
              EXPECT_EQ(p.ChosenOption(kUses), "&Tone dialing");
              p.Type(kAreaCode, "80x1 2345678901");
              p.Choose(kCountry, "Germany");
              p.Type(kOutside, "9,");
              p.Paste(kLongDistance, "(555) 12-34 x9");
              EXPECT_EQ(p.Text(kLongDistance), "(555)12-349");
              EXPECT_FALSE(p.IsEnabled(kDisable));
              p.Check(kCallWaiting, true);
              p.Type(kDisable, "*70");
              p.ChooseOption(kUses, "&Pulse dialing");
              p.Press("OK");
            }),
            ui::kOk);
  const ALRTMODEM_LOCATION stored = Stored("Office");
  EXPECT_EQ(stored.areaCode.View(), "80123456789");
  EXPECT_EQ(stored.localAccess.View(), "9,");
  EXPECT_EQ(stored.longDistanceAccess.View(), "(555)12-349");
  EXPECT_EQ(stored.callWaitingDisable.View(), "*70");
  EXPECT_EQ(stored.hasCallWaiting, 1u);
  EXPECT_EQ(stored.toneDialing, 0u);
  EXPECT_EQ(stored.countryCode, 49u);
}

TEST_F(LocationsTest, ACountryWithoutAreaCodesTakesThemAway) {
  Add("Office");
  Run([](Person& p) {
    p.Type(kAreaCode, "801");
    p.Choose(kCountry, "Singapore");
    EXPECT_EQ(p.Text(kAreaCode), "");
    EXPECT_FALSE(p.IsEnabled(kAreaCode));
    p.Choose(kCountry, "Afghanistan");
    EXPECT_TRUE(p.IsEnabled(kAreaCode));
    p.Press("Cancel");
  });
  EXPECT_EQ(Stored("Office").areaCode.View(), "");
}

TEST_F(LocationsTest, ChoosingAnotherLocationStoresTheOneBefore) {
  Add("Home");
  Add("Office");
  Script().ExpectWindow(kDialog, [&](Person& p) {
    p.Type(kOutside, "9");
    p.Choose(kFrom, "Home");
    EXPECT_EQ(Stored("Office").localAccess.View(), "9");
    EXPECT_EQ(p.Text(kOutside), "");
    p.Type(kOutside, "0");
    library_.engine->FailAll("ModemLocationDB.dat", StoreOp::kUpdate);
    p.Choose(kFrom, "Office");
    EXPECT_EQ(p.Text(kFrom), "Home") << "whose settings still stand in the fields";
    EXPECT_EQ(p.Text(kOutside), "0");
    EXPECT_THAT(library_.engine->HeldLocks(), IsEmpty());
    library_.engine->FailNone();
    p.Press("Cancel");
  });
  Script().ExpectMessage("Unable to update the modem location database record.");
  CDialingPropertiesDlg(nullptr, "Office").RunModal();
  EXPECT_EQ(Stored("Home").localAccess.View(), "");
}

TEST_F(LocationsTest, LocationsAreAddedAndRemovedAtOnce) {
  Add("Office");
  Script().ExpectWindow(kDialog, [&](Person& p) {
    p.Choose(kCountry, "Singapore");
    p.ChooseOption(kUses, "&Pulse dialing");
    p.Press("&New...");
    EXPECT_EQ(p.Text(kFrom), "Home");
    EXPECT_EQ(p.Text(kCountry), "United States of America");
    EXPECT_EQ(p.ChosenOption(kUses), "&Tone dialing");
    EXPECT_TRUE(p.IsEnabled(kAreaCode));
    p.Press("&New...");
    EXPECT_THAT(p.Items(kFrom), ElementsAre("Home", "Office"));
    p.Press("&Remove");
    p.Press("&Remove");
    library_.engine->FailAll("ModemLocationDB.dat", StoreOp::kDelete);
    p.Press("&Remove");
    library_.engine->FailNone();
    p.Press("&Remove");
    EXPECT_THAT(p.Items(kFrom), IsEmpty());
    p.Press("Cancel");
  });
  for (const char* name : {"Home", "Office"}) {
    Script().ExpectWindow("Enter Name of Location", [name](Person& p) {
      EXPECT_FALSE(p.IsEnabled("OK"));
      p.Type("&Name:", name);
      p.Press("OK");
    });
  }
  Script().ExpectMessage("You cannot create a location with the same name as an existing location.");
  Script().ExpectMessage(kDelete, Answer::kNo);
  for (int i = 0; i < 2; ++i) Script().ExpectMessage(kDelete, Answer::kYes);
  Script().ExpectMessage("Unable to delete record from modem locations database.");
  Script().ExpectMessage(kDelete, Answer::kYes);
  Script().ExpectMessage(kNoLocations);
  CDialingPropertiesDlg(nullptr).RunModal();
}

TEST_F(LocationsTest, WhatTheStoreRefusesIsToldAndTheInputStays) {
  Script().ExpectMessage(kNoLocations);
  Script().ExpectWindow(kDialog, [](Person& p) {
    EXPECT_EQ(p.Text(kCountry), "United States of America");
    p.Press("OK");
    p.Press("Cancel");
  });
  Script().ExpectMessage(kNoLocations);
  EXPECT_EQ(CDialingPropertiesDlg(nullptr).RunModal(), ui::kCancel);

  for (const char* name : {"Gone", "Home", "Office"}) Add(name);
  Script().ExpectWindow(kDialog, [&](Person& p) {
    library_.engine->FailAll("ModemLocationDB.dat", StoreOp::kAdd);
    p.Press("&New...");
    EXPECT_EQ(p.Items(kFrom).size(), 3u);
    library_.engine->FailNone();
    p.Type(kOutside, "9");
    ASSERT_TRUE(DeleteLocation("Gone"));
    p.Press("OK");
    p.Press("&Remove");
    EXPECT_EQ(p.Text(kOutside), "9");
    Add("Gone");
    library_.engine->FailNth("ModemLocationDB.dat", StoreOp::kFindFirst, 3);  // the load of the next one
    p.Press("&Remove");
    p.Choose(kFrom, "Office");
    EXPECT_EQ(p.Text(kOutside), "") << "what was entered for the removed one does not stand in the way";
    EXPECT_THAT(library_.engine->HeldLocks(), IsEmpty());
    p.Press("Cancel");
  });
  Script().ExpectWindow("Enter Name of Location", Fill({{"&Name:", "Refused"}}));
  Script().ExpectMessage("Unable to add record to modem locations database.");
  Script().ExpectMessage(kNoLocations);
  for (int i = 0; i < 2; ++i) {
    Script().ExpectMessage(kDelete, Answer::kYes);
    Script().ExpectMessage(kNoLocations);
  }
  CDialingPropertiesDlg(nullptr).RunModal();
}

TEST_F(LocationsTest, NamesHoldSixtyFourCharactersAndCountriesKeepTheirNumbers) {
  for (const std::size_t length : {63u, 64u, 65u}) {
    const std::string typed(length, 'n');
    Script().ExpectWindow("Enter Name of Location", Fill({{"&Name:", typed}}));
    CLocationNameDlg dialog(nullptr);
    ASSERT_EQ(dialog.RunModal(), ui::kOk);
    if (length > 64)
      Script().ExpectMessage("You cannot create a location with the same name as an existing location.");
    platform::GUID id{}, found{};
    EXPECT_EQ(CreateLocation(dialog.Name(), id), length <= 64);
    EXPECT_EQ(FindLocationByName(typed, found), length <= 64);
    EXPECT_EQ(found, id);
  }
  std::set<std::string> names;
  int without_area_codes = 0;
  for (const Country* country = CountryTable.data(); country->id != 0; ++country) {
    names.insert(Text(static_cast<int>(country->id)));
    without_area_codes += country->has_area_codes == 0;
  }
  EXPECT_EQ(names.size(), 241u);
  EXPECT_EQ(without_area_codes, 19);
}

TEST_F(LocationsTest, RulesAreCopiedBackOnOkAlone) {
  char same[40] = "1", distance[40] = "2", abroad[40] = "3";
  for (const char* button : {"Cancel", "OK"}) {
    Script().ExpectWindow("Dialing Rules", [button](Person& p) {
      EXPECT_EQ(p.Text("&Long distance calls:"), "2");
      p.Type("&Calls within the same area code:", "#9!@x");
      p.Type("&International calls:", "");
      p.Press(button);
    });
    CDialingRulesDlg(nullptr, same, distance, abroad).RunModal();
    EXPECT_STREQ(same, button == std::string("OK") ? "#9!@" : "1");
  }
  EXPECT_STREQ(abroad, "");
}

TEST_F(LocationsTest, AChosenProviderReplacesTheServicesTexts) {
  const platform::GUID service = test_support::SeedService(kTypeAlpha, "Pager", 0xA5);
  CNtfyService& pager = *test_support::Find(service);
  const auto run = [&](desktops::Script::Story story) {
    Script().ExpectWindow("Set Alphanumeric Pager Service Provider", std::move(story));
    return RunSetPagerProvider(pager, nullptr);
  };
  Script().ExpectMessage("The service provider database is empty (has no records).");
  EXPECT_EQ(run([](Person& p) {
              p.Press("OK");
              p.Press("Cancel");
            }),
            ui::kCancel);

  ALRTAPAGE_SERVICE_PROVIDER_REC provider{};
  provider.company.Assign("Example Paging");
  provider.regionB.Assign("North");
  provider.phone.Assign("555-0123");
  provider.baudRate = 2400;
  provider.maxTextLength = 240;
  test_support::AddRecord(ProviderStore(), provider);
  EXPECT_EQ(run([](Person& p) { p.Press("OK"); }), ui::kOk);
  std::string expected =
      test_support::StoredSpecific(kTypeAlpha, test_support::StoredCommon(service).specificRecordId);
  const std::string stored = expected;
  test_support::PutText(expected, 16, 2049, " North");
  test_support::PutU32(expected, 2322, 240);
  test_support::PutText(expected, 2326, 65, "Example Paging");
  test_support::PutText(expected, 2391, 26, "555-0123");
  test_support::PutU32(expected, 3783, 2400);
  for (const std::size_t offset : {3787u, 3791u, 3795u}) test_support::PutU32(expected, offset, 0);
  EXPECT_EQ(stored, expected);
  EXPECT_EQ(stored[4100], '\xA5') << "what the provider says nothing of stays";

  for (int i = 0; i < 1000; ++i) test_support::AddRecord(ProviderStore(), provider);
  EXPECT_TRUE(LoadProviderTable());
  EXPECT_EQ(TheProviders().count, 1000u) << "of 1,001";
}

}  // namespace
}  // namespace stories
