// SPDX-License-Identifier: MIT
// What a script must notice: a story that passes is worth as much as those that fail here.
#include <gmock/gmock.h>

#include <stdexcept>
#include <thread>

#include "desktops/scripted/scripted_desktop.h"
#include "platform/ui/dialog.h"
#include "platform/ui/edit.h"

namespace desktops {
namespace {

using namespace platform::ui;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

class AskingDialog : public Dialog {
 public:
  AskingDialog() : Dialog(nullptr, "Asking") {
    ask.SetOnClick([this] { answer = MessageBox("Sure?", Buttons::kYesNo); });
    fail.SetOnClick([] { throw std::runtime_error("out of luck"); });
    secret.SetMasked(true);
    SetLayout(Column({Field(secret), Bare(ask), Bare(fail)}));
  }

  std::optional<Answer> answer;
  Edit secret{*this, 1, "&Secret:"};
  Button ask{*this, 2, "Ask"};
  Button fail{*this, 3, "Fail"};
};

class ScriptTest : public testing::Test {
 protected:
  std::vector<std::string> Play(Script::Story story) {
    desktop_.script.ExpectWindow("Asking", std::move(story));
    EXPECT_EQ(dialog_.RunModal(), kCancel);
    return desktop_.script.Failures();
  }

  ScriptedDesktop desktop_;
  AskingDialog dialog_;
};

TEST_F(ScriptTest, AnUnexpectedWindowIsCancelled) {
  EXPECT_EQ(dialog_.RunModal(), kCancel);
  EXPECT_THAT(desktop_.script.Failures(), ElementsAre("Unexpected window \"Asking\"; expected nothing"));
}

TEST_F(ScriptTest, WhatNeverAppearedIsTold) {
  desktop_.script.ExpectMessage("Hello");
  desktop_.script.ExpectFileDialog("Select", "");
  EXPECT_THAT(desktop_.script.Failures(),
              ElementsAre("Never appeared: message \"Hello\"", "Never appeared: file dialog \"Select\""));
}

TEST_F(ScriptTest, AnUnexpectedMessageIsAnsweredNo) {
  const auto failures = Play([](Person& p) {
    p.Press("Ask");
    p.CloseWindow();
  });
  EXPECT_THAT(failures, ElementsAre("Unexpected message \"Sure?\"; expected nothing"));
  EXPECT_EQ(dialog_.answer, Answer::kNo);
}

TEST_F(ScriptTest, AnAnswerThatIsNotOfferedFails) {
  desktop_.script.ExpectWindow("Asking", [](Person& p) {
    p.Press("Ask");
    p.CloseWindow();
  });
  desktop_.script.ExpectMessage("Sure?", Answer::kCancel);
  dialog_.RunModal();
  EXPECT_THAT(desktop_.script.Failures(), ElementsAre("No button Cancel in message \"Sure?\""));
}

TEST_F(ScriptTest, AWindowLeftOpenFailsWithItsScreen) {
  dialog_.secret.SetText("hush");
  dialog_.fail.Enable(false);
  EXPECT_THAT(Play([](Person&) {}),
              ElementsAre(AllOf(HasSubstr("Still open"), HasSubstr("\"&Secret:\" (focus) = ****"),
                                HasSubstr("\"Fail\" (disabled)"))));
}

TEST_F(ScriptTest, WhatAStoryThrowsFails) {
  EXPECT_THAT(Play([](Person& p) { p.Press("Ask anything"); }),
              ElementsAre(AllOf(HasSubstr("No control \"Ask anything\""), HasSubstr("\"Ask\"")),
                          HasSubstr("Still open")));
}

TEST_F(ScriptTest, WhatAHandlerThrowsFailsAndTheStoryGoesOn) {
  EXPECT_THAT(Play([](Person& p) {
                p.Press("Fail");
                p.CloseWindow();
              }),
              ElementsAre(HasSubstr("out of luck")));
}

TEST_F(ScriptTest, NothingCanBeDoneInAWindowThatHasEnded) {
  EXPECT_THAT(Play([](Person& p) {
                p.CloseWindow();
                p.Press("Ask");
              }),
              ElementsAre(HasSubstr("The window has ended")));
}

TEST_F(ScriptTest, AFileThatDoesNotExistIsRefused) {
  FileDialog dialog(nullptr);
  dialog.title = "Select";
  desktop_.script.ExpectFileDialog("Select", "/nowhere/file");
  EXPECT_EQ(dialog.RunModal(), kCancel);
  EXPECT_THAT(desktop_.script.Failures(), ElementsAre(HasSubstr("refuses /nowhere/file")));
}

TEST_F(ScriptTest, SleepsAreRecordedAndLetPostedTasksRun) {
  bool ran = false;
  std::thread([&] { desktop_.Post([&] { ran = true; }); }).join();
  EXPECT_FALSE(ran);
  desktop_.Sleep(60000);
  EXPECT_TRUE(ran);
  EXPECT_THAT(desktop_.script.sleeps, ElementsAre(60000u));
}

/// A program that unloads the library whose code is posted has none of it left behind.
TEST_F(ScriptTest, PostedTasksAreForgottenBeforeTheirLibraryGoes) {
  const auto held = std::make_shared<int>();
  const auto task = [held] { ++*held; };
  desktop_.Post(task);
  desktop_.ForgetPosted();
  desktop_.Post(task);
  EXPECT_EQ(held.use_count(), 2) << "the test's own and the task's";
  desktop_.RunPosted();
  EXPECT_EQ(*held, 0);
}

}  // namespace
}  // namespace desktops
