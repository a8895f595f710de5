// SPDX-License-Identifier: MIT
#include "alerting/sheets/service_sheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "alerting/frame/strings.h"
#include "desktops/scripted/scripted_desktop.h"
#include "platform/ui/edit.h"
#include "tests/support/service_fixture.h"

namespace alerting {
namespace {

using desktops::Person;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr char kFirst[] = "First";
constexpr char kSecond[] = "Second";
constexpr ctxhelp::HelpPair kNoHelp[] = {ctxhelp::kEndOfHelpTable};

/// A page with one field that refuses what it is told to refuse.
class FieldPage : public CServicePage {
 public:
  FieldPage(std::string caption, std::vector<std::string>& saved)
      : CServicePage(std::move(caption), kNoHelp), saved_(saved) {
    SetLayout(ui::Field(edit_));
  }

  std::string refused = "bad";

 private:
  void Exchange(ui::DataExchange& x) override { x.Text(edit_, text_); }
  bool SaveFields() override {
    if (text_ == refused) return false;
    saved_.push_back(Label() + " " + text_);
    return true;
  }

  std::vector<std::string>& saved_;
  std::string text_;
  ui::Edit edit_{*this, 1, "&Field:"};
};

class TwoPageSheet : public CServiceSheet {
 public:
  explicit TwoPageSheet(CNtfyService& service) : CServiceSheet("Sheet", nullptr) {
    Assemble(service, {&first, &second});
  }

  std::vector<std::string> saved;
  FieldPage first{kFirst, saved}, second{kSecond, saved};
};

class ServiceSheetTest : public testing::Test {
 protected:
  int Run(desktops::Script::Story story) {
    desktop.script.ExpectWindow("Sheet", std::move(story));
    return sheet.RunModal();
  }
  void TearDown() override {
    EXPECT_THAT(desktop.script.Failures(), IsEmpty());
    EXPECT_EQ(desktop.wait_cursor_depth, 0);
  }

  desktops::ScriptedDesktop desktop;
  test_support::LibraryUnderTest library;
  CNtfyService& service = *test_support::Find(test_support::SeedService(kTypeSmtp, "Mail"));
  TwoPageSheet sheet{service};
};

TEST_F(ServiceSheetTest, APageThatRefusesItsValuesStopsTheSaveBeforeTheStore) {
  Run([this](Person& p) {
    library.engine->Forget();
    p.Type("&Field:", "bad");
    p.SelectTab(kSecond);
    p.Type("&Field:", "good");
    p.Press("OK");
    EXPECT_THAT(sheet.saved, IsEmpty());
    EXPECT_THAT(library.engine->Writes(), IsEmpty());
    EXPECT_TRUE(p.IsEnabled("Apply"));
    EXPECT_FALSE(sheet.first.IsModified());
    EXPECT_TRUE(sheet.second.IsModified());
    p.Press("OK");
  });
  EXPECT_THAT(sheet.saved, ElementsAre("Second good")) << "refused values are not tried again";
  EXPECT_EQ(library.engine->Writes().size(), 2u);
}

TEST_F(ServiceSheetTest, PagesAreSavedInTabOrderOnceForEachEdit) {
  Run([this](Person& p) {
    p.SelectTab(kSecond);
    p.Type("&Field:", "b");
    p.SelectTab(kFirst);
    p.Type("&Field:", "a");
    p.Press("Apply");
    EXPECT_THAT(sheet.saved, ElementsAre("First a", "Second b"));
    p.Type("&Field:", "c");
    p.Press("OK");
  });
  EXPECT_THAT(sheet.saved, ElementsAre("First a", "Second b", "First c"));
}

TEST_F(ServiceSheetTest, APageThatWasNeverShownIsNotSaved) {
  sheet.second.refused = "";
  Run([](Person& p) { p.Press("OK"); });
  EXPECT_EQ(sheet.Result(), ui::kOk);
  EXPECT_FALSE(sheet.second.Created());
}

TEST_F(ServiceSheetTest, ATestWaitsForChangesThatArePutRight) {
  Run([this](Person& p) {
    EXPECT_TRUE(sheet.ConfirmApplyBeforeTest());
    p.Type("&Field:", "bad");
    desktop.script.ExpectMessage(Text(kIdsApplyBeforeTest), ui::Answer::kYes);
    EXPECT_FALSE(sheet.ConfirmApplyBeforeTest());
    p.Type("&Field:", "good");
    desktop.script.ExpectMessage(Text(kIdsApplyBeforeTest), ui::Answer::kYes);
    EXPECT_TRUE(sheet.ConfirmApplyBeforeTest());
    EXPECT_THAT(sheet.saved, ElementsAre("First good"));
    p.Press("Cancel");
  });
}

}  // namespace
}  // namespace alerting
