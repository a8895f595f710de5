// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "alerting/services/default_message.h"
#include "alerting/sheets/service_sheets.h"
#include "desktops/scripted/scripted_desktop.h"
#include "platform/ui/edit.h"
#include "tests/support/service_fixture.h"

namespace alerting {
namespace {

using desktops::Person;
using testing::ElementsAre;
using testing::FieldsAre;
using testing::IsEmpty;

constexpr char kFirst[] = "First";
constexpr char kSecond[] = "Second";

/// A page with one field that refuses "bad".
class FieldPage : public CServicePage {
 public:
  FieldPage(std::string caption, std::vector<std::string>& saved)
      : CServicePage(std::move(caption), ctxhelp::kNoHelpPage), saved_(saved) {
    SetLayout(ui::Field(edit_));
  }

 private:
  void Exchange(ui::DataExchange& x) override { x.Text(edit_, text_); }
  bool SaveFields() override {
    if (text_ == "bad") return false;
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

class SheetTest : public testing::Test {
 protected:
  static CNtfyService& Make(std::uint32_t code) {
    return *test_support::Find(test_support::SeedService(code, "Mail"));
  }
  void Run(CServiceSheet& sheet, desktops::Script::Story story) {
    desktop.script.ExpectWindow("Sheet", std::move(story));
    sheet.RunModal();
  }
  void TearDown() override {
    EXPECT_THAT(desktop.script.Failures(), IsEmpty());
    EXPECT_EQ(desktop.wait_cursor_depth, 0);
  }

  desktops::ScriptedDesktop desktop;
  test_support::LibraryUnderTest library;
};

class ServiceSheetTest : public SheetTest {
 protected:
  TwoPageSheet sheet{Make(kTypeSmtp)};
};

TEST_F(ServiceSheetTest, APageThatRefusesItsValuesStopsTheSaveBeforeTheStore) {
  Run(sheet, [this](Person& p) {
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

TEST_F(ServiceSheetTest, AFailureToWriteIsToldUnderTheWaitCursorOfTheSave) {
  library.engine->FailAll(test_support::kAnyStore, test_support::StoreOp::kUpdate);
  Run(sheet, [this](Person& p) {
    desktop.script.ExpectMessage("Unable to update the notification service database record.");
    p.Press("OK");
    p.Press("Cancel");
  });
  EXPECT_THAT(desktop.shown, ElementsAre(FieldsAre("Alerting", 1)));
}

TEST_F(ServiceSheetTest, PagesAreSavedInTabOrderOnceForEachEdit) {
  Run(sheet, [this](Person& p) {
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

constexpr char kSubject[] = "Mail Message &Subject:";
constexpr char kBody[] = "Mail &Message Body:";
constexpr char kNote[] =
    "Note: Compuserve subjects have a maximum length of 40 characters.  If you use fields they may be "
    "truncated.";

/// What sets a type's default message page apart from the others'.
class DefaultMessagePageTest : public SheetTest {
 protected:
  /// Runs the page on a new service of the type; the service's default message after it.
  template <class Page = CPropPgDefaultMsg>
  DefaultMessage MessageAfter(std::uint32_t code, desktops::Script::Story story,
                              const DefaultMessage& before = {}) {
    CNtfyService& service = Make(code);
    service.SetDefaultMessage(before);
    service.SaveRecords();
    SheetOf<Page> sheet(service, "Sheet", nullptr, 0);
    Run(sheet, std::move(story));
    DefaultMessage message;
    service.GetDefaultMessage(message);
    return message;
  }
};

TEST_F(DefaultMessagePageTest, CompuServeSubjectsAreShortAndANoteSaysSo) {
  const DefaultMessage message = MessageAfter(kTypeCompuServe, [](Person& p) {
    EXPECT_TRUE(p.IsVisible(kNote));
    p.Type(kSubject, std::string(41, 's'));
    EXPECT_EQ(p.Text(kSubject), std::string(40, 's'));
    p.Press("OK");
  });
  EXPECT_EQ(message.subject, std::string(40, 's'));
}

TEST_F(DefaultMessagePageTest, MciBodiesAreBrokenIntoLines) {
  const DefaultMessage message = MessageAfter(kTypeMci, [](Person& p) {
    EXPECT_FALSE(p.IsVisible(kNote));
    p.Type(kBody, std::string(100, 'b'));
    p.Press("OK");
  });
  EXPECT_EQ(message.body, std::string(79, 'b') + "\r\n" + std::string(21, 'b'));
}

TEST_F(DefaultMessagePageTest, ABodyAloneIsSavedWithoutSubjectAndWithThePriorityItHad) {
  DefaultMessage before;
  before.body = std::string(300, 'b');
  before.subject = "%s";
  before.subjectKeywords[0] = 5;
  before.priority = 2;
  const DefaultMessage message = MessageAfter<CPropPgHalfDefaultMsg>(
      kTypeSnmp,
      [](Person& p) {
        EXPECT_EQ(p.Text("&Edit Default Message:"), std::string(255, 'b'));
        p.Type("&Edit Default Message:", "At <Time>");
        p.Press("OK");
      },
      before);
  EXPECT_EQ(message.body, "At %s");
  EXPECT_EQ(message.bodyKeywords[0], 5u);
  EXPECT_EQ(message.subject, "");
  EXPECT_EQ(message.subjectKeywords[0], 0u);
  EXPECT_EQ(message.priority, 2u);
}

}  // namespace
}  // namespace alerting
