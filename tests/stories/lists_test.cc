// SPDX-License-Identifier: MIT
#include "platform/ui/lists.h"

#include "platform/ui/dialog.h"
#include "tests/stories/story_test.h"

namespace stories {
namespace {

using namespace platform::ui;
using desktops::PersonError;

class ListsDialog : public Dialog {
 public:
  ListsDialog() : Dialog(nullptr, "Lists") {
    for (const char* port : {"Com1", "com3", "COM2"}) ports.Add(port);
    for (const char* speed : {"300", "1200"}) speeds.Add(speed);
    speeds.SetLimit(5);
    for (const char* name : {"beta", "Alpha", "alpha 2", "Gamma"}) names.Add(name, ++last_data);
    users.AddColumn("Name", 40);
    users.AddColumn("Number", 20);
    users.AddRow({"Ann", "1"}, 11);
    users.AddRow({"Bob", "2"}, 12);
    users.AddRow({"Cy"}, 13);
    Connect(ports, "port");
    Connect(speeds, "speed");
    Connect(names, "name");
    Connect(users, "user");
    names.SetOnDoubleClick([this] { log.push_back("name twice"); });
    users.SetOnClick([this] { log.push_back("click " + std::to_string(users.RowUnderCursor())); });
    users.SetOnDoubleClick([this] { log.push_back("twice " + std::to_string(users.RowUnderCursor())); });
    ok.SetOnClick([this] { OnOk(); });
    SetLayout(Column({Field(ports), Field(speeds), Over(names), Over(users), Bare(ok)}));
  }

  std::vector<std::string> log;
  ItemData last_data = 0;
  ComboBox ports{*this, 301, "&Port:"};
  ComboBox speeds{*this, 302, "&Speed:", false, true};
  ListBox names{*this, 303, "&Names:", true};
  ListView users{*this, 304, "&Users:"};
  Button ok{*this, kIdOk, "OK"};

 private:
  void Connect(Control& control, const std::string& name) {
    control.SetOnChange([this, name] { log.push_back(name); });
  }
};

class ListsTest : public StoryTest {
 protected:
  void Run(const desktops::Script::Story& story) { Play(dialog_, story); }

  ListsDialog dialog_;
};

TEST_F(ListsTest, AComboBoxIsChosenFromByItsTexts) {
  Run([](Person& p) {
    EXPECT_EQ(p.Text("&Port:"), "");
    EXPECT_THAT(p.Items("&Port:"), ElementsAre("Com1", "com3", "COM2"));
    p.Choose("&Port:", "COM2");
    EXPECT_EQ(p.Text("&Port:"), "COM2");
    EXPECT_THROW(p.Choose("&Port:", "COM9"), PersonError);
    p.Press(Key::kUp);
    EXPECT_EQ(p.Text("&Port:"), "com3");
  });
  EXPECT_THAT(dialog_.log, ElementsAre("port", "port"));
  EXPECT_EQ(dialog_.ports.Current(), 1);
}

TEST_F(ListsTest, AnEditableComboBoxTakesTypedTextUpToItsLimit) {
  Run([this](Person& p) {
    p.Choose("&Speed:", "1200");
    EXPECT_EQ(p.Text("&Speed:"), "1200");
    dialog_.log.clear();
    p.Type("&Speed:", "9600000");
    EXPECT_EQ(p.Text("&Speed:"), "96000");
    EXPECT_EQ(dialog_.speeds.Current(), -1) << "no item has that text";
    EXPECT_EQ(dialog_.log.size(), 5u) << "what the limit refuses is no change";
    p.TypeHere("\b\b\b");
    EXPECT_EQ(p.Text("&Speed:"), "96");
    p.Type("&Speed:", "300");
    EXPECT_EQ(dialog_.speeds.Current(), 0);
  });
}

TEST_F(ListsTest, AListBoxIsSortedAndDoubleClicked) {
  Run([](Person& p) {
    EXPECT_THAT(p.Items("&Names:"), ElementsAre("Alpha", "alpha 2", "beta", "Gamma"));
    p.Choose("&Names:", "beta");
    EXPECT_EQ(p.Text("&Names:"), "beta");
    p.Press(Key::kDown);
    EXPECT_EQ(p.Text("&Names:"), "Gamma");
    p.DoubleClickItem("&Names:", "Alpha");
  });
  EXPECT_EQ(dialog_.log.back(), "name twice");
  EXPECT_EQ(dialog_.names.Data(dialog_.names.Current()), 2u) << "the data went with its item";
}

TEST_F(ListsTest, AddingToASortedListKeepsTheCurrentItem) {
  Run([this](Person& p) {
    p.Choose("&Names:", "beta");
    dialog_.names.Add("aardvark");
    EXPECT_EQ(p.Text("&Names:"), "beta");
    dialog_.names.RemoveAll();
    EXPECT_EQ(p.Text("&Names:"), "");
    EXPECT_TRUE(p.Items("&Names:").empty());
  });
}

TEST_F(ListsTest, ARowIsSelectedByClick) {
  Run([this](Person& p) {
    EXPECT_THAT(p.Rows("&Users:"),
                ElementsAre(ElementsAre("Ann", "1"), ElementsAre("Bob", "2"), ElementsAre("Cy", "")));
    EXPECT_EQ(p.SelectedRow("&Users:"), -1);
    p.ClickRow("&Users:", 1);
    EXPECT_EQ(p.SelectedRow("&Users:"), 1);
    EXPECT_EQ(dialog_.users.FocusedRow(), 1);
    p.ClickRow("&Users:", 1);
    p.ClickRow("&Users:", -1);
    EXPECT_EQ(p.SelectedRow("&Users:"), -1) << "a click below the last row";
    EXPECT_THROW(p.ClickRow("&Users:", 3), PersonError);
    p.DoubleClickRow("&Users:", 2);
  });
  EXPECT_THAT(dialog_.log,
              ElementsAre("user", "click 1", "click 1", "user", "click -1", "user", "click 2", "twice 2"));
}

TEST_F(ListsTest, ArrowKeysMoveTheRowAndKeysAreTold) {
  dialog_.users.SelectRow(0);
  dialog_.users.FocusRow(0);
  std::vector<Key> keys;
  dialog_.users.SetOnKey([&](Key key) { keys.push_back(key); });
  Run([](Person& p) {
    p.Focus("&Users:");
    p.Press(Key::kDown);
    EXPECT_EQ(p.SelectedRow("&Users:"), 1);
    p.Press(Key::kEnd);
    p.Press(Key::kDown);
    EXPECT_EQ(p.SelectedRow("&Users:"), 2) << "the last row is the end";
    p.Press(Key::kHome);
    EXPECT_EQ(p.SelectedRow("&Users:"), 0);
    p.Press(Key::kDelete);
  });
  EXPECT_THAT(keys, ElementsAre(Key::kDown, Key::kEnd, Key::kDown, Key::kHome, Key::kDelete));
  EXPECT_THAT(dialog_.log, ElementsAre("user", "user", "user")) << "one for each new selection";
}

}  // namespace
}  // namespace stories
