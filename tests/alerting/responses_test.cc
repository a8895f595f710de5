// SPDX-License-Identifier: MIT
// How services fill, re-target and check responses.
#include <gmock/gmock.h>

#include "tests/support/service_classes.h"

namespace {

using namespace alerting;      // NOLINT
using namespace test_support;  // NOLINT
using ::testing::Each;
using ::testing::ElementsAre;

constexpr char kFileWarning[] =
    "The file or program associated with this response has \nbeen left unchanged.  But since the service "
    "type has \nbeen changed, the file should probably also be changed.";

class ResponsesTest : public ServiceTest {
 protected:
  /// A response full of something else, every byte of it.
  static ALERTRESPREC Full(std::uint32_t record_type) {
    ALERTRESPREC response;
    std::memset(&response, 0x33, sizeof(response));
    response.message.Assign("old message");
    response.subject.Assign("old subject");
    response.serviceRecordType = record_type;
    response.priority = 9;
    return response;
  }
};

TEST_F(ResponsesTest, DefaultMessagesFillWhatTheTypeOwns) {
  DefaultMessage message;
  message.body = "%s!";
  message.bodyKeywords = {12};
  message.subject = "%s?";
  message.subjectKeywords = {8};
  message.priority = 1;
  for (const std::uint32_t code : ConfiguredTypes()) {
    SCOPED_TRACE(code);
    CNtfyService& service = NewService(code);
    ASSERT_TRUE(service.SetDefaultMessage(message));
    ALERTRESPREC response = Full(1), expected = response;
    ASSERT_TRUE(service.InitWithDefaultMessage(response));
    const bool mail = service.Type().code <= kTypeVim && code != kTypeSnmp;
    const bool file = code == kTypeWave || code == kTypeProgram;
    const bool subject = mail || code == kTypeSnmp;
    if (!file) {
      expected.message.Assign("%s!");
      std::memset(expected.messageKeywords, 0, 20);
      expected.messageKeywords[0] = 12;
    }
    if (subject) {
      expected.subject.Assign("%s?");
      std::memset(expected.subjectKeywords, 0, 20);
      expected.subjectKeywords[0] = 8;
    }
    if (mail) expected.priority = 1;
    EXPECT_EQ(BytesOf(response), BytesOf(expected));
  }
}

TEST_F(ResponsesTest, AnEmptyDefaultMessageClearsAndWideIdentifiersKeepTheirLowByte) {
  CNtfyService& service = NewService(kTypeSmtp);
  ALERTRESPREC response = Full(1);
  ASSERT_TRUE(service.InitWithDefaultMessage(response));
  EXPECT_TRUE(response.message.Empty() && response.subject.Empty());
  EXPECT_EQ(response.priority, 0);
  EXPECT_THAT(response.messageKeywords, Each(0));

  DefaultMessage wide;
  wide.body = "%s";
  wide.bodyKeywords = {0x10C};
  ASSERT_TRUE(service.SetDefaultMessage(wide));
  ASSERT_TRUE(service.InitWithDefaultMessage(response));
  EXPECT_EQ(response.messageKeywords[0], 0x0C);
}

TEST_F(ResponsesTest, RetargetingTakesOverTheServiceOnce) {
  CNtfyService& service = NewService(kTypeSmtp);
  ALERTRESPREC response = Full(1);
  ASSERT_TRUE(service.ReinitializeResponse(response));
  ALERTRESPREC expected = Full(5);  // the priority is left as it was
  expected.responseType = 1;
  expected.serviceId = service.ServiceId();
  expected.serviceName.Assign("Service");
  expected.message.Assign("");
  expected.subject.Assign("");
  std::memset(expected.messageKeywords, 0, 20);
  std::memset(expected.subjectKeywords, 0, 20);
  EXPECT_EQ(BytesOf(response), BytesOf(expected));

  response.message.Assign("typed since");
  const ALERTRESPREC before = response;
  EXPECT_FALSE(service.ReinitializeResponse(response));
  EXPECT_EQ(BytesOf(response), BytesOf(before));
}

TEST_F(ResponsesTest, MovingFromWaveToProgramKeepsTheFileAndMovingToMailClearsIt) {
  const GUID wave = SeedService(kTypeWave, "Wave"), program = SeedService(kTypeProgram, "Program"),
             mail = SeedService(kTypeSmtp, "Mail");
  ALERTRESPREC response{};
  response.subject.Assign("\\\\server\\share\\alarm.wav");
  ASSERT_TRUE(Find(wave)->ReinitializeResponse(response));
  ASSERT_TRUE(Find(program)->ReinitializeResponse(response));
  EXPECT_EQ(response.subject.View(), "\\\\server\\share\\alarm.wav");
  EXPECT_EQ(response.responseType, 4);
  EXPECT_FALSE(Find(program)->ReinitializeResponse(response)) << "of that type already: no warning";
  ASSERT_TRUE(Find(mail)->ReinitializeResponse(response));
  EXPECT_TRUE(response.subject.Empty());
  EXPECT_THAT(desktop.TakeMessages(), ElementsAre(kFileWarning, kFileWarning));
}

TEST_F(ResponsesTest, ANumericPagerEmptiesTheMessageInEveryCase) {
  CNtfyService& pager = NewService(kTypeNumeric);
  ALERTRESPREC response = Full(RecordTypeOf(kTypeNumeric));
  EXPECT_FALSE(pager.ReinitializeResponse(response));
  EXPECT_TRUE(response.message.Empty());
  EXPECT_EQ(response.subject.View(), "old subject");
}

TEST_F(ResponsesTest, ValidationAsksForTheMessageOrTheFile) {
  const std::pair<std::uint32_t, const char*> rows[] = {
      {kTypeSmtp, "No message in response.  Please enter a message using the message tab."},
      {kTypeNumeric, "No message in response.  Please enter a message using the message tab."},
      {kTypeWave, "No wave filename in response.  Please enter a filename using the file tab."},
      {kTypeProgram, "No program filename in response.  Please enter a filename using the program tab."},
  };
  for (const auto& [code, text] : rows) {
    SCOPED_TRACE(code);
    CNtfyService& service = NewService(code);
    ALERTRESPREC response{};
    const bool file = code == kTypeWave || code == kTypeProgram;
    (file ? response.message.Assign("m") : response.subject.Assign("s"));
    EXPECT_FALSE(service.ValidateResponse(response));
    EXPECT_THAT(desktop.TakeMessages(), ElementsAre(text));
    (file ? response.subject.Assign("s") : response.message.Assign("m"));
    EXPECT_TRUE(service.ValidateResponse(response));
  }
}

}  // namespace
