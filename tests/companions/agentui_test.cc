// SPDX-License-Identifier: MIT
#include "companions/agentui/agentui.h"

#include <gmock/gmock.h>

#include <fstream>

#include "companions/agentui/recent_lists.h"
#include "desktops/scripted/scripted_desktop.h"
#include "platform/ui/dialog.h"
#include "platform/ui/lists.h"
#include "tests/companions/store_fixture.h"

using desktops::Person;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

constexpr char kList[] = "&Used lately, newest first:";

class AgentUiTest : public StoreTest {
 protected:
  void TearDown() override { EXPECT_THAT(desktop_.script.Failures(), IsEmpty()); }

  void WriteListFile(const std::string& bytes) { std::ofstream(directory_ + "/recent.json") << bytes; }

  /// What the address dialog leaves in the buffer after the story.
  std::string AddressAfter(desktops::Script::Story story) {
    char buffer[agentui::kAddressBufferSize + 1] = "";
    buffer[agentui::kAddressBufferSize] = '#';
    desktop_.script.ExpectWindow("Recently Used Addresses", std::move(story));
    component_->DisplayIPAddressMRUListDialog(nullptr, buffer);
    EXPECT_EQ(buffer[agentui::kAddressBufferSize], '#') << "written past the end";
    return buffer;
  }

  desktops::ScriptedDesktop desktop_;
  std::unique_ptr<agentui::AgentUi> component_ = agentui::MakeAgentUi();
};

TEST_F(AgentUiTest, TheNewestEntryComesFirstAndOnce) {
  for (const char* address : {"a", "b", "c", "a", ""}) component_->AddIPAddressToMRUList(address);
  component_->AddIPAddressToMRUList(nullptr);
  component_->AddCommunityNameToMRUList("public");
  EXPECT_THAT(agentui::RecentEntries(agentui::kAddresses), ElementsAre("a", "c", "b"));
  EXPECT_THAT(agentui::RecentEntries(agentui::kCommunities), ElementsAre("public"));
  EXPECT_THAT(agentui::RecentEntries(agentui::kPrograms), IsEmpty());
}

TEST_F(AgentUiTest, AListHoldsTwentyEntries) {
  for (int i = 1; i <= 21; ++i) component_->AddEntryToMRUList(("program " + std::to_string(i)).c_str());
  const auto entries = agentui::RecentEntries(agentui::kPrograms);
  ASSERT_THAT(entries, SizeIs(20));
  EXPECT_EQ(entries.front(), "program 21");
  EXPECT_EQ(entries.back(), "program 2");
}

TEST_F(AgentUiTest, ADamagedFileCountsAsEmptyAndIsReplaced) {
  // The last is nested deeper than the stack of whoever writes it again has room for.
  const std::string deep = std::string(50'000, '[') + std::string(50'000, ']');
  const std::string damaged[] = {"",         "{\"addresses\": [\"a\"",  "[1, 2]", "{\"addresses\": 7}",
                                 "\xFF\xFE", "{\"more\": " + deep + "}"};
  for (const std::string& bytes : damaged) {
    WriteListFile(bytes);
    EXPECT_THAT(agentui::RecentEntries(agentui::kAddresses), IsEmpty()) << bytes;
    component_->AddIPAddressToMRUList("new");
    EXPECT_THAT(agentui::RecentEntries(agentui::kAddresses), ElementsAre("new")) << bytes;
  }
  WriteListFile(R"({"addresses": [1, "good", null]})");
  EXPECT_THAT(agentui::RecentEntries(agentui::kAddresses), ElementsAre("good"));
}

TEST_F(AgentUiTest, ListsThatCannotBeKeptDisturbNothing) {
  UseDirectory("/dev/null/nowhere");
  component_->AddIPAddressToMRUList("a");
  EXPECT_THAT(agentui::RecentEntries(agentui::kAddresses), IsEmpty());
}

TEST_F(AgentUiTest, ThePersonChoosesAnAddress) {
  component_->AddIPAddressToMRUList("192.0.2.1");
  component_->AddIPAddressToMRUList("mail.example.org");
  EXPECT_EQ(AddressAfter([](Person& person) {
              EXPECT_THAT(person.Items(kList), ElementsAre("mail.example.org", "192.0.2.1"));
              EXPECT_THAT(person.Screen(), testing::Not(testing::HasSubstr("has been used yet")));
              person.Choose(kList, "192.0.2.1");
              person.Press("OK");
            }),
            "192.0.2.1");
  EXPECT_EQ(AddressAfter([](Person& person) { person.DoubleClickItem(kList, "mail.example.org"); }),
            "mail.example.org");
  EXPECT_EQ(AddressAfter([](Person& person) {
              person.Choose(kList, "192.0.2.1");
              person.Press("Cancel");
            }),
            "");
}

TEST_F(AgentUiTest, WithoutEntriesTheDialogSaysSoAndOkIsDisabled) {
  EXPECT_EQ(AddressAfter([](Person& person) {
              EXPECT_THAT(person.Screen(),
                          testing::HasSubstr("No address or server name has been used yet."));
              EXPECT_FALSE(person.IsEnabled("OK"));
              person.Press("Cancel");
            }),
            "");
}

TEST_F(AgentUiTest, WhatTheBufferHasNoRoomForIsNotOffered) {
  const std::string fits(39, 'x');
  for (const std::string& address : {fits, fits + "y"}) component_->AddIPAddressToMRUList(address.c_str());
  EXPECT_EQ(AddressAfter([](Person& person) { person.Press("OK"); }), fits);
}

TEST_F(AgentUiTest, CommunitiesHaveADialogOfTheirOwn) {
  component_->AddCommunityNameToMRUList("public");
  char buffer[agentui::kCommunityBufferSize] = "";
  desktop_.script.ExpectWindow("Recently Used Communities", [](Person& person) {
    EXPECT_THAT(person.HelpOn(kList), testing::HasSubstr("newest first"));
    person.Press("OK");
  });
  component_->DisplayCommunityNameMRUListDialog(nullptr, buffer);
  EXPECT_STREQ(buffer, "public");
}

TEST_F(AgentUiTest, ProgramsFillADropDown) {
  component_->AddEntryToMRUList("/bin/first");
  component_->AddEntryToMRUList("/bin/second");
  platform::ui::Dialog dialog(nullptr, "");
  platform::ui::ComboBox combo(dialog, 100, "");
  component_->FillComboWithMRUList(combo);
  ASSERT_EQ(combo.Count(), 2);
  EXPECT_EQ(combo.ItemText(0), "/bin/second");
  component_->FreeComboMRUData(combo);
}

}  // namespace
