// SPDX-License-Identifier: MIT
#include "alerting/ui/icon_strip.h"

#include <gmock/gmock.h>

#include "desktops/scripted/scripted_desktop.h"
#include "platform/ui/dialog.h"

namespace alerting {
namespace {

using Scroll = ui::Canvas::Scroll;
using testing::ElementsAre;
using testing::IsEmpty;

/// Writes down what is painted and where.
class RecordingPainter : public ui::Painter {
 public:
  void Fill(const ui::Rect& area, ui::SystemColor) override { Note("fill", area); }
  void FocusRectangle(const ui::Rect& area) override { Note("focus", area); }
  void Draw(const ui::Bitmap& picture, int x, int y) override {
    Note("icon", {x, y, picture.Width(), picture.Height()});
  }
  std::vector<std::string> log;

 private:
  void Note(const std::string& what, const ui::Rect& r) {
    log.push_back(what + ' ' + std::to_string(r.x) + ' ' + std::to_string(r.y) + ' ' +
                  std::to_string(r.width) + ' ' + std::to_string(r.height));
  }
};

struct Host : ui::Dialog {
  explicit Host(std::uint32_t selected) : Dialog(nullptr, "Host"), strip(*this, 100, selected) {
    strip.OnSize(8 * 75 + 20, 80);
    Create();
  }
  CIconStrip strip;
};

/// A strip with room for eight icons. A file's name says how many icons it has.
class IconStripTest : public testing::Test {
 protected:
  IconStripTest() {
    for (const int count : {3, 5, 20, 1500})
      desktop_.icon_files[std::to_string(count)] =
          std::vector<ui::Bitmap>(static_cast<std::size_t>(count), ui::Bitmap(32, 16));
  }

  static std::vector<std::string> Painted(CIconStrip& strip) {
    RecordingPainter painter;
    strip.OnPaint(painter);
    return painter.log;
  }

  desktops::ScriptedDesktop desktop_;
};

TEST_F(IconStripTest, ThePreselectedIconIsTheRightmostWhereItWouldBeOutOfView) {
  struct Row {
    std::string file;
    std::uint32_t preselected;
    int selected, first;
  };
  for (const Row& row : {Row{"20", 12, 12, 5},
                         {"20", 7, 7, 0},
                         {"20", 8, 8, 1},
                         {"20", 19, 19, 12},
                         {"5", 12, 0, 0},
                         {"1500", 999, 999, 992},
                         {"1500", 1000, 0, 0},
                         {"20", 0xFFFFFFFF, 0, 0}}) {
    SCOPED_TRACE(row.file + " icons, " + std::to_string(row.preselected));
    Host host(row.preselected);
    host.strip.Load(row.file);
    EXPECT_EQ(host.strip.Selected(), row.selected);
    EXPECT_EQ(host.strip.FirstVisible(), row.first);
    EXPECT_EQ(host.strip.ScrollPosition(), row.first);
    host.strip.Load("20");
    EXPECT_EQ(host.strip.Selected(), 0) << "another file begins with its first icon";
    EXPECT_EQ(host.strip.FirstVisible(), 0);
  }
}

TEST_F(IconStripTest, AStripThatGetsItsSizeLateShowsThePreselectedIconAllTheSame) {
  Host host(12);
  host.strip.OnSize(0, 0);
  host.strip.Load("20");
  host.strip.OnSize(8 * 75, 80);
  EXPECT_EQ(host.strip.FirstVisible(), 5);
}

TEST_F(IconStripTest, AtMostAThousandIconsAreShownAndAFileWithoutAnyShowsNothing) {
  Host host(12);
  host.strip.Load("1500");
  EXPECT_EQ(host.strip.Count(), 1000);
  EXPECT_EQ(host.strip.ScrollMaximum(), 999);
  EXPECT_EQ(host.strip.ScrollPage(), 8);
  host.strip.Load("no icons");
  EXPECT_EQ(host.strip.Count(), 0);
  EXPECT_EQ(host.strip.Selected(), 0);
  EXPECT_EQ(host.strip.ScrollMaximum(), 0);
  EXPECT_THAT(Painted(host.strip), IsEmpty());
  for (const ui::Key key : {ui::Key::kLeft, ui::Key::kRight}) host.strip.OnKeyDown(key);
  host.strip.OnMouseUp(10, 10);
  EXPECT_EQ(host.strip.Selected(), 0);
}

TEST_F(IconStripTest, ArrowsStepThroughTheIconsAndScrollAtTheEdges) {
  Host host(0);
  host.strip.Load("20");
  const auto press = [&](ui::Key key, int times) {
    for (int i = 0; i < times; ++i) host.strip.OnKeyDown(key);
    return std::pair(host.strip.Selected(), host.strip.FirstVisible());
  };
  EXPECT_EQ(press(ui::Key::kLeft, 1), std::pair(0, 0));
  EXPECT_EQ(press(ui::Key::kRight, 7), std::pair(7, 0));
  EXPECT_EQ(press(ui::Key::kRight, 1), std::pair(8, 1));
  EXPECT_EQ(press(ui::Key::kRight, 30), std::pair(19, 12));
  EXPECT_EQ(press(ui::Key::kLeft, 7), std::pair(12, 12));
  EXPECT_EQ(press(ui::Key::kLeft, 1), std::pair(11, 11));
}

TEST_F(IconStripTest, ScrollingStopsAtBothEndsAndLeavesTheSelection) {
  Host host(10);
  host.strip.Load("20");  // the third is the first in view
  ASSERT_EQ(host.strip.FirstVisible(), 3);
  const auto scroll = [&](Scroll what, int thumb = 0) {
    host.strip.OnScroll(what, thumb);
    EXPECT_EQ(host.strip.ScrollPosition(), host.strip.FirstVisible());
    return host.strip.FirstVisible();
  };
  EXPECT_EQ(scroll(Scroll::kPageLeft), 0);
  EXPECT_EQ(scroll(Scroll::kLineLeft), 0);
  EXPECT_EQ(scroll(Scroll::kLineRight), 1);
  EXPECT_EQ(scroll(Scroll::kPageRight), 9);
  EXPECT_EQ(scroll(Scroll::kPageRight), 12);
  EXPECT_EQ(scroll(Scroll::kLineRight), 12);
  EXPECT_EQ(scroll(Scroll::kThumb, 6), 6);
  EXPECT_EQ(scroll(Scroll::kThumb, 99), 12);
  EXPECT_EQ(host.strip.Selected(), 10);
}

TEST_F(IconStripTest, AClickSelectsTheIconOfItsCell) {
  Host host(12);
  host.strip.Load("20");
  const auto click = [&](int x) {
    host.strip.OnMouseUp(x, 40);
    return host.strip.Selected();
  };
  EXPECT_EQ(click(0), 5);
  EXPECT_EQ(click(7 * 75 + 74), 12);
  EXPECT_EQ(click(75), 6);
  EXPECT_EQ(click(8 * 75), 6) << "the piece of a cell at the right end";
  EXPECT_EQ(click(-1), 6);
  host.strip.Load("3");
  EXPECT_EQ(click(2 * 75), 2);
  EXPECT_EQ(click(3 * 75), 2) << "no icon there";
}

TEST_F(IconStripTest, TheSelectedCellIsFilledAndFramedWhileTheStripHasTheFocus) {
  Host host(1);
  host.strip.Load("3");
  host.strip.SetFocus();
  EXPECT_THAT(Painted(host.strip), ElementsAre("fill 75 0 75 80", "focus 79 4 67 72", "icon 21 32 32 16",
                                               "icon 96 32 32 16", "icon 171 32 32 16"));
  host.MoveFocus(nullptr);
  EXPECT_EQ(Painted(host.strip).size(), 4u);
  host.strip.Load("20");
  host.strip.OnScroll(Scroll::kLineRight, 0);
  EXPECT_EQ(Painted(host.strip).size(), 8u) << "the selected icon is out of view";
}

}  // namespace
}  // namespace alerting
