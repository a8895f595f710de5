// SPDX-License-Identifier: MIT
// Connections that are not the usual one.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/lab/rehearsal.h"

namespace {

using namespace alertserver;
using namespace rehearsal;

/// The names of a report's steps, those over the backup modem among them.
bool HasStep(const Report& report, const std::string& name, const std::string& result) {
  return std::any_of(report.steps.begin(), report.steps.end(),
                     [&](const ReportStep& step) { return step.name == name && step.result == result; });
}

Configuration WithBackup(const char* type) {
  Configuration site = SiteWith(type);
  Service& service = site.services.front();
  service.backupModem = LinkTo(type, 2);
  site.deliveries.push_back({kManager, service.id, true});
  return site;
}

TEST(BackupModemTest, TakesOverWhatTheFirstModemDoesNotReach) {
  const auto laboratory = Start("modem=busy");
  ASSERT_FALSE(laboratory->Places().is_null());
  const Report report = Send(*laboratory, WithBackup("alphanumeric-pager"));
  EXPECT_EQ(report.verdict, Verdict::kDelivered) << report.explanation;
  EXPECT_TRUE(HasStep(report, "Dial", "failed"));
  EXPECT_TRUE(HasStep(report, "Backup modem: Send the message", "done"));
  EXPECT_EQ(laboratory->Arrivals("pager", "page", 1).size(), 1U);
}

TEST(BackupModemTest, IsNotTriedWhereTheReceiverSaidNo) {
  const auto laboratory = Start("pager=rejected:1");
  ASSERT_FALSE(laboratory->Places().is_null());
  const Report report = Send(*laboratory, WithBackup("alphanumeric-pager"));
  EXPECT_EQ(report.verdict, Verdict::kRefused);
  EXPECT_EQ(report.field, "address");
  EXPECT_TRUE(laboratory->Arrivals("pager", "page", 0).empty());
}

TEST(BackupModemTest, WhatIsMissingIsNamedWhereItIsMissing) {
  const auto laboratory = Start("modem=silent");
  ASSERT_FALSE(laboratory->Places().is_null());
  Configuration site = WithBackup("numeric-pager");
  site.services.front().backupModem->is_known = false;
  const Report report = Send(*laboratory, site);
  EXPECT_EQ(report.verdict, Verdict::kNotPossible);
  EXPECT_EQ(report.field, "backupModem");
  EXPECT_TRUE(HasStep(report, "Backup modem: Open the port", "failed"));
}

TEST(TrapVersionTest, AVersion1TrapBearsTheMessageByteForByte) {
  const auto laboratory = Start("");
  ASSERT_FALSE(laboratory->Places().is_null());
  Settings settings = SettingsFor(*laboratory);
  settings.trap_version_1 = true;
  const Report report = Send(SiteWith("snmp-trap"), settings);
  if (IsLeftOut(report)) GTEST_SKIP() << report.explanation;
  EXPECT_EQ(report.verdict, Verdict::kSent);
  const auto traps = laboratory->Arrivals("traps", "trap", 1);
  ASSERT_EQ(traps.size(), 1U);
  EXPECT_EQ(traps[0]["version"], "1");
  EXPECT_EQ(traps[0]["enterprise"], settings.trap_enterprise);
  EXPECT_EQ(traps[0]["variables"][0]["value"], "Tank 4 is overfull");
}

TEST(DirectPortTest, AnAlphanumericTerminalAtThePortIsNotDialed) {
  const auto laboratory = Start("");
  ASSERT_FALSE(laboratory->Places().is_null());
  Configuration site = SiteWith("alphanumeric-pager");
  site.services.front().modem->capabilities = kDirectPort;
  site.services.front().modem->comPort = 4;
  const Report report = Send(*laboratory, site);
  EXPECT_EQ(report.verdict, Verdict::kDelivered) << report.explanation;
  EXPECT_TRUE(HasStep(report, "Dial", "not needed"));
  const auto pages = laboratory->Arrivals("pager", "page", 1);
  ASSERT_EQ(pages.size(), 1U);
  EXPECT_EQ(pages[0]["pager"], "1234567");
  EXPECT_EQ(pages[0]["text"], "Tank 4 is overfull");
}

}  // namespace
