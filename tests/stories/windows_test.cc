// SPDX-License-Identifier: MIT
// What stands in windows and how they behave around it: sizes, pictures, canvases, waits.
#include "platform/ui/desktop.h"
#include "platform/ui/dialog.h"
#include "platform/ui/edit.h"
#include "platform/ui/lists.h"
#include "platform/ui/message.h"
#include "platform/ui/property_sheet.h"
#include "tests/stories/story_test.h"

namespace stories {
namespace {

using namespace platform::ui;
using desktops::PersonError;
using Log = std::vector<std::string>;

class WindowsTest : public StoryTest {};

/// Every kind of arrangement.
class ArrangedDialog : public Dialog {
 public:
  ArrangedDialog()
      : Dialog(nullptr, "A caption that is longer than anything else that stands in this window") {
    mode.SetArrangement(RadioGroup::Arrangement::kLabelLeft);
    speed.SetArrangement(RadioGroup::Arrangement::kSideBySide);
    port.Add("a port with a long name");
    port.Add("COM1");
    port.Select(1);
    port.SetOnChange([this] { ++changes; });
    names.SetTabStops({12, 30});
    names.Add("Name\tCity\tthe last column");
    names.SetOnChange([this] { ++changes; });
    users.AddColumn("A column with a long title", 40);
    users.AddColumn("Another", 20);
    picture.SetPicture(Bitmap(48, 24));
    picture.SetOnClick([this] { ++pictures; });
    SetLayout(Column({Grid({Row({Field(first), Characters(4, Field(number))}),
                            Row({Characters(8, Field(port)), Bare(picture)})}),
                      Characters(3, Field(code)), Field(mode), Field(speed),
                      Row({Over(names), ButtonColumn({Bare(add), Bare(remove)})}), Over(users),
                      ButtonRow({Stretch(), Bare(buttons.ok), Bare(buttons.cancel)})}));
  }

  int changes = 0, pictures = 0;
  Edit first{*this, 1, "A &first field with a long label:"};
  Edit number{*this, 2, "&Number:"};
  ComboBox port{*this, 3, "&Port:"};
  Button picture{*this, 4, "P&lay"};
  Edit code{*this, 5, "&Code:"};
  RadioGroup mode{*this, 6, "&Mode:", {"Tone", "P&ulse"}};
  RadioGroup speed{*this, 7, "Speed", {"Slow", "Fast"}};
  ListBox names{*this, 8, "N&ames:"};
  Button add{*this, 9, "Add"}, remove{*this, 10, "Remove them all"};
  ListView users{*this, 11, "Us&ers:"};
  OkCancelButtons buttons{*this};
};

TEST_F(WindowsTest, NothingIsCutHoweverItIsArranged) {
  ArrangedDialog dialog;
  Play(dialog, [&](Person& p) {
    EXPECT_THAT(Desk().CutControls(), IsEmpty());
    p.AccessKey('m');
    EXPECT_EQ(p.ChosenOption("&Mode:"), "") << "a label's key leads to the options";
    p.ChooseOption("&Mode:", "P&ulse");
    EXPECT_EQ(p.ChosenOption("&Mode:"), "P&ulse");
  });
}

TEST_F(WindowsTest, ChoosingTheCurrentItemReportsNothing) {
  ArrangedDialog dialog;
  Play(dialog, [](Person& p) {
    for (int i = 0; i < 2; ++i) {
      p.Choose("&Port:", "COM1");
      p.Choose("N&ames:", "Name\tCity\tthe last column");
    }
  });
  EXPECT_EQ(dialog.changes, 1) << "the name, once";
}

TEST_F(WindowsTest, APictureOnAButtonKeepsItsNameAndKey) {
  ArrangedDialog dialog;
  Play(dialog, [](Person& p) {
    p.Press("P&lay");
    p.AccessKey('l');
    EXPECT_EQ(p.FocusedLabel(), "P&lay");
  });
  EXPECT_EQ(dialog.pictures, 2);
}

class LoggedCanvas : public Canvas {
 public:
  using Canvas::Canvas;
  void OnMouseDown(int x, int y) override { Note("down", x, y); }
  void OnMouseUp(int x, int y) override { Note("up", x, y); }
  void OnDoubleClick(int x, int y) override { Note("twice", x, y); }
  void OnKeyDown(Key key) override { log.push_back(key == Key::kRight ? "right" : "key"); }
  void OnSetFocus() override { log.push_back("focus"); }
  void OnScroll(Scroll what, int thumb) override {
    log.push_back(what == Scroll::kThumb ? "thumb " + std::to_string(thumb) : "scroll");
    SetScroll(what == Scroll::kThumb ? thumb : ScrollPosition() + 1, 9, 4);
  }

  Log log;

 private:
  void Note(const std::string& what, int x, int y) {
    log.push_back(what + " " + std::to_string(x) + "," + std::to_string(y));
  }
};

class CanvasDialog : public Dialog {
 public:
  CanvasDialog() : Dialog(nullptr, "Canvas") { canvas.SetScroll(0, 9, 4); }

  Edit before{*this, 1, "Before:"};
  LoggedCanvas canvas{*this, 2, "Icons"};
  OkCancelButtons buttons{*this};
};

TEST_F(WindowsTest, ACanvasIsClickedDraggedAndScrolled) {
  CanvasDialog dialog;
  Play(dialog, [&](Person& p) {
    p.ClickAt("Icons", 5, 6);
    p.Press(Key::kRight);
    p.DragOver("Icons", 1, 2, 30, 4);
    p.DoubleClickAt("Icons", 7, 8);
    p.ScrollCanvas("Icons", Canvas::Scroll::kLineRight);
    p.ScrollCanvas("Icons", Canvas::Scroll::kThumb, 3);
    EXPECT_EQ(dialog.canvas.ScrollPosition(), 3);
    dialog.canvas.Enable(false);
    EXPECT_THROW(p.ClickAt("Icons", 5, 6), PersonError);
  });
  EXPECT_THAT(dialog.canvas.log, ElementsAre("focus", "down 5,6", "up 5,6", "right", "down 1,2", "up 30,4",
                                             "down 7,8", "up 7,8", "twice 7,8", "scroll", "thumb 3"));
}

/// Opens a message and a window of its own while it waits, and sleeps.
class WaitingDialog : public Dialog {
 public:
  explicit WaitingDialog(TestDesktop& desk) : Dialog(nullptr, "Waiting") {
    work.SetOnClick([&] {
      const WaitCursor wait;
      { const WaitCursor inner; }
      MessageBox("Halfway", Buttons::kOk, MessageIcon::kNone, this);
      after_message = desk.ShowsWaitCursor();
      Dialog inner(this, "Inner");
      OkCancelButtons inner_buttons(inner);
      inner.RunModal();
      after_window = desk.ShowsWaitCursor();
      Desktop::Current().Post(in_wait);
      Desktop::Current().Sleep(5);
    });
    other.SetOnClick([this] { ++others; });
    SetLayout(Column({Bare(work), Bare(other), buttons.Row()}));
  }

  int others = 0;
  std::function<void()> in_wait;
  bool after_message = false, after_window = false;
  Button work{*this, 1, "&Work"}, other{*this, 2, "O&ther"};
  OkCancelButtons buttons{*this};
};

TEST_F(WindowsTest, AWaitComesBackBehindItsWindowsAndTakesNoInput) {
  WaitingDialog dialog(Desk());
  Script().ExpectWindow("Waiting", [&](Person& p) {
    dialog.in_wait = [&] { p.Press("O&ther"); };
    p.Press("&Work");
    EXPECT_FALSE(Desk().ShowsWaitCursor());
    EXPECT_EQ(dialog.others, 0) << "what was pressed in the wait is lost";
    p.Press("O&ther");
    EXPECT_EQ(dialog.others, 1);
    p.Press("OK");
  });
  Script().ExpectMessage("Halfway");
  Script().ExpectWindow("Inner", [&](Person& p) {
    EXPECT_FALSE(Desk().ShowsWaitCursor()) << "there is something to click";
    p.Press("OK");
  });
  EXPECT_EQ(dialog.RunModal(), kOk);
  EXPECT_TRUE(dialog.after_message);
  EXPECT_TRUE(dialog.after_window);
}

constexpr char kLongNote[] =
    "A note of many words wraps, and how many lines it needs follows from the width that the sheet gives it "
    "in the end. Where the height is taken from another width than that, the last of these lines is cut, or "
    "what stands below is pushed out of the window, which is what this story is about.";

/// Asks for more room than the page before it.
class LargePage : public PropertyPage {
 public:
  LargePage() : PropertyPage("Large") {
    lines.SetMultiLine(true);
    SetLayout(Column({Field(wide), Note(kLongNote), Over(lines), Field(users)}));
  }
  Edit wide{*this, 1, "A label that is wider than all that stands in the small page of this sheet:"};
  Edit lines{*this, 2, "&Message:"};
  ListView users{*this, 3, "&Users:"};

 private:
  void OnInitDialog() override {
    for (const char* title :
         {"A column that was not there before", "Nor this one", "Nor the third column here"})
      users.AddColumn(title, 60);
  }
};

TEST_F(WindowsTest, ASheetHasRoomForPagesThatComeLater) {
  LargePage large;
  PropertyPage small("Small");
  PropertySheet sheet("Sheet", nullptr);
  sheet.AddPage(small);
  sheet.AddPage(large);
  Script().ExpectWindow("Sheet", [&](Person& p) {
    EXPECT_FALSE(large.Created());
    p.SelectTab("Large");
    EXPECT_THAT(Desk().CutControls(), IsEmpty());
    p.Press("Cancel");
  });
  sheet.RunModal();
}

TEST_F(WindowsTest, ASheetWithoutPagesIsOperated) {
  for (const auto& [act, result] : std::vector<std::pair<desktops::Script::Story, int>>{
           {[](Person& p) { p.Press("OK"); }, kOk},
           {[](Person& p) { p.Press("Cancel"); }, kCancel},
           {[](Person& p) { p.Press(Key::kEnter); }, kOk},
           {[](Person& p) { p.Press(Key::kEscape); }, kCancel}}) {
    PropertySheet sheet("Empty", nullptr);
    Script().ExpectWindow("Empty", [&, act = act](Person& p) {
      EXPECT_FALSE(p.IsEnabled("&Apply"));
      EXPECT_EQ(p.FocusedLabel(), "");
      EXPECT_THAT(Desk().CutControls(), IsEmpty());
      act(p);
    });
    EXPECT_EQ(sheet.RunModal(), result);
  }
}

}  // namespace
}  // namespace stories
