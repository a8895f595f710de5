// SPDX-License-Identifier: MIT
// What each type answers, held against a table of its own.
#include "alerting/services/types.h"

#include <gtest/gtest.h>

#include "alerting/services/service_ui.h"
#include "platform/ui/modal.h"
#include "tests/support/service_fixture.h"

namespace {

using namespace alerting;      // NOLINT
using namespace test_support;  // NOLINT

struct Expected {
  std::uint32_t code;
  const char* name;
  bool user, device, extension, modem;
  int response_type, icon_offset;
  bool icon;
  int panels, message, subject, password, login, address, width;
  const char* test_response;
};

// clang-format off
const Expected kExpected[] = {
  {0, "MHS Mail", true, false, false, false, 1, 8, true, 1, 1024, 256, 48, 48, 260, 0, "{3217DA53-ADD1-11CF-8137-000000000001}"},
  {1, "SNMP Trap", false, true, false, false, 16, 7, true, 0, 255, 256, 48, 48, 260, 0, "{3217DA54-ADD1-11CF-8137-000000000001}"},
  {2, "MCI Mail", true, false, false, true, 1, 13, false, 1, 1024, 256, 48, 48, 260, 80, "{3217DA55-ADD1-11CF-8137-000000000001}"},
  {3, "CompuServe Mail", true, false, false, true, 1, 13, false, 1, 1024, 40, 48, 48, 260, 0, "{3217DA56-ADD1-11CF-8137-000000000001}"},
  {4, "Internet Mail", true, false, false, false, 1, 14, false, 1, 1024, 256, 48, 48, 260, 0, "{3217DA57-ADD1-11CF-8137-000000000001}"},
  {5, "Microsoft Mail", true, false, true, false, 1, 8, false, 1, 1024, 256, 8, 255, 30, 0, "{3217DA58-ADD1-11CF-8137-000000000001}"},
  {6, "cc:Mail", true, false, true, false, 1, 8, false, 1, 1024, 60, 48, 48, 260, 0, "{3217DA59-ADD1-11CF-8137-000000000001}"},
  {7, "Wave File", false, false, false, false, 16, 12, false, 0, 1024, 256, 48, 48, 260, 0, "{3217DA5A-ADD1-11CF-8137-000000000001}"},
  {8, "Text to Speech", false, false, false, false, 16, 5, false, 0, 510, 256, 48, 48, 260, 0, "{3217DA5B-ADD1-11CF-8137-000000000001}"},
  {10, "Alphanumeric Pager", true, false, false, true, 1, 4, true, 1, 77, 256, 48, 48, 260, 0, "{3217DA5D-ADD1-11CF-8137-000000000001}"},
  {11, "Numeric Pager", true, false, false, true, 1, 10, true, 1, 1024, 256, 48, 48, 260, 0, "{3217DA5E-ADD1-11CF-8137-000000000001}"},
  {12, "Generic Port Service", false, true, false, true, 16, 11, false, 0, 1024, 256, 48, 48, 260, 0, "{3217DA5F-ADD1-11CF-8137-000000000001}"},
  {13, "Program Launch Service", false, false, false, false, 4, 6, false, 0, 1024, 256, 48, 48, 260, 0, "{3217DA60-ADD1-11CF-8137-000000000001}"},
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

class TypeSweep : public ServiceTest {
 protected:
  CNtfyService& Make(std::uint32_t code) {
    const GUID id = SeedService(code, "Service");
    CNtfyService& service = *Find(id);
    if (code == kTypeAlpha)
      static_cast<ALRTAPAGESERVICEREC*>(service.GetSpecificRecord())->maxTextLength = 77;
    return service;
  }
};

TEST_F(TypeSweep, EveryTypeGivesItsAnswersAndLimits) {
  for (const Expected& type : kExpected) {
    SCOPED_TRACE(type.name);
    TheServices().RemoveAll();
    CNtfyService& service = Make(type.code);
    EXPECT_EQ(service.Code(), type.code);
    EXPECT_EQ(service.IsUserService(), type.user);
    EXPECT_EQ(service.IsDeviceService(), type.device);
    EXPECT_EQ(service.UsesExtensionAgent(), type.extension);
    EXPECT_EQ(service.IsModemService(), type.modem);
    EXPECT_EQ(service.GetResponseType(), type.response_type);
    EXPECT_EQ(service.GetIconOffset(), type.icon_offset);
    EXPECT_EQ(service.GetIcon() != nullptr, type.icon);
    EXPECT_EQ(service.GetAddUserPanelCount(), type.panels);
    EXPECT_EQ(service.GetResponsePanelCount(), 1);
    EXPECT_EQ(service.GetMaxMessageLength(), type.message);
    EXPECT_EQ(service.GetMaxSubjectLength(), type.subject);
    EXPECT_EQ(service.GetMaxPasswordLength(), type.password);
    EXPECT_EQ(service.GetMaxLoginIdLength(), type.login);
    EXPECT_EQ(service.GetMaxUserAddressLength(), type.address);
    EXPECT_EQ(service.GetMessageLineWidth(), type.width);
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

TEST_F(TypeSweep, DefaultMessagesKeepWhatTheTypeTakes) {
  DefaultMessage given;
  given.body = "%s: %s";
  given.subject = "About %s";
  given.priority = 1;
  given.bodyKeywords = {1, 12};
  given.subjectKeywords = {8};
  for (const Expected& type : kExpected) {
    SCOPED_TRACE(type.name);
    TheServices().RemoveAll();
    CNtfyService& service = Make(type.code);
    EXPECT_TRUE(service.SetDefaultMessage(given));
    DefaultMessage taken;
    EXPECT_TRUE(service.GetDefaultMessage(taken));
    const bool none = type.code == kTypeWave || type.code == kTypeProgram;
    const bool body_only = type.code == kTypeTts || type.code >= kTypeAlpha;
    EXPECT_EQ(taken.body, none ? "" : given.body);
    EXPECT_EQ(taken.bodyKeywords, none ? KeywordIds{} : given.bodyKeywords);
    EXPECT_EQ(taken.subject, none || body_only ? "" : given.subject);
    EXPECT_EQ(taken.subjectKeywords, none || body_only ? KeywordIds{} : given.subjectKeywords);
    EXPECT_EQ(taken.priority, none || body_only ? 0U : given.priority);
  }
}

TEST_F(TypeSweep, WindowsThatATypeDoesNotHaveAreNullZeroOrCancelled) {
  for (const std::uint32_t code : ConfiguredTypes()) {
    SCOPED_TRACE(GetServiceTypeName(code));
    TheServices().RemoveAll();
    CNtfyService& service = Make(code);
    ALERTRESPREC response{};
    std::string name;
    GUID user{};
    EXPECT_NE(ServiceUiOf(code).property_sheet, nullptr) << "every type has one";
    EXPECT_EQ(service.CreateResponsePanel(0, &response, 0), nullptr);
    EXPECT_EQ(service.CreateAddUserPanel(0, user, 0), nullptr);
    EXPECT_FALSE(service.SelectUser(nullptr, name, user));
    EXPECT_FALSE(service.TestDialog(user, nullptr));
    EXPECT_FALSE(service.SendTestAlert(user, "test", nullptr, 0, nullptr));
  }
}

}  // namespace
