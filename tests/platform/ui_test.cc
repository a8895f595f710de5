// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <atomic>
#include <memory>
#include <thread>

#include "platform/base/module.h"
#include "platform/ui/canvas.h"
#include "platform/ui/desktop.h"
#include "platform/ui/dialog.h"
#include "platform/ui/edit.h"
#include "platform/ui/lists.h"
#include "platform/ui/property_sheet.h"

namespace platform::ui {
namespace {

using testing::ElementsAre;

struct Watcher : WindowObserver {
  void OnWindowChanged(Window&, Change change) override { last = change; }
  Change last = Change::kLabel;
};

TEST(WindowTest, AHandleFindsALiveWindowOrNothing) {
  auto window = std::make_unique<Window>();
  const Handle handle = window->GetHandle();
  EXPECT_NE(handle, kNoWindow);
  EXPECT_EQ(Window::FromHandle(handle), window.get());
  Watcher watcher;
  window->SetObserver(&watcher);
  window.reset();
  EXPECT_EQ(watcher.last, Change::kDestroyed);
  EXPECT_EQ(Window::FromHandle(handle), nullptr);
  EXPECT_EQ(Window::FromHandle(kNoWindow), nullptr);
}

TEST(WindowTest, HandlesMayBeAskedForOnAnyThread) {
  std::atomic<bool> wrong = false;
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&] {
      for (int n = 0; n < 500; ++n) {
        const Window window;
        if (Window::FromHandle(window.GetHandle()) != &window) wrong = true;
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_FALSE(wrong);
}

TEST(WindowTest, LabelsAndTheirAccessKeys) {
  struct Row {
    const char *label, *plain;
    char key;
  };
  for (const Row& row :
       {Row{"&Name:", "Name:", 'n'}, Row{"<< Fie&lds...", "<< Fields...", 'l'}, Row{"A && B", "A & B", 0},
        Row{"A && &B", "A & B", 'b'}, Row{"End&", "End", 0}, Row{"", "", 0}, Row{"Plain", "Plain", 0}}) {
    EXPECT_EQ(PlainLabel(row.label), row.plain) << row.label;
    EXPECT_EQ(AccessKey(row.label), row.key) << row.label;
  }
}

class FormTest : public testing::Test {
 protected:
  Dialog dialog{nullptr, "Form"};
};

TEST_F(FormTest, AControlThatGoesLeavesItsForm) {
  Button stays(dialog, 1, "Stays");
  {
    Button goes(dialog, 2, "Goes");
    goes.SetDefault(true);
    dialog.MoveFocus(&goes);
    EXPECT_EQ(dialog.DefaultButton(), &goes);
  }
  EXPECT_THAT(dialog.Controls(), ElementsAre(&stays));
  EXPECT_EQ(dialog.FocusedControl(), nullptr);
  EXPECT_EQ(dialog.DefaultButton(), nullptr);
}

TEST_F(FormTest, NothingReachesAControlThatIsHiddenOrDisabled) {
  int reports = 0;
  CheckBox box(dialog, 1, "Box");
  Button button(dialog, 2, "Button");
  ListView list(dialog, 3, "List");
  list.AddRow({"row"});
  for (Control* control : dialog.Controls()) control->SetOnChange([&] { ++reports; });
  button.SetOnClick([&] { ++reports; });
  list.SetOnClick([&] { ++reports; });
  box.Enable(false);
  button.Show(false);
  list.Enable(false);
  box.OnClick();
  button.OnClick();
  list.OnClickAt(0);
  list.OnKeyDown(Key::kDown);
  EXPECT_EQ(reports, 0);
  EXPECT_FALSE(box.Checked());
  EXPECT_EQ(list.SelectedRow(), -1);
}

TEST_F(FormTest, FindsByWholeTextsAndBytes) {
  ComboBox list(dialog, 1, "List");
  list.Add("Office");
  list.Add("OFFICE");
  EXPECT_EQ(list.FindText("office"), 0);
  EXPECT_EQ(list.FindBytes("OFFICE"), 1);
  EXPECT_EQ(list.FindBytes("office"), -1);
  EXPECT_EQ(list.FindText("Off"), -1) << "no prefixes";
}

TEST_F(FormTest, APastedTextEndsAtAZeroByte) {
  Edit edit(dialog, 1, "Edit");
  edit.OnPaste(std::string_view("ab\0cd", 5));
  EXPECT_EQ(edit.Text(), "ab");
}

// Two bytes that are no characters make one where they meet.
TEST_F(FormTest, TheCaretNeverStandsInsideACharacter) {
  Edit edit(dialog, 1, "Edit");
  edit.SetText("\xA9x");
  edit.ReplaceSelection("\xC3");
  EXPECT_EQ(edit.Text(), "\u00e9x");
  EXPECT_EQ(edit.Selection(), (std::pair<std::size_t, std::size_t>(0, 0)));
}

TEST_F(FormTest, AnAbsentChoiceIsAbsentAndBitsStandForThemselves) {
  ComboBox combo(dialog, 1, "Combo");
  CheckBox box(dialog, 2, "Box");
  Edit edit(dialog, 3, "Edit");
  combo.Add("none chosen", 0);
  std::optional<ItemData> chosen;
  std::uint32_t flags = 0b1001;
  std::int32_t offset = -60;
  for (const bool save : {false, true}) {
    DataExchange x(dialog, save);
    x.Item(combo, chosen);
    x.Bits(box, flags, 0b0110);
    x.Integer(edit, offset, -60, 60);
    EXPECT_FALSE(x.Failed());
    EXPECT_FALSE(chosen.has_value());
    EXPECT_EQ(edit.Text(), "-60");
    EXPECT_EQ(flags, save ? 0b1111u : 0b1001u);
    box.SetChecked(true);
  }
  combo.Select(0);
  DataExchange(dialog, true).Item(combo, chosen);
  EXPECT_EQ(chosen, ItemData{0});
}

TEST_F(FormTest, TheRowMovedToIsInView) {
  ListView list(dialog, 1, "List");
  for (int i = 0; i < 30; ++i) list.AddRow({std::to_string(i)});
  list.OnScrolled(0, 8);
  list.OnKeyDown(Key::kDown);
  list.OnKeyDown(Key::kPageDown);
  EXPECT_EQ(list.SelectedRow(), 8);
  EXPECT_EQ(list.FirstVisibleRow(), 1);
  list.OnKeyDown(Key::kEnd);
  EXPECT_EQ(list.FirstVisibleRow(), 22);
  list.OnKeyDown(Key::kPageUp);
  EXPECT_EQ(list.SelectedRow(), 21);
  EXPECT_EQ(list.FirstVisibleRow(), 21);
}

TEST_F(FormTest, ScrollingStopsAtTheLastPage) {
  Canvas strip(dialog, 1, "Strip");
  const auto scroll = [&strip](int position, int maximum, int page) {
    strip.SetScroll(position, maximum, page);
    return strip.ScrollPosition();
  };
  EXPECT_EQ(scroll(5, 11, 8), 4);
  EXPECT_EQ(scroll(-1, 11, 8), 0);
  EXPECT_EQ(scroll(9, -1, 0), 0);
}

class TwoPageSheet : public PropertySheet {
 public:
  TwoPageSheet() : PropertySheet("Sheet", nullptr) {
    AddPage(first);
    AddPage(second);
  }
  PropertyPage first{"First"}, second{"Second"};
};

TEST(PropertySheetTest, PagesThatAreMembersMayGoBeforeTheirSheet) {
  auto sheet = std::make_unique<TwoPageSheet>();
  sheet->OpenWindow();
  sheet->CloseWindow();
  sheet.reset();
  PropertyPage outlives("Page");
  {
    PropertySheet other("Other", nullptr);
    other.AddPage(outlives);
  }
  EXPECT_EQ(outlives.Sheet(), nullptr);
  outlives.SetModified(true);
  EXPECT_TRUE(outlives.PageChanged()) << "also without a sheet";
}

TEST(PropertySheetTest, APageThatGoesLeavesTheOthers) {
  PropertySheet sheet("Sheet", nullptr, 1);
  auto first = std::make_unique<PropertyPage>("First");
  PropertyPage second("Second");
  sheet.AddPage(*first);
  sheet.AddPage(second);
  sheet.OpenWindow();
  ASSERT_EQ(sheet.ActivePage(), &second);
  first.reset();
  EXPECT_EQ(sheet.ActivePage(), &second);
  EXPECT_EQ(sheet.ActiveIndex(), 0);
}

// Without a desktop nobody sees a window.

class CountingDialog : public Dialog {
 public:
  CountingDialog() : Dialog(nullptr, "Counting") {}
  int opened = 0;

 private:
  void OnInitDialog() override { ++opened; }
};

TEST(BaseDesktopTest, ModalWindowsEndAsCancelled) {
  CountingDialog dialog;
  EXPECT_EQ(dialog.RunModal(), kCancel);
  EXPECT_EQ(dialog.opened, 1);
  EXPECT_FALSE(dialog.Created()) << "and are closed";
}

TEST(BaseDesktopTest, MessagesGoToStandardErrorAndQuestionsAreAnsweredNo) {
  const Module module("Alerting");
  const ModuleScope scope(module);
  testing::internal::CaptureStderr();
  EXPECT_EQ(MessageBox("Told."), Answer::kOk);
  EXPECT_EQ(MessageBox("Asked?", Buttons::kYesNo), Answer::kNo);
  EXPECT_EQ(MessageBox("Asked?", Buttons::kYesNoCancel), Answer::kNo);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "Alerting: Told.\nAlerting: Asked?\nAlerting: Asked?\n");
}

TEST(BaseDesktopTest, PostedTasksRunOnTheThreadOfTheWindows) {
  std::thread::id ran_on;
  std::thread([&] { Desktop::Current().Post([&] { ran_on = std::this_thread::get_id(); }); }).join();
  EXPECT_EQ(ran_on, std::thread::id());
  CountingDialog dialog;
  dialog.RunModal();
  EXPECT_EQ(ran_on, std::this_thread::get_id());
}

TEST(ModuleTest, ScopesNestAndHoldOnTheirThreadOnly) {
  const Module outer("Outer"), inner("Inner");
  EXPECT_EQ(Module::Current().Title(), "");
  {
    const ModuleScope first(outer);
    {
      const ModuleScope second(inner);
      EXPECT_EQ(Module::Current().Title(), "Inner");
      std::thread([] { EXPECT_EQ(Module::Current().Title(), ""); }).join();
    }
    EXPECT_EQ(Module::Current().Title(), "Outer");
  }
  EXPECT_EQ(Module::Current().Title(), "");
}

TEST(DynamicLibraryTest, FindsNothingBeforeItHasLoaded) { EXPECT_EQ(DynamicLibrary().Find("cos"), nullptr); }

}  // namespace
}  // namespace platform::ui
