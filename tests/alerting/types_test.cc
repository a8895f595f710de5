// SPDX-License-Identifier: MIT
// What each type answers, held against a table of its own.
#include "alerting/services/types.h"

#include <gtest/gtest.h>

#include "tests/support/service_fixture.h"

namespace {

using namespace alerting;      // NOLINT
using namespace test_support;  // NOLINT

/// Whether it is a user or a device service, uses an extension agent, dials out; response type, icon's place in the
/// strip, whether it has an icon; panels for users; lengths of message, subject, password, login and address; width of a
/// message's lines.
using Answers = std::tuple<bool, bool, bool, bool, int, int, bool, int, int, int, int, int, int, int>;

struct Expected {
  std::uint32_t code;
  const char* name;
  Answers answers;
  const char* test_response;
};

// clang-format off
const Expected kExpected[] = {
  {0, "MHS Mail", {true, false, false, false, 1, 8, true, 1, 1024, 256, 48, 48, 260, 0}, "{3217DA53-ADD1-11CF-8137-000000000001}"},
  {1, "SNMP Trap", {false, true, false, false, 16, 7, true, 0, 255, 256, 48, 48, 260, 0}, "{3217DA54-ADD1-11CF-8137-000000000001}"},
  {2, "MCI Mail", {true, false, false, true, 1, 13, false, 1, 1024, 256, 48, 48, 260, 80}, "{3217DA55-ADD1-11CF-8137-000000000001}"},
  {3, "CompuServe Mail", {true, false, false, true, 1, 13, false, 1, 1024, 40, 48, 48, 260, 0}, "{3217DA56-ADD1-11CF-8137-000000000001}"},
  {4, "Internet Mail", {true, false, false, false, 1, 14, false, 1, 1024, 256, 48, 48, 260, 0}, "{3217DA57-ADD1-11CF-8137-000000000001}"},
  {5, "Microsoft Mail", {true, false, true, false, 1, 8, false, 1, 1024, 256, 8, 255, 30, 0}, "{3217DA58-ADD1-11CF-8137-000000000001}"},
  {6, "cc:Mail", {true, false, true, false, 1, 8, false, 1, 1024, 60, 48, 48, 260, 0}, "{3217DA59-ADD1-11CF-8137-000000000001}"},
  {7, "Wave File", {false, false, false, false, 16, 12, false, 0, 1024, 256, 48, 48, 260, 0}, "{3217DA5A-ADD1-11CF-8137-000000000001}"},
  {8, "Text to Speech", {false, false, false, false, 16, 5, false, 0, 510, 256, 48, 48, 260, 0}, "{3217DA5B-ADD1-11CF-8137-000000000001}"},
  {10, "Alphanumeric Pager", {true, false, false, true, 1, 4, true, 1, 77, 256, 48, 48, 260, 0}, "{3217DA5D-ADD1-11CF-8137-000000000001}"},
  {11, "Numeric Pager", {true, false, false, true, 1, 10, true, 1, 1024, 256, 48, 48, 260, 0}, "{3217DA5E-ADD1-11CF-8137-000000000001}"},
  {12, "Generic Port Service", {false, true, false, true, 16, 11, false, 0, 1024, 256, 48, 48, 260, 0}, "{3217DA5F-ADD1-11CF-8137-000000000001}"},
  {13, "Program Launch Service", {false, false, false, false, 4, 6, false, 0, 1024, 256, 48, 48, 260, 0}, "{3217DA60-ADD1-11CF-8137-000000000001}"},
};
// clang-format on

TEST(ServiceTypeRegistry, MapsStoredValuesAndOffersThirteenNames) {
  for (std::uint32_t stored = 1; stored <= 14; ++stored)
    EXPECT_EQ(ServiceTypeFromRecordType(stored), stored - 1);
  for (const std::uint32_t stored : {0U, 15U, 16U, 0xFFFFFFFFU})
    EXPECT_EQ(ServiceTypeFromRecordType(stored), 15U);

  EXPECT_STREQ(GetServiceTypeName(4), " ") << "before the table is built";
  BuildServiceTypeNames();
  for (const Expected& type : kExpected) EXPECT_STREQ(GetServiceTypeName(type.code), type.name);
  EXPECT_STREQ(GetServiceTypeName(9), "Phone Call");
  EXPECT_STREQ(GetServiceTypeName(14), " ");
  FreeServiceTypeNames();
  EXPECT_STREQ(GetServiceTypeName(4), " ");
}

using TypeSweep = ServiceTest;

TEST_F(TypeSweep, EveryTypeGivesItsAnswersAndLimits) {
  for (const Expected& type : kExpected) {
    SCOPED_TRACE(type.name);
    CNtfyService& service = NewService(type.code);
    if (type.code == kTypeAlpha)
      static_cast<ALRTAPAGESERVICEREC*>(service.GetSpecificRecord())->maxTextLength = 77;
    EXPECT_EQ(service.Code(), type.code);
    EXPECT_EQ(
        type.answers,
        Answers(service.IsUserService(), service.IsDeviceService(), service.UsesExtensionAgent(),
                service.IsModemService(), service.GetResponseType(), service.GetIconOffset(),
                service.GetIcon() != nullptr, service.GetAddUserPanelCount(), service.GetMaxMessageLength(),
                service.GetMaxSubjectLength(), service.GetMaxPasswordLength(), service.GetMaxLoginIdLength(),
                service.GetMaxUserAddressLength(), service.GetMessageLineWidth()));
    EXPECT_EQ(service.GetResponsePanelCount(), 1);
    EXPECT_EQ(service.TestResponse().ToString(), type.test_response);
    EXPECT_TRUE(service.IsCompletelyConfigured());
    EXPECT_EQ(service.GetIncompleteConfigMessageId() != 0, type.code == kTypeAlpha);
    const bool mail = type.code <= kTypeVim && type.code != kTypeSnmp;
    for (const auto& [current, shown] : {std::pair{0U, "Urgent"}, {1U, "Normal"}, {2U, "Low"}, {3U, "Low"}}) {
      ComboDialog dialog;
      EXPECT_EQ(service.FillPriorityList(dialog.combo, current), mail);
      EXPECT_EQ(dialog.combo.Text(), mail ? shown : "");
    }
  }
}

}  // namespace
