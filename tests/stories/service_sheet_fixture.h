// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/alerting.h"
#include "tests/stories/story_test.h"
#include "tests/support/service_fixture.h"

namespace stories {

inline constexpr char kSheet[] = "Site service";
inline constexpr char kEnable[] = "&Enable Service";
inline constexpr char kMessageTab[] = "Default Message";
inline constexpr char kLogin[] = "&Login ID:";
inline constexpr char kPassword[] = "&Password:";
inline constexpr char kVerify[] = "&Verify Password:";
inline constexpr char kDirectory[] = "&Server/Volume path (MHS Directory):";
inline constexpr char kPhone[] = "P&hone #:";
inline constexpr char kDelay[] = "&Delay:";
inline constexpr char kLength[] = "Te&xt Length:";
inline constexpr char kSubject[] = "Mail Message &Subject:";
inline constexpr char kBody[] = "Mail &Message Body:";
inline constexpr char kHalfBody[] = "&Edit Default Message:";
inline constexpr char kNumericBody[] = "&Edit Default Message";
inline constexpr char kFields[] = "<< &Fields...";
inline constexpr char kApplyFirst[] =
    "Do you want to apply changes to this service before running the test?  If yes, the changes will be "
    "saved.  If no, the test will be run using the old values.";

/// The property sheet of the site's one service, opened as a console does.
class ServiceSheetsTest : public StoryTest {
 protected:
  void Seed(std::uint32_t code, std::uint8_t pattern = 0) {
    code_ = code;
    id_ = test_support::SeedService(code, kSheet, pattern);
    if (code == alerting::kTypeAlpha)
      Store<alertstore::ALRTAPAGESERVICEREC>([](auto& record) { record.maxTextLength = 100; });
    alerting::TheServices().RemoveAll();
    Service();  // a type that dials out gets its backup record
    Engine().Forget();
  }
  alerting::CNtfyService& Service() { return *test_support::Find(id_); }
  const platform::GUID& ServiceId() const { return id_; }
  test_support::LibraryUnderTest& Library() { return library_; }
  test_support::FailingEngine& Engine() { return *library_.engine; }
  static std::string CommonFile() { return alerting::ServiceStore().Schema().file; }

  alertstore::ALRTNTFYSERV Common() const { return test_support::StoredCommon(id_); }
  bool HasRecord() const { return code_ != alerting::kTypeProgram; }
  std::string Bytes() const {
    return HasRecord() ? test_support::StoredSpecific(code_, Common().specificRecordId) : "";
  }
  /// Changes the stored record, as another console would.
  template <class Record, class Edit>
  void Store(Edit&& edit) {
    Record record;
    std::memcpy(&record, Bytes().data(), sizeof(record));
    edit(record);
    EXPECT_EQ(alerting::ServiceStore().SpecificStore<Record>()->DBAlertRecUpdate(record), alertstore::kOk);
  }
  std::string SpecificFile() const {
    return test_support::WithRecordOf(code_, []<class Record>() {
      return std::string(alerting::ServiceStore().SpecificStore<Record>()->Schema().file);
    });
  }

  void Expect(desktops::Script::Story story) { Script().ExpectWindow(kSheet, std::move(story)); }
  /// The window of a site test opens; the person goes away from it.
  void ExpectTest(const std::string& caption = "Site Alerting Service Test: ") {
    Script().ExpectWindow(caption + " " + kSheet, [](desktops::Person& p) { p.Press("Cancel"); });
  }
  int Open() { return DomainServicePropertySheet(nullptr, *alerting::TheServices().FindById(id_)); }
  int Open(desktops::Script::Story story) {
    Expect(std::move(story));
    return Open();
  }

 private:
  test_support::LibraryUnderTest library_;
  platform::GUID id_{};
  std::uint32_t code_ = 0;
};

}  // namespace stories
