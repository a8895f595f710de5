// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "desktops/scripted/scripted_desktop.h"
#include "tests/support/service_fixture.h"

namespace alerting {
namespace {

TEST(ServiceSheetTest, AFailureToWriteIsToldUnderTheWaitCursorOfTheSave) {
  desktops::ScriptedDesktop desktop;
  const test_support::LibraryUnderTest library;
  CNtfyService& service = *test_support::Find(test_support::SeedService(kTypeSmtp, "Mail"));
  library.engine->FailAll(test_support::kAnyStore, test_support::StoreOp::kUpdate);
  desktop.script.ExpectWindow("Mail", [](desktops::Person& p) {
    p.Press("OK");
    p.Press("Cancel");
  });
  desktop.script.ExpectMessage("Unable to update the notification service database record.");
  service.PropertySheet(nullptr);
  EXPECT_THAT(desktop.script.Failures(), testing::IsEmpty());
  EXPECT_THAT(desktop.shown, testing::ElementsAre(testing::FieldsAre("Alerting", 1)));
  EXPECT_EQ(desktop.wait_cursor_depth, 0);
}

}  // namespace
}  // namespace alerting
