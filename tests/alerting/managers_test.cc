// SPDX-License-Identifier: MIT
// Alert managers, and the services enabled on them.
#include <gmock/gmock.h>

#include "alerting/managers/alert_managers.h"
#include "alerting/managers/config_file.h"
#include "alerting/managers/enabled_services.h"
#include "tests/support/service_fixture.h"

namespace {

using namespace alerting;      // NOLINT
using namespace test_support;  // NOLINT
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ManagersTest : public ServiceTest {
 protected:
  ~ManagersTest() override { BackupManagerGuid() = kNullGuid; }

  static auto Entries() { return RecordsOf(EnabledServiceStore(), kEnabledServiceByService); }
  static GUID AddManager(std::string_view name) {
    EnsureStoresOpen();
    ALRT_SRV_CFGREC manager{};
    manager.managerName.Assign(name);
    return AddRecord(ManagerStore(), manager);
  }

  const GUID one_ = GUID::Generate(), two_ = GUID::Generate();
};

TEST_F(ManagersTest, AServiceIsEnabledOnceAndDisabledWhicheverManagerIsNamed) {
  const ALRTNTFYSERV& service = Find(SeedService(kTypeSmtp, "Mail"))->Common();
  EnableServiceOnManager(service, one_, false);
  EXPECT_THAT(Entries(), IsEmpty());
  EnableServiceOnManager(service, one_, true);
  EnableServiceOnManager(service, one_, true);
  EnableServiceOnManager(service, two_, true);
  ASSERT_EQ(Entries().size(), 1U);
  EXPECT_EQ(Entries()[0].managerGuid, one_);
  EXPECT_EQ(Entries()[0].serviceName.View(), "Mail");
  EXPECT_EQ(Entries()[0].isBackup, 0U);
  EXPECT_TRUE(IsServiceOnManager(service.serviceId, one_));
  EXPECT_FALSE(IsServiceOnManager(service.serviceId, two_));
  EnableServiceOnManager(service, two_, false);
  EXPECT_THAT(Entries(), IsEmpty());
}

TEST_F(ManagersTest, ABackupManagerGetsASecondEntryForServicesWithABackupRecord) {
  BackupManagerGuid() = two_;
  const GUID mail = SeedService(kTypeSmtp, "Mail"), pager = SeedService(kTypeNumeric, "Pager");
  EnableServiceOnManager(Find(mail)->Common(), one_, true);
  EXPECT_EQ(Entries().size(), 1U) << "no backup record, one entry";
  EnableServiceOnManager(Find(pager)->Common(), one_, true);
  ASSERT_EQ(Entries().size(), 3U);
  const ALRTSERV_INST_NTFY_SERVREC backup = Entries()[2];
  EXPECT_EQ(backup.isBackup, 1U);
  EXPECT_EQ(backup.managerGuid, two_);
  EXPECT_EQ(backup.backupGuid, Find(pager)->GetModemId());
  EXPECT_NE(backup.guid, Entries()[1].guid);
}

TEST_F(ManagersTest, FindsManagersByTheirWholeNameAndListsThem) {
  ComboDialog dialog;
  FillAlertManagerCombo(dialog.combo, one_);
  const GUID beta = AddManager("Beta"), alpha = AddManager("alpha");
  for (const auto& [manager, name] : {std::pair{alpha, "alpha"}, {beta, "Beta"}}) {
    FillAlertManagerCombo(dialog.combo, manager);
    EXPECT_EQ(dialog.combo.Count(), 2);
    EXPECT_EQ(dialog.combo.Text(), name);
  }
  GUID found = two_;
  EXPECT_TRUE(FindAlertManagerByName("Beta", found));
  EXPECT_EQ(found, beta);
  EXPECT_FALSE(FindAlertManagerByName("Bet", found));
  EXPECT_EQ(found, beta);
  const char* none = "No records in the Alert Manager database.";
  EXPECT_THAT(desktop.TakeMessages(), ElementsAre(none, none));
}

TEST_F(ManagersTest, AConfigurationFileThatCannotBeWrittenIsReported) {
  WriteAlertServerConfig();
  library.dbconfig.result = 2;
  WriteAlertServerConfig();
  EXPECT_EQ(library.dbconfig.files_written, 2);
  EXPECT_THAT(desktop.TakeMessages(),
              ElementsAre("Error writing to alert manager configuration file. (waiting)"));
}

}  // namespace
