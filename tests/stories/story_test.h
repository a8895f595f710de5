// SPDX-License-Identifier: MIT
#pragma once

#include <gmock/gmock.h>

#include <set>

#include "desktops/scripted/person.h"
#include "platform/ui/dialog.h"
#include "tests/stories/test_desktop.h"

namespace stories {

using desktops::Person;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// A test that says what a person sees and does. Everything that went other than its script says fails it.
class StoryTest : public testing::Test {
 protected:
  desktops::Script& Script() { return desktop_->Script(); }
  TestDesktop& Desk() { return *desktop_; }

  /// Runs a dialog in front of a person who presses OK at the end of the story.
  template <class Dialog>
  void Play(Dialog& dialog, const desktops::Script::Story& story) {
    Script().ExpectWindow(dialog.Label(), [&](Person& p) {
      story(p);
      p.Press("OK");
    });
    EXPECT_EQ(dialog.RunModal(), platform::ui::kOk);
  }

  /// What a person does who fills fields in, one after another, and presses OK.
  static desktops::Script::Story Fill(std::vector<std::pair<std::string, std::string>> fields) {
    return [fields](Person& p) {
      for (const auto& [label, text] : fields) p.Type(label, text);
      p.Press("OK");
    };
  }

  void TearDown() override {
    for (const std::string& failure : Script().Failures()) ADD_FAILURE() << failure;
  }

 private:
  std::unique_ptr<TestDesktop> desktop_ = MakeTestDesktop();
};

using Labels = std::vector<std::string>;

/// Presses F1 on each control; a text that two controls share is a control without a text of its own.
inline void ExpectOwnHelp(Person& p, const Labels& controls) {
  std::set<std::string> texts = {"", "There is no help on this item."};
  for (const std::string& label : controls)
    EXPECT_TRUE(texts.insert(p.HelpOn(label)).second) << "no help of its own on " << label;
}

}  // namespace stories
