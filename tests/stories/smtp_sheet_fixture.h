// SPDX-License-Identifier: MIT
#pragma once

#include <cstring>
#include <string>

#include "alerting/services/default_message.h"
#include "alerting/services/ntfy_service_smtp.h"
#include "tests/stories/story_test.h"
#include "tests/support/service_fixture.h"

namespace stories {

inline constexpr char kSheet[] = "Site mail";
inline constexpr char kServer[] = "&SMTP Server:";
inline constexpr char kMessageTab[] = "Default Message";
inline constexpr char kSubject[] = "Mail Message &Subject:";
inline constexpr char kBody[] = "Mail &Message Body:";
inline constexpr char kTestLater[] = "Test sends are not available in this version.";

/// The property sheet of the site's one service, an Internet Mail service whose unused bytes are filled with
/// a pattern.
class SmtpSheetTest : public StoryTest {
 protected:
  static constexpr std::uint8_t kPattern = 0xA5;

  void SetUp() override {
    service_ = test_support::SeedService(alerting::kTypeSmtp, kSheet, kPattern);
    Store([](alertstore::ALRTSMTPSERVICEREC& record) {
      record.smtpServer.Assign("old.example.org");
      record.loginId.Assign("alerts");
      record.password.Assign("secret");
      record.defaultBody.Assign("Alert for %s at %s");
      record.defaultSubject.Assign("Alert");
      record.defaultPriority = 1;
      alerting::WriteKeywordSlots({1, 5}, record.bodyKeywords);
      alerting::WriteKeywordSlots({}, record.subjectKeywords);
    });
    library_.engine->Forget();
  }

  void ExpectSheet(desktops::Script::Story story) { Script().ExpectWindow(kSheet, std::move(story)); }
  /// Runs the sheet; what is expected to appear was told before.
  int Open() { return Service().PropertySheet(nullptr); }

  alerting::CNtfyService& Service() { return *test_support::Find(service_); }
  const platform::GUID& ServiceId() const { return service_; }
  test_support::LibraryUnderTest& Library() { return library_; }
  test_support::FailingEngine& Engine() { return *library_.engine; }
  static std::string CommonFile() { return alerting::ServiceStore().Schema().file; }
  static std::string SpecificFile() { return SmtpStore().Schema().file; }

  alertstore::ALRTNTFYSERV StoredCommon() const { return test_support::StoredCommon(service_); }
  /// The specific record's stored bytes, and the same as a record.
  std::string StoredBytes() const {
    return test_support::StoredSpecific(alerting::kTypeSmtp, StoredCommon().specificRecordId);
  }
  alertstore::ALRTSMTPSERVICEREC Stored() const {
    alertstore::ALRTSMTPSERVICEREC record;
    std::memcpy(&record, StoredBytes().data(), sizeof(record));
    return record;
  }
  std::string StoredServer() const { return std::string(Stored().smtpServer.View()); }

  /// Changes the stored record, as another console would.
  template <class Edit>
  void Store(Edit&& edit) {
    alertstore::ALRTSMTPSERVICEREC record = Stored();
    edit(record);
    EXPECT_EQ(SmtpStore().DBAlertRecUpdate(record), alertstore::kOk);
  }

 private:
  static alertstore::RecordStore<alertstore::ALRTSMTPSERVICEREC>& SmtpStore() {
    return *alerting::ServiceStore().SpecificStore<alertstore::ALRTSMTPSERVICEREC>();
  }

  test_support::LibraryUnderTest library_;
  platform::GUID service_{};
};

}  // namespace stories
