// SPDX-License-Identifier: MIT
#include "companions/ctxhelp/ctxhelp.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <set>

#include "companions/ctxhelp/resource_directory.h"
#include "companions/ctxhelp/topics.h"
#include "desktops/scripted/scripted_desktop.h"
#include "platform/base/paths.h"
#include "platform/ui/dialog.h"
#include "tests/support/temporary.h"

namespace ui = platform::ui;
using ctxhelp::HelpPair;

namespace {

constexpr HelpPair kTable[] = {{ctxhelp::kFormItself, ctxhelp::kTopicDefaultMessage},
                               {101, ctxhelp::kTopicDefaultMessageBody},
                               {102, 999999},
                               ctxhelp::kEndOfHelpTable};

std::map<std::string, std::string> Topics() {
  std::string bytes;
  EXPECT_TRUE(platform::ReadWholeFile(ctxhelp::ResourceDirectory() + "/help/topics.json", bytes));
  return nlohmann::json::parse(bytes);
}

std::string TextOf(ctxhelp::Topic topic) { return Topics()[std::to_string(topic)]; }

class ContextHelpTest : public testing::Test {
 protected:
  std::string HelpOn(ui::Control* control, const HelpPair* table = kTable) {
    desktop_.last_help_text.clear();
    ctxhelp::MakeContextHelp()->QEVDlgOnContextHelp(dialog_, {ui::HelpEvent::Kind::kHelpKey, control}, table);
    return desktop_.last_help_text;
  }

  desktops::ScriptedDesktop desktop_;
  ui::Dialog dialog_{nullptr, "Dialog"};
  ui::Button body_{dialog_, 101, "Body"}, broken_{dialog_, 102, "Broken"}, other_{dialog_, 103, "Other"};
};

TEST_F(ContextHelpTest, AControlHasItsOwnTopicOrThatOfItsForm) {
  EXPECT_EQ(HelpOn(&body_), TextOf(ctxhelp::kTopicDefaultMessageBody));
  EXPECT_EQ(HelpOn(&other_), TextOf(ctxhelp::kTopicDefaultMessage));
  EXPECT_EQ(HelpOn(nullptr), TextOf(ctxhelp::kTopicDefaultMessage));
}

TEST_F(ContextHelpTest, WhatHasNoTextSaysSo) {
  constexpr char kNoHelp[] = "There is no help on this item.";
  EXPECT_EQ(HelpOn(&broken_), kNoHelp);
  EXPECT_EQ(HelpOn(&body_, &ctxhelp::kEndOfHelpTable), kNoHelp);

  const test_support::SavedVariable resources("ALERTING_RESOURCES");
  const test_support::TemporaryDirectory directory;
  const std::string& empty = directory.Path();
  std::filesystem::create_directories(empty + "/help");
  setenv("ALERTING_RESOURCES", empty.c_str(), 1);
  EXPECT_EQ(HelpOn(&body_), kNoHelp) << "without the file";
  std::ofstream(empty + "/help/topics.json") << "{\"1103\": ";
  EXPECT_EQ(HelpOn(&body_), kNoHelp) << "with a damaged file";
}

TEST(HelpTopicsTest, EveryTopicHasATextAndEveryTextATopic) {
  const auto topics = Topics();
  std::set<std::string> named;
  for (ctxhelp::Topic topic : ctxhelp::kAllTopics) {
    named.insert(std::to_string(topic));
    const auto text = topics.find(std::to_string(topic));
    ASSERT_NE(text, topics.end()) << topic;
    EXPECT_GT(text->second.size(), 40u) << topic;
  }
  EXPECT_EQ(named.size(), std::size(ctxhelp::kAllTopics)) << "a number stands twice";
  EXPECT_EQ(topics.size(), named.size()) << "a text has no topic";
}

}  // namespace
