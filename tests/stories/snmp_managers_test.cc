// SPDX-License-Identifier: MIT
#include "alerting/managers/snmp_managers.h"

#include "alerting/alerting.h"
#include "alerting/managers/snmp_manager_dlg.h"
#include "companions/alertstore/computers.h"
#include "tests/stories/story_test.h"
#include "tests/support/service_fixture.h"

namespace stories {
namespace {

using namespace alerting;  // NOLINT
using platform::ui::Answer;
using platform::ui::Key;
using test_support::StoreOp;

constexpr char kAdd[] = "Add SNMP Manager";
constexpr char kProperties[] = "SNMP Manager Properties";
constexpr char kMachine[] = "&Machine Name:";
constexpr char kCommunity[] = "&Community:";
constexpr char kAddress[] = "&Network Address:";
constexpr char kComment[] = "C&omment:";
constexpr char kSheet[] = "Traps";
constexpr char kList[] = "&SNMP Destinations:";
constexpr char kRemove[] = "&Remove";
constexpr char kChange[] = "&Properties";
constexpr char kSure[] =
    "Are you sure you want to delete the SNMP manager?  This operation is immediate and cannot be canceled "
    "later.";

class SnmpManagerTest : public StoryTest {
 protected:
  static auto& Store() { return UserStore<CAlertUSR_SNMPDB>(); }
  void SetUp() override { EnsureStoresOpen(); }

  std::vector<ALRTUSR_SNMPSERVICEREC> Stored() {
    return test_support::RecordsOf(Store(), kSnmpManagerByIdentity);
  }
  ALRTUSR_SNMPSERVICEREC AddManager(const std::string& address) {
    ALRTUSR_SNMPSERVICEREC manager{};
    platform::GUID id{};
    std::memset(&manager, 0xA5, sizeof manager);
    manager.address.Assign(address);
    manager.computer.Assign("OLD");
    manager.community.Assign("");
    EXPECT_EQ(Store().DBAlertRecAdd(manager, id), kOk);
    return manager;
  }
  int Run(const char* caption, ALRTUSR_SNMPSERVICEREC* manager, desktops::Script::Story story) {
    Script().ExpectWindow(caption, std::move(story));
    return CSnmpManagerDlg(nullptr, manager).RunModal();
  }

  Labels Addresses() {
    Labels addresses;
    for (const auto& manager : Stored()) addresses.emplace_back(manager.address.View());
    return addresses;
  }

  test_support::LibraryUnderTest library_;
};

/// Whether the two buttons that act on a row are as told.
void ExpectRowButtons(Person& p, bool enabled) {
  for (const char* button : {kRemove, kChange}) EXPECT_EQ(p.IsEnabled(button), enabled) << button;
}

TEST_F(SnmpManagerTest, AnAddedManagerIsStoredAtItsOffsets) {
  ASSERT_EQ(AddComputer(platform::GUID::Generate(), "OPERATIONS"), kOk);
  library_.agentui.chosen_address = std::string(39, 'a');
  Script().ExpectWindow(kAdd, [this](Person& p) {
    EXPECT_FALSE(p.IsEnabled("OK"));
    p.PressBeside(kMachine, "...");
    EXPECT_EQ(p.Text(kMachine), "OPERATIONS");
    p.Type(kAddress, "1");
    EXPECT_TRUE(p.IsEnabled("OK"));
    p.Type(kAddress, "");
    EXPECT_FALSE(p.IsEnabled("OK"));
    p.PressBeside(kAddress, "...");
    p.Press("OK");
    EXPECT_EQ(p.FocusedLabel(), kAddress);
    library_.agentui.chosen_address = "192.0.2.25";
    p.PressBeside(kAddress, "...");
    p.Type(kCommunity, std::string(70, 'c'));
    p.Type(kComment, "on call");
    p.Press("OK");
  });
  Script().ExpectWindow("Choose Computer", [](Person& p) { p.Press("OK"); });
  Script().ExpectMessage("Please enter no more than 28 characters.");
  CSnmpManagerDlg dialog(nullptr, nullptr);
  EXPECT_EQ(dialog.RunModal(), ui::kOk);
  ASSERT_EQ(Stored().size(), 1u);
  const std::string bytes(reinterpret_cast<const char*>(&Stored()[0]), sizeof(ALRTUSR_SNMPSERVICEREC));
  std::string expected(2309, '\0');
  expected.replace(0, 16, bytes, 0, 16);
  test_support::PutText(expected, 97, 65, "OPERATIONS");
  test_support::PutText(expected, 162, 29, "192.0.2.25");
  test_support::PutText(expected, 191, 2049, "on call");
  test_support::PutU32(expected, 2240, 1);
  test_support::PutText(expected, 2244, 65, std::string(64, 'c'));
  EXPECT_EQ(bytes, expected);
  EXPECT_EQ(dialog.Record().guid, Stored()[0].guid);
  EXPECT_THAT(library_.agentui.recorded, ElementsAre("192.0.2.25", std::string(64, 'c')));
}

TEST_F(SnmpManagerTest, AChangedManagerKeepsTheBytesThatAreNotShown) {
  ALRTUSR_SNMPSERVICEREC manager = AddManager("192.0.2.1");
  EXPECT_EQ(Run(kProperties, &manager,
                [](Person& p) {
                  EXPECT_EQ(p.Text(kAddress), "192.0.2.1");
                  EXPECT_EQ(p.Text(kMachine), "OLD");
                  p.Type(kMachine, "NEW");
                  p.Type(kComment, "");
                  p.Press("OK");
                }),
            ui::kOk);
  const ALRTUSR_SNMPSERVICEREC stored = Stored()[0];
  EXPECT_EQ(stored.computer.View(), "NEW");
  EXPECT_EQ(stored.enabled, 0xA5A5A5A5u);
  EXPECT_EQ(stored.unused16[80], 0xA5);
  EXPECT_THAT(library_.agentui.recorded, ElementsAre("192.0.2.1")) << "no community";
  EXPECT_EQ(Run(kProperties, &manager,
                [](Person& p) {
                  p.Type(kMachine, "CANCELLED");
                  p.Press("Cancel");
                }),
            ui::kCancel);
  EXPECT_EQ(Stored()[0].computer.View(), "NEW");
}

TEST_F(SnmpManagerTest, TheListShowsTheFirstHundred) {
  ui::Dialog dialog(nullptr, "List");
  ui::ListView list(dialog, 1, "List");
  EXPECT_FALSE(FillSnmpManagerList(list, true));
  for (int i = 0; i < 101; ++i) AddManager("192.0.2." + std::to_string(i));
  EXPECT_FALSE(FillSnmpManagerList(list, false)) << "as last loaded";
  EXPECT_TRUE(FillSnmpManagerList(list, true));
  EXPECT_EQ(list.RowCount(), 100);
  EXPECT_EQ(list.Cell(99, 0), "192.0.2.99");
  EXPECT_EQ(SnmpManagerOfRow(list, 100), nullptr);
}

TEST_F(SnmpManagerTest, ManagersAreAddedChangedAndRemovedWhateverBecomesOfTheSheet) {
  AddManager("192.0.2.1");
  Script().ExpectWindow(kSheet, [&](Person& p) {
    p.ClickRow(kList, -1);
    ExpectRowButtons(p, false);
    p.Press("A&dd...");
    EXPECT_EQ(p.Rows(kList).size(), 2u);
    ExpectRowButtons(p, false);
    p.ClickRow(kList, 1);
    ExpectRowButtons(p, true);
    p.Press(kChange);
    EXPECT_THAT(p.Rows(kList)[1], ElementsAre("192.0.2.2", "public", "OPS", ""));
    ExpectRowButtons(p, false);
    p.DoubleClickRow(kList, 1);
    p.ClickRow(kList, 0);
    p.Press(kRemove);
    EXPECT_EQ(p.Rows(kList).size(), 2u) << "the answer was no";
    library_.engine->FailAll("UsrSnmpDB.dat", StoreOp::kDelete);
    p.Press(kRemove);
    library_.engine->FailNone();
    EXPECT_EQ(p.Rows(kList).size(), 2u);
    ExpectRowButtons(p, true);
    p.Focus(kList);
    p.Press(Key::kDelete);
    EXPECT_EQ(p.Rows(kList).size(), 1u);
    ExpectRowButtons(p, false);
    EXPECT_FALSE(p.IsEnabled("Apply")) << "the sheet has nothing to save";
    p.Press("Cancel");
  });
  Script().ExpectWindow(kAdd, Fill({{kAddress, "192.0.2.2"}}));
  Script().ExpectWindow(kProperties, Fill({{kCommunity, "public"}, {kMachine, "OPS"}}));
  Script().ExpectWindow(kProperties, [](Person& p) {
    EXPECT_EQ(p.Text(kCommunity), "public") << "the record as it was stored";
    p.Press("Cancel");
  });
  for (const Answer answer : {Answer::kNo, Answer::kYes}) Script().ExpectMessage(kSure, answer);
  Script().ExpectMessage("Unable to delete a record in the SNMP Managers database.");
  Script().ExpectMessage(kSure, Answer::kYes);
  test_support::SeedService(kTypeSnmp, kSheet);
  EXPECT_EQ(DomainServicePropertySheet(nullptr, 0), ui::kCancel);
  EXPECT_THAT(Addresses(), ElementsAre("192.0.2.2"));
}

TEST_F(SnmpManagerTest, AComputerThatIsNotChosenLeavesTheMachineNameAndUnreadableOnesSaySo) {
  Script().ExpectWindow(kAdd, [this](Person& p) {
    p.Type(kMachine, "TYPED");
    p.PressBeside(kMachine, "...");
    library_.engine->FailAll("Computers.dat", StoreOp::kAny);
    p.PressBeside(kMachine, "...");
    EXPECT_EQ(p.Text(kMachine), "TYPED");
    p.Press("Cancel");
  });
  for (const char* text : {"No computer is known to this site yet.", "The computers cannot be read"})
    Script().ExpectWindow("Choose Computer", [text](Person& p) {
      EXPECT_THAT(p.Screen(), HasSubstr(text));
      EXPECT_FALSE(p.IsEnabled("OK"));
      p.Press("Cancel");
    });
  CSnmpManagerDlg(nullptr, nullptr).RunModal();
}

}  // namespace
}  // namespace stories
