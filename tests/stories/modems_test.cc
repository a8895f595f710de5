// SPDX-License-Identifier: MIT
#include "alerting/sheets/service_sheets.h"
#include "alerting/telephony/locations.h"
#include "alerting/telephony/manage_modem_types_dlg.h"
#include "alerting/telephony/modem_lists.h"
#include "alerting/telephony/modem_properties_dlg.h"
#include "alerting/telephony/new_modem_dlgs.h"
#include "tests/stories/story_test.h"
#include "tests/support/service_fixture.h"

namespace stories {
namespace {

using namespace alerting;  // NOLINT
using platform::ui::Answer;
using test_support::StoreOp;

constexpr char kModem[] = "Modem Properties";
constexpr char kNoModems[] =
    "No records in the modem database. You will need to add a location (using the New button) in order to "
    "use a modem.";
constexpr char kNoLocations[] =
    "No records in the modem location database. You will need to add a location (using the New button) in "
    "order to use a modem.";
constexpr char kNoManagers[] = "No records in the Alert Manager database.";
constexpr char kTypeFailed[] = "Unable to add record to the modem type database.";
constexpr char kSameType[] = "You cannot create a modem type with the same name as an existing modem type.";
constexpr char kRemoveType[] =
    "Are you sure you want to delete the modem type?  This operation is immediate and cannot be canceled "
    "later.";
constexpr char kPage[] = "Modems";

class ModemsTest : public StoryTest {
 protected:
  void SetUp() override {
    EnsureStoresOpen();
    ASSERT_TRUE(CreateLocation("Office", office_));
    ALRT_SRV_CFGREC manager{};
    manager.managerName.Assign("ALPHA");
    alpha_ = test_support::AddRecord(ManagerStore(), manager);
    type_ = Add(ModemTypeStore(), "Courier", [](ALRTSERV_MODEM& type) {
      type.initString.Assign("AT&F1");
      type.hangupString.Assign("ATH0");
      type.dialPrefix.Assign("ATDT");
      type.baudRate = 9600;
      type.comPort = 2;
      type.capabilities = 3;
    });
    modem_ = Add(ModemStore(), "Modem", [&](ALRTSERV_MODEM& modem) {
      modem.baudRate = 1200;
      modem.comPort = 1;
      modem.managerGuid = alpha_;
      modem.managerName.Assign("ALPHA");
      modem.locationGuid = office_;
      modem.modemTypeGuid = type_;
      modem.reserved[7] = 0xA5;
    });
  }

  template <class Store, class Fill>
  static GUID Add(Store& store, const char* name, Fill fill) {
    ALRTSERV_MODEM record{};
    fill(record);
    record.name.Assign(name);
    return test_support::AddRecord(store, record);
  }
  static ALRTSERV_MODEM Stored(ModemStoreOf store, const GUID& id) {
    ALRTSERV_MODEM record{};
    EXPECT_TRUE(FindModemOrFirst(store, id, record));
    return record;
  }
  std::string ModemBytes() const { return test_support::BytesOf(Stored(ModemStore, modem_)); }
  int Edit(desktops::Script::Story story) {
    Script().ExpectWindow(kModem, std::move(story));
    return CModemPropertiesDlg(nullptr, modem_).RunModal();
  }

  test_support::LibraryUnderTest library_;
  GUID office_{}, alpha_{}, type_{}, modem_{};
};

TEST_F(ModemsTest, EveryFieldOfAModemIsStoredAtItsOffset) {
  std::string expected = ModemBytes();
  Script().ExpectWindow(kModem, [](Person& p) {
    EXPECT_EQ(p.Text("&Type:"), "Courier");
    EXPECT_EQ(p.Text("I am dialing &from"), "Office");
    EXPECT_FALSE(p.IsEnabled("&Apply"));
    p.Press("Ad&vanced");
    EXPECT_TRUE(p.IsEnabled("&Apply"));
    p.Choose("&Port:", "COM4:");
    p.Choose("&Baud rate:", "57600");
    p.Type("&Comment:", "in the rack");
    p.Check("&Enable", true);
    p.Check("&Online Service", true);
    p.Check("&Numeric Pager", true);
    EXPECT_FALSE(p.IsVisible("&Voice"));
    p.Press("OK");
  });
  Script().ExpectWindow("Modem Advanced Properties",
                        Fill({{"&Initialization string:", "ATZ"},
                              {"&Hangup string:", "+++ATH"},
                              {"Dialing &prefix string:", "ATDP"},
                              {"Dialing &suffix string:", ";"},
                              {"&Escape string:", "+++"},
                              {"&Alpha pager initialization string:", std::string(300, 'A')}}));
  EXPECT_EQ(CModemPropertiesDlg(nullptr, platform::kNullGuid).RunModal(), ui::kOk);
  test_support::PutText(expected, 162, 2049, "in the rack");
  test_support::PutU32(expected, 2211, 1);
  test_support::PutText(expected, 2215, 256, "ATZ");
  test_support::PutText(expected, 2471, 36, "+++ATH");
  test_support::PutText(expected, 2507, 36, "ATDP");
  test_support::PutText(expected, 2543, 36, ";");
  test_support::PutText(expected, 2579, 36, std::string(35, 'A'));
  test_support::PutU32(expected, 2615, 57600);
  test_support::PutU32(expected, 2619, 4);
  test_support::PutU32(expected, 2623, 1 + 4);
  test_support::PutText(expected, 2627, 36, "+++");
  EXPECT_EQ(ModemBytes(), expected);
}

TEST_F(ModemsTest, ADirectPortStandsAloneAndANewTypeBringsItsStrings) {
  Edit([](Person& p) {
    p.Check("&Numeric Pager", true);
    p.Check("Direct Po&rt I/O", true);
    EXPECT_FALSE(p.IsChecked("&Numeric Pager"));
    EXPECT_FALSE(p.IsEnabled("A&lpha Pager"));
    p.Press("&Apply");
    EXPECT_FALSE(p.IsEnabled("&Apply"));
    p.Check("Direct Po&rt I/O", false);
    EXPECT_TRUE(p.IsEnabled("A&lpha Pager"));
    p.Press("Cancel");
  });
  EXPECT_EQ(Stored(ModemStore, modem_).capabilities, 16u) << "what was applied stays after Cancel";
  const GUID other = Add(ModemTypeStore(), "Zoom", [](ALRTSERV_MODEM& type) {
    type.initString.Assign("ATX4");
    type.baudRate = 300;
  });
  Edit([](Person& p) {
    p.Choose("&Type:", "Zoom");
    p.Press("OK");
  });
  const ALRTSERV_MODEM stored = Stored(ModemStore, modem_);
  EXPECT_EQ(stored.name.View(), "Zoom");
  EXPECT_EQ(stored.initString.View(), "ATX4");
  EXPECT_EQ(stored.modemTypeGuid, other);
  EXPECT_EQ(stored.baudRate, 1200u);
}

TEST_F(ModemsTest, ADirectPortShowsNoOtherUseWhateverItsRecordSays) {
  modem_ = Add(ModemStore(), "Port", [](ALRTSERV_MODEM& modem) { modem.capabilities = 16 + 1; });
  Edit([](Person& p) {
    EXPECT_TRUE(p.IsChecked("Direct Po&rt I/O"));
    EXPECT_FALSE(p.IsChecked("&Numeric Pager"));
    EXPECT_FALSE(p.IsEnabled("&Numeric Pager"));
    p.Press("Cancel");
  });
}

TEST_F(ModemsTest, AFailedSaveSaysWhyAndKeepsTheInput) {
  const std::string before = ModemBytes();
  ASSERT_TRUE(DeleteLocation("Office"));
  GUID home{};
  ASSERT_TRUE(CreateLocation("Home", home));
  Script().ExpectWindow(kModem, [&](Person& p) {
    p.Type("&Comment:", "kept");
    p.Press("OK");
    p.Choose("I am dialing &from", "Home");
    library_.engine->FailAll("ModemDB.dat", StoreOp::kUpdate);
    p.Press("OK");
    library_.engine->FailAll("ModemDB.dat", StoreOp::kLock);
    p.Press("&Apply");
    library_.engine->FailNone();
    ASSERT_EQ(ManagerStore().DBAlertRecDelete(alpha_), kOk);
    p.Press("OK");
    EXPECT_EQ(p.Text("&Comment:"), "kept");
    EXPECT_TRUE(p.IsEnabled("&Apply"));
    EXPECT_THAT(library_.engine->HeldLocks(), IsEmpty());
    p.Press("Cancel");
  });
  Script().ExpectMessage("You must select a location for the modem before you update the record.");
  for (int i = 0; i < 2; ++i) Script().ExpectMessage("Unable to update the modem database record.");
  Script().ExpectMessage(kNoManagers);
  Script().ExpectMessage("You must select an alert manager for the modem before you update the record.");
  CModemPropertiesDlg(nullptr, modem_).RunModal();
  EXPECT_EQ(ModemBytes(), before);
}

TEST_F(ModemsTest, WhatIsMissingIsToldInTheOrderOfTheFields) {
  const GUID zoom = Add(ModemTypeStore(), "Zoom", [](auto&) {});
  Script().ExpectWindow(kModem, [&](Person& p) {
    ASSERT_TRUE(DeleteModemType(zoom));
    p.Choose("&Type:", "Zoom");
    EXPECT_TRUE(p.IsEnabled("&Apply"));
    p.Press("Cancel");
  });
  Script().ExpectMessage(kNoModems);
  CModemPropertiesDlg(nullptr, modem_).RunModal();

  ASSERT_TRUE(DeleteModemType(type_));
  ASSERT_TRUE(DeleteLocation("Office"));
  ASSERT_EQ(ManagerStore().DBAlertRecDelete(alpha_), kOk);
  for (const char* message : {kNoLocations, kNoManagers, kNoModems}) Script().ExpectMessage(message);
  Edit([](Person& p) { p.Press("OK"); });
  ASSERT_TRUE(DeleteModem(modem_));
  Script().ExpectMessage(kNoModems);
  Edit([](Person& p) {
    EXPECT_THAT(p.Items("&Port:"), IsEmpty());
    p.Press("OK");
  });
}

TEST_F(ModemsTest, ATypeIsSavedWithoutAnAlertManagerAndThenNamesNone) {
  const GUID left = Add(ModemTypeStore(), "Left", [](ALRTSERV_MODEM& type) {
    type.managerGuid = GUID::Generate();
    type.managerName.Assign("GONE");
  });
  Script().ExpectWindow("Modem Type Properties", [](Person& p) {
    p.Check("&Enable", true);
    p.Press("OK");
  });
  Script().ExpectMessage(kNoManagers);
  EXPECT_EQ(CModemTypePropertiesDlg(nullptr, left).RunModal(), ui::kOk);
  const ALRTSERV_MODEM stored = Stored(ModemTypeStore, left);
  EXPECT_EQ(stored.enabled, 1u);
  EXPECT_EQ(stored.managerName.View(), "");
  EXPECT_TRUE(stored.managerGuid.IsNull());
}

TEST_F(ModemsTest, LocationsAreMadeAndEditedFromAModem) {
  Script().ExpectWindow(kModem, [](Person& p) {
    p.Press("Ne&w...");
    EXPECT_EQ(p.Text("I am dialing &from"), "Home");
    p.Press("E&dit...");
    EXPECT_EQ(p.Text("I am dialing &from"), "Office");
    EXPECT_TRUE(p.IsEnabled("&Apply"));
    p.Press("Cancel");
  });
  Script().ExpectWindow("Enter Name of Location", Fill({{"&Name:", "Home"}}));
  Script().ExpectWindow("Dialing Properties", [](Person& p) { p.Press("OK"); });
  Script().ExpectWindow("Dialing Properties", [](Person& p) {
    EXPECT_EQ(p.Text("I am &dialing from:"), "Home");
    p.Choose("I am &dialing from:", "Office");
    p.Press("OK");
  });
  CModemPropertiesDlg(nullptr, modem_).RunModal();
}

TEST_F(ModemsTest, ANewModemTakesAProposedNameAndItsTypesSettings) {
  for (const char* name : {"Courier", "Courier (2)"}) Add(ModemStore(), name, [](auto&) {});
  Script().ExpectWindow("Create new modem", [&](Person& p) {
    EXPECT_FALSE(p.IsEnabled("OK"));
    p.Choose("&Select modem type for the new modem:", "Courier");
    EXPECT_EQ(p.Text("&Enter name for new modem:"), "Courier (3)");
    p.Type("&Enter name for new modem:", "Modem");
    p.Press("OK");
    EXPECT_FALSE(p.IsEnabled("OK"));
    p.Type("&Enter name for new modem:", "Mine");
    library_.engine->FailAll("ModemDB.dat", StoreOp::kAdd);
    p.Press("OK");
    library_.engine->FailNone();
    p.Type("&Enter name for new modem:", "Mine!");
    p.Press("OK");
  });
  Script().ExpectMessage(
      "You cannot create a modem with the same name as an existing modem.  Try changing the name of the "
      "modem to one that is not in use.");
  Script().ExpectMessage("Unable to add record to the modem database.");
  CNewModemDlg dialog(nullptr);
  ASSERT_EQ(dialog.RunModal(), ui::kOk);
  const ALRTSERV_MODEM made = Stored(ModemStore, dialog.Modem());
  EXPECT_EQ(made.name.View(), "Mine!");
  EXPECT_EQ(made.modemTypeGuid, type_);
  EXPECT_EQ(made.dialPrefix.View(), "ATDT");
  EXPECT_EQ(made.baudRate, 9600u);
}

TEST_F(ModemsTest, TypesAreMadeChangedAndRemovedAtOnce) {
  Script().ExpectWindow("Manage Modem Types", [&](Person& p) {
    EXPECT_FALSE(p.IsEnabled("&Remove"));
    p.Press("&New...");
    p.Press("&New...");
    EXPECT_THAT(p.Items("&Modem Types:"), ElementsAre("Courier", "Mine"));
    p.Choose("&Modem Types:", "Courier");
    p.Press("&Remove");
    library_.engine->FailAll("QModemDB.dat", StoreOp::kDelete);
    p.Choose("&Modem Types:", "Courier");
    p.Press("&Remove");
    library_.engine->FailNone();
    p.Choose("&Modem Types:", "Courier");
    p.Press("&Remove");
    EXPECT_THAT(p.Items("&Modem Types:"), ElementsAre("Mine"));
    p.Press("Close");
  });
  for (const char* name : {"Mine", "Courier"}) {
    Script().ExpectWindow("Create new modem type", [name](Person& p) {
      p.Type("&Enter name of the new type:", name);
      EXPECT_FALSE(p.IsEnabled("OK"));
      p.Choose("&Select modem type to use as a basis for the new type:", "Courier");
      p.Press("OK");
    });
    if (std::string(name) == "Mine") {
      Script().ExpectWindow("Modem Type Properties", [](Person& p) {
        EXPECT_EQ(p.Text("&Type:"), "Mine");
        EXPECT_FALSE(p.IsEnabled("&Type:"));
        p.Check("Po&rt", true);
        p.Choose("&Machine:", "ALPHA");
        p.Press("OK");
      });
    }
  }
  Script().ExpectMessage(kSameType);
  Script().ExpectMessage(kRemoveType, Answer::kNo);
  Script().ExpectMessage(kRemoveType, Answer::kYes);
  Script().ExpectMessage("Unable to delete record in the modem database.");
  Script().ExpectMessage(kRemoveType, Answer::kYes);
  CManageModemTypesDlg(nullptr).RunModal();
  const ALRTSERV_MODEM mine = Stored(ModemTypeStore, platform::kNullGuid);
  EXPECT_EQ(mine.name.View(), "Mine");
  EXPECT_EQ(mine.capabilities, 16u);
  EXPECT_EQ(mine.managerName.View(), "ALPHA");
}

// Another console changes the types between two fills of lists: what a list shows is what its buttons act on.
TEST_F(ModemsTest, RemoveTakesTheTypeThatIsShown) {
  for (const char* name : {"Second", "Third"}) Add(ModemTypeStore(), name, [](auto&) {});
  Script().ExpectWindow("Manage Modem Types", [&](Person& p) {
    ASSERT_TRUE(DeleteModemType(type_));
    p.Press("&New...");
    p.Choose("&Modem Types:", "Second");
    p.Press("&Remove");
    EXPECT_THAT(p.Items("&Modem Types:"), ElementsAre("Third"));
    p.Press("Close");
  });
  Script().ExpectWindow("Create new modem type", [](Person& p) {
    p.Type("&Enter name of the new type:", "Third");
    p.Choose("&Select modem type to use as a basis for the new type:", "Second");
    p.Press("OK");
  });
  Script().ExpectMessage(kSameType);
  Script().ExpectMessage(kRemoveType, Answer::kYes);
  CManageModemTypesDlg(nullptr).RunModal();
}

TEST_F(ModemsTest, ListsEndAtTheirRoom) {
  ui::Dialog dialog(nullptr, "Lists");
  ui::ListView list(dialog, 1, "List");
  ui::ComboBox types(dialog, 2, "Types", true), rates(dialog, 3, "Rates");
  for (int i = 0; i < 256; ++i) Add(ModemStore(), ("M" + std::to_string(i)).c_str(), [](auto&) {});
  FillModemListCtrl(list, modem_);
  EXPECT_EQ(list.RowCount(), 256);
  EXPECT_EQ(list.SelectedRow(), 0);
  FillBaudRateCombo(rates, 9600, 19200);
  EXPECT_EQ(rates.Text(), "9600");
  EXPECT_EQ(rates.Count(), 9);
  for (int i = 0; i < 5000; ++i) Add(ModemTypeStore(), ("T" + std::to_string(i)).c_str(), [](auto&) {});
  FillModemTypeCombo(types, "courier");
  EXPECT_EQ(types.Count(), 5000) << "of 5,001";
  EXPECT_EQ(types.Current(), -1) << "names are compared byte by byte";
}

TEST_F(ModemsTest, WithoutTypesNothingIsMadeAndNamesAreCutForTheirNumber) {
  const std::string longest(64, 't');
  Add(ModemStore(), longest.c_str(), [](auto&) {});
  EXPECT_EQ(ProposeModemName(longest), std::string(60, 't') + " (2)");
  GUID id{};
  library_.engine->FailAll("QModemDB.dat", StoreOp::kAdd);
  Script().ExpectMessage(kTypeFailed);
  EXPECT_FALSE(CreateModemType("Mine", type_, id));
  library_.engine->FailNone();
  ASSERT_TRUE(DeleteModemType(type_));
  Script().ExpectMessage(kTypeFailed);
  EXPECT_FALSE(CreateModemType("Mine", type_, id));
  EXPECT_TRUE(id.IsNull());
  Script().ExpectMessage(kNoModems);
  Script().ExpectWindow("Create new modem", [](Person& p) {
    EXPECT_FALSE(p.IsEnabled("OK"));
    p.Type("&Enter name for new modem:", std::string(65, 'm'));
    EXPECT_EQ(p.Text("&Enter name for new modem:").size(), 64u);
    p.Press("OK");
    EXPECT_FALSE(p.IsEnabled("OK"));
    p.Press("Cancel");
  });
  Script().ExpectMessage(kNoModems);
  EXPECT_EQ(CNewModemDlg(nullptr).RunModal(), ui::kCancel);
}

class ModemPageTest : public ModemsTest {
 protected:
  void SetUp() override {
    ModemsTest::SetUp();
    service_ = test_support::SeedService(kTypeNumeric, "Pager");
  }
  /// Opens the sheet at its Modems page.
  template <class Sheet>
  void Open(desktops::Script::Story story) {
    Script().ExpectWindow("Pager", [story](Person& p) {
      p.SelectTab(kPage);
      story(p);
    });
    RunSheet<Sheet>(*test_support::Find(service_), nullptr);
  }
  std::string Stored(bool backup) {
    const auto common = test_support::StoredCommon(service_);
    return test_support::StoredSpecific(kTypeNumeric,
                                        backup ? common.backupSpecificRecordId : common.specificRecordId);
  }

  GUID service_{};
};

TEST_F(ModemPageTest, TheChosenModemAndLineGoIntoTheRecord) {
  service_ = test_support::SeedService(kTypeNumeric, "Pager", 0xA5);
  test_support::Find(service_);  // makes the backup record
  Script().ExpectWindow("Pager", [](Person& p) {
    p.Type("&Delay:", "12");
    p.SelectTab(kPage);
    EXPECT_THAT(p.Rows(kPage), ElementsAre(ElementsAre("Modem", "ALPHA", "COM1", "1200")));
    EXPECT_FALSE(p.IsEnabled("&Properties"));
    EXPECT_EQ(p.ChosenOption("Data Bits"), "") << "a stored value outside the table";
    p.Type("&Script File:", "dial.scr");
    p.Press("OK");
    p.ClickRow(kPage, 0);
    EXPECT_TRUE(p.IsEnabled("&Properties"));
    p.Choose("&Baud Rate:", "2400");
    p.ChooseOption("Data Bits", "&7");
    p.ChooseOption("Parity", "&Even");
    p.ChooseOption("Stop Bits", "&2");
    p.Press("OK");
  });
  Script().ExpectMessage("You must select a modem before you update the record.");
  RunSheet<CSheetServiceNum>(*test_support::Find(service_), nullptr);
  TheServices().RemoveAll();  // what is read is what was stored
  ModemSettings stored;
  auto& service = test_support::Users(*test_support::Find(service_));
  ASSERT_TRUE(service.GetModemSettings(stored, false));
  EXPECT_EQ(std::tuple(stored.modem, stored.baudRate, stored.dataBits, stored.parityCode, stored.stopBitsCode,
                       stored.scriptFile),
            std::tuple(modem_, 2400u, 7u, 2u, 2u, "dial.scr"));
}

TEST_F(ModemPageTest, TheBackupLinkIsTheOtherRecord) {
  service_ = test_support::SeedService(kTypeNumeric, "Pager", 0xA5);
  test_support::Find(service_);
  const std::string primary = Stored(false);
  Open<CSheetServiceModem>([](Person& p) {
    p.ClickRow(kPage, 0);
    p.Press("Apply");
    EXPECT_FALSE(p.IsEnabled("Apply"));
    p.Type("&Script File:", "dial.scr");
    EXPECT_TRUE(p.IsEnabled("Apply"));
    p.Press("OK");
  });
  EXPECT_EQ(Stored(false), primary);
  EXPECT_EQ(Stored(true).substr(2134, 16), std::string(reinterpret_cast<const char*>(&modem_), 16));
  EXPECT_EQ(Stored(true).substr(3170, 8), "dial.scr");
  EXPECT_EQ(Stored(true).substr(3431, 16), std::string(16, '\xA5')) << "a line outside the tables stays";
}

TEST_F(ModemPageTest, APageWithoutAServiceSavesNothing) {
  CPropPgModem page;
  ui::PropertySheet sheet("Pager", nullptr);
  sheet.AddPage(page);
  Script().ExpectWindow("Pager", [&](Person& p) {
    p.ClickRow(kPage, 0);
    page.ReloadModemSettings();
    EXPECT_FALSE(page.SavePage());
    p.Press("Cancel");
  });
  sheet.RunModal();
}

TEST_F(ModemPageTest, ModemsAreMadeChangedAndRemovedAtOnceWhateverBecomesOfTheSheet) {
  Script().ExpectWindow("Pager", [](Person& p) {
    p.SelectTab(kPage);
    p.Press("Ne&w...");
    EXPECT_EQ(p.Rows(kPage).size(), 2u);
    p.DoubleClickRow(kPage, 0);
    p.ClickRow(kPage, 1);
    p.Press(ui::Key::kDelete);
    p.ClickRow(kPage, 1);
    p.Press("&Delete");
    EXPECT_EQ(p.Rows(kPage).size(), 1u);
    EXPECT_FALSE(p.IsEnabled("&Delete"));
    p.Press("&Manage Modem Types");
    p.Press("Cancel");
  });
  Script().ExpectWindow("Create new modem", [](Person& p) {
    p.Choose("&Select modem type for the new modem:", "Courier");
    p.Press("OK");
  });
  for (int i = 0; i < 2; ++i) Script().ExpectWindow(kModem, [](Person& p) { p.Press("Cancel"); });
  constexpr char kDelete[] =
      "Are you sure you want to delete the modem?  This operation is immediate and cannot be canceled later.";
  Script().ExpectMessage(kDelete, Answer::kNo);
  Script().ExpectMessage(kDelete, Answer::kYes);
  Script().ExpectWindow("Manage Modem Types", [](Person& p) { p.Press("Close"); });
  RunSheet<CSheetServiceNum>(*test_support::Find(service_), nullptr);
}

TEST_F(ModemPageTest, AModemThatIsGoneIsToldAndPagersHaveNoScript) {
  Script().ExpectWindow("Pager", [&](Person& p) {
    p.SelectTab(kPage);
    p.ClickRow(kPage, 0);
    ASSERT_TRUE(DeleteModem(modem_));
    p.Press("OK");
    p.Press("Cancel");
  });
  Script().ExpectMessage(
      "Unable to find the corresponding  record in the modem database.  Try selecting a different modem.");
  RunSheet<CSheetServiceNum>(*test_support::Find(service_), nullptr);

  service_ = test_support::SeedService(kTypeAlpha, "Pager");
  TheServices().RemoveAll();
  Script().ExpectWindow("Pager", [](Person& p) {
    p.Type("Te&xt Length:", "80");
    p.SelectTab(kPage);
    EXPECT_FALSE(p.IsVisible("&Script File:"));
    p.Press("Cancel");
  });
  Script().ExpectMessage(kNoModems);
  RunSheet<CSheetServiceAlpha>(*test_support::Find(service_), nullptr);
}

}  // namespace
}  // namespace stories
