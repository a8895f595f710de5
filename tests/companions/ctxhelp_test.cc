// SPDX-License-Identifier: MIT
#include "companions/ctxhelp/ctxhelp.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>

#include "companions/ctxhelp/help_texts.h"
#include "companions/ctxhelp/resource_directory.h"
#include "desktops/scripted/scripted_desktop.h"
#include "platform/ui/dialog.h"
#include "tests/support/temporary.h"

namespace ui = platform::ui;
using testing::HasSubstr;

namespace {

constexpr char kNoHelp[] = "There is no help on this item.";

class ContextHelpTest : public testing::Test {
 protected:
  std::string HelpOn(ui::Control* control, ctxhelp::HelpPage page = ctxhelp::kHelpSmtpGeneral) {
    desktop_.last_help_text.clear();
    ctxhelp::MakeContextHelp()->QEVDlgOnContextHelp(dialog_, {ui::HelpEvent::Kind::kHelpKey, control},
                                                    ctxhelp::HelpTableOf(dialog_, page).data());
    return desktop_.last_help_text;
  }

  desktops::ScriptedDesktop desktop_;
  ui::Dialog dialog_{nullptr, "Dialog"};
  ui::Button enable_{dialog_, 100, "Enable"}, server_{dialog_, 102, "Server"},
      nameless_{dialog_, 999, "Other"};
};

TEST_F(ContextHelpTest, AControlHasTheTextOfItsPageOrOfThePageThatOneIsLike) {
  EXPECT_THAT(HelpOn(&server_), HasSubstr("SMTP server"));
  EXPECT_THAT(HelpOn(&enable_), HasSubstr("this box is checked"));
  EXPECT_THAT(HelpOn(nullptr), HasSubstr("This page"));
  EXPECT_EQ(HelpOn(&nameless_), kNoHelp);
  EXPECT_EQ(HelpOn(&server_, ctxhelp::kNoHelpPage), kNoHelp);
}

TEST_F(ContextHelpTest, MissingDamagedAndCircularFilesSaySo) {
  const test_support::SavedVariable resources("ALERTING_RESOURCES");
  const test_support::TemporaryDirectory directory;
  const std::string file = directory.Path() + "/help/smtp-general.json";
  std::filesystem::create_directories(directory.Path() + "/help");
  setenv("ALERTING_RESOURCES", directory.Path().c_str(), 1);
  EXPECT_EQ(HelpOn(&server_), kNoHelp);
  for (const char* bytes : {"{\"page\": ", "[]", "{\"controls\": [1]}", "{\"like\": \"smtp-general\"}"}) {
    std::ofstream(file) << bytes;
    EXPECT_EQ(HelpOn(&server_), kNoHelp) << bytes;
  }
}

TEST(HelpPagesTest, EveryPageHasItsFileAndEveryFileItsPage) {
  std::set<std::string> files = {"general", "mail-general", "dialog"};  // what pages are like
  std::set<int> numbers;
#define HELP_PAGE(name, number, file)                                             \
  EXPECT_TRUE(files.insert(file).second&& numbers.insert(number).second) << file; \
  EXPECT_EQ(number % ctxhelp::kTopicsPerPage, 0) << file;                         \
  EXPECT_GT(ctxhelp::HelpText(number).size(), 40u) << file;
#include "companions/ctxhelp/help_pages.def"
#undef HELP_PAGE
  for (const auto& entry : std::filesystem::directory_iterator(ctxhelp::ResourceDirectory() + "/help"))
    EXPECT_TRUE(files.contains(entry.path().stem())) << entry.path() << " is no page's";
}

}  // namespace
