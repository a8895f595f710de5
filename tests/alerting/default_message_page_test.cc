// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "alerting/services/default_message.h"
#include "alerting/sheets/page_default_message.h"
#include "alerting/sheets/service_sheet.h"
#include "desktops/scripted/scripted_desktop.h"
#include "tests/support/service_fixture.h"

namespace alerting {
namespace {

using desktops::Person;
using testing::Each;

constexpr char kSubject[] = "Mail Message &Subject:";
constexpr char kBody[] = "Mail &Message Body:";
constexpr char kNote[] =
    "Note: Compuserve subjects have a maximum length of 40 characters.  If you use fields they may be "
    "truncated.";

class MessageSheet : public CServiceSheet {
 public:
  explicit MessageSheet(CNtfyService& service) : CServiceSheet("Sheet", nullptr) {
    Assemble(service, {&page_});
  }

 private:
  CPropPgDefaultMsg page_;
};

/// What sets a type's default message page apart from the others'.
class DefaultMessagePageTest : public testing::Test {
 protected:
  /// Runs the page on a new service of the type; the service's default message after it.
  DefaultMessage Run(std::uint32_t code, desktops::Script::Story story) {
    CNtfyService& service = *test_support::Find(test_support::SeedService(code, "Mail"));
    MessageSheet sheet(service);
    desktop.script.ExpectWindow("Sheet", std::move(story));
    sheet.RunModal();
    DefaultMessage message;
    service.GetDefaultMessage(message);
    return message;
  }
  void TearDown() override { EXPECT_THAT(desktop.script.Failures(), testing::IsEmpty()); }

  desktops::ScriptedDesktop desktop;
  test_support::LibraryUnderTest library;
};

TEST_F(DefaultMessagePageTest, CompuServeSubjectsAreShortAndANoteSaysSo) {
  const DefaultMessage message = Run(kTypeCompuServe, [](Person& p) {
    EXPECT_TRUE(p.IsVisible(kNote));
    p.Type(kSubject, std::string(41, 's'));
    EXPECT_EQ(p.Text(kSubject), std::string(40, 's'));
    p.Press("OK");
  });
  EXPECT_EQ(message.subject, std::string(40, 's'));
}

TEST_F(DefaultMessagePageTest, MciBodiesAreBrokenIntoLines) {
  const DefaultMessage message = Run(kTypeMci, [](Person& p) {
    EXPECT_FALSE(p.IsVisible(kNote));
    p.Type(kBody, std::string(100, 'b'));
    p.Press("OK");
  });
  EXPECT_EQ(message.body, std::string(79, 'b') + "\r\n" + std::string(21, 'b'));
}

TEST_F(DefaultMessagePageTest, TheTwentyFirstKeywordOfABodyStaysText) {
  std::string shown;
  for (int i = 0; i < 21; ++i) shown += "<Time>";
  const DefaultMessage message = Run(kTypeSmtp, [&](Person& p) {
    p.Paste(kBody, shown);
    p.Press("OK");
  });
  EXPECT_TRUE(message.body.ends_with("%s<Time>"));
  EXPECT_THAT(message.bodyKeywords, Each(5));
}

TEST_F(DefaultMessagePageTest, TheChosenPriorityIsKeptByItsPlaceInTheList) {
  const DefaultMessage message = Run(kTypeVim, [](Person& p) {
    EXPECT_EQ(p.Text("P&riority:"), "Urgent");
    p.Choose("P&riority:", "Low");
    p.Press("OK");
  });
  EXPECT_EQ(message.priority, 2u);
}

}  // namespace
}  // namespace alerting
