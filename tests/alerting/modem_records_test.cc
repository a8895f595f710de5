// SPDX-License-Identifier: MIT
// The dial-out types: backup records and modem settings.
#include <gmock/gmock.h>

#include "tests/support/service_classes.h"

namespace {

using namespace alerting;      // NOLINT
using namespace test_support;  // NOLINT
using ::testing::ElementsAre;

constexpr std::uint8_t kPattern = 0x5A;

/// Offsets of the modem block: name, identity, script, baud, data bits, stop bits, parity, initialization,
/// suffix, capabilities, prefix (for alphanumeric pagers the alpha initialization).
struct Block {
  std::uint32_t code;
  std::size_t name, id, script, baud, data, stop, parity, init, suffix, capabilities, prefix;
};
const Block kBlocks[] = {
    {3, 1206, 1271, 2311, 2829, 2833, 2837, 2841, 2845, 3101, 3137, 3141},
    {2, 1422, 1487, 2527, 3045, 3049, 3053, 3057, 3061, 3317, 3353, 3357},
    {11, 2069, 2134, 3170, 3431, 3435, 3439, 3443, 3447, 3703, 3739, 3743},
    {12, 2678, 2743, 2061, 2326, 2330, 2334, 2338, 2342, 2598, 2634, 2638},
    {10, 2417, 2482, 3518, 3783, 3787, 3791, 3795, 3799, 4055, 4091, 4095},
};

std::string WithModem(const Block& block, const GUID& modem, std::string bytes) {
  PutText(bytes, block.name, 65, "Modem A");
  std::memcpy(bytes.data() + block.id, &modem, sizeof(modem));
  PutText(bytes, block.script, block.code >= kTypeAlpha && block.code != kTypeNumeric ? 265 : 261,
          "dial.scr");
  PutU32(bytes, block.baud, 9600);
  PutU32(bytes, block.data, 7);
  PutU32(bytes, block.stop, 2);
  PutU32(bytes, block.parity, 1);
  PutText(bytes, block.init, 256, "ATZ");
  PutText(bytes, block.suffix, 36, ";H");
  PutU32(bytes, block.capabilities, 5);
  PutText(bytes, block.prefix, 36, block.code == kTypeAlpha ? "ATM0" : "ATDT");
  return bytes;
}

class ModemRecordsTest : public ServiceTest {
 protected:
  static GUID AddModem() {
    EnsureStoresOpen();
    ALRTSERV_MODEM modem{};
    modem.name.Assign("Modem A");
    modem.initString.Assign("ATZ");
    modem.dialSuffix.Assign(";H");
    modem.dialPrefix.Assign("ATDT");
    modem.alphaInitString.Assign("ATM0");
    modem.capabilities = 5;
    return AddRecord(ModemStore(), modem);
  }
  static ModemSettings Settings(const GUID& modem) { return {modem, 9600, 7, 1, 2, "dial.scr"}; }
};

TEST_F(ModemRecordsTest, LoadingAServiceWithoutABackupRecordMakesOneLikeItsPrimary) {
  for (const Block& block : kBlocks) {
    SCOPED_TRACE(block.code);
    TheServices().RemoveAll();
    const GUID id = SeedService(block.code, "Service", kPattern);
    const std::string primary = StoredSpecific(block.code, StoredCommon(id).specificRecordId);
    CNtfyService& service = *Find(id);
    const ALRTNTFYSERV common = StoredCommon(id);
    EXPECT_EQ(service.GetModemId(), common.backupSpecificRecordId);
    ASSERT_FALSE(common.backupSpecificRecordId.IsNull());
    EXPECT_EQ(StoredSpecific(block.code, common.backupSpecificRecordId).substr(16), primary.substr(16));
    ASSERT_TRUE(service.ReloadRecords());
    EXPECT_EQ(StoredCommon(id).backupSpecificRecordId, common.backupSpecificRecordId) << "made once";
  }
}

TEST_F(ModemRecordsTest, SettingsReachTheChosenRecordAtTheirOffsetsOnSave) {
  const GUID modem = AddModem();
  for (const Block& block : kBlocks) {
    for (const bool backup : {false, true}) {
      SCOPED_TRACE(::testing::Message() << block.code << (backup ? " backup" : " primary"));
      CNtfyService& service = NewService(block.code, "Service", kPattern);
      const ALRTNTFYSERV common = StoredCommon(service.ServiceId());
      const std::string primary = StoredSpecific(block.code, common.specificRecordId);
      const std::string spare = StoredSpecific(block.code, common.backupSpecificRecordId);
      ASSERT_TRUE(Users(service).SetModemSettings(Settings(modem), "Modem A", backup));
      ASSERT_TRUE(service.SaveRecords());
      EXPECT_EQ(StoredSpecific(block.code, common.specificRecordId),
                backup ? primary : WithModem(block, modem, primary));
      EXPECT_EQ(StoredSpecific(block.code, common.backupSpecificRecordId),
                backup ? WithModem(block, modem, spare) : spare);
      ModemSettings read;
      EXPECT_TRUE(Users(service).GetModemSettings(read, backup));
      EXPECT_EQ(std::tuple(read.baudRate, read.parityCode, read.stopBitsCode, read.scriptFile),
                std::tuple(9600U, 1U, 2U, "dial.scr"));
    }
  }
}

TEST_F(ModemRecordsTest, AModemIsThereOnceItWasChosen) {
  const GUID modem = AddModem();
  for (const bool backup : {false, true}) {
    CNtfyService& service = NewService(kTypeNumeric);
    EXPECT_FALSE(service.HasModem() || service.HasBackupModem());
    EXPECT_FALSE(Users(service).SetModemSettings(Settings(GUID::Generate()), "gone", backup));
    EXPECT_FALSE(service.HasModem() || service.HasBackupModem());
    EXPECT_THAT(
        desktop.TakeMessages(),
        ElementsAre("Unable to find the corresponding  record in the modem database.  Try selecting a "
                    "different modem."));
    ASSERT_TRUE(Users(service).SetModemSettings(Settings(modem), "Modem A", backup));
    EXPECT_EQ(service.HasModem(), !backup);
    EXPECT_EQ(service.HasBackupModem(), backup);
  }
}

TEST_F(ModemRecordsTest, ABackupThatCouldNotBeLinkedIsLinkedByTheNextSave) {
  const GUID id = SeedService(kTypeNumeric, "Pager");
  library.engine->FailAll(ServiceStore().Schema().file, StoreOp::kUpdate);
  CNtfyService& service = *Find(id);
  library.engine->FailNone();
  EXPECT_THAT(desktop.TakeMessages(),
              ElementsAre("Unable to update the notification service database record. (waiting)"));
  EXPECT_TRUE(StoredCommon(id).backupSpecificRecordId.IsNull());
  ASSERT_TRUE(service.SaveRecords());
  EXPECT_EQ(StoredCommon(id).backupSpecificRecordId, service.GetModemId());
  EXPECT_FALSE(service.GetModemId().IsNull());
}

TEST_F(ModemRecordsTest, ABackupRecordThatIsGoneLeavesTheServiceWithoutOneInMemory) {
  CNtfyService& service = NewService(kTypeGeneric);
  const GUID backup = service.GetModemId();
  ASSERT_TRUE(Users(service).SetModemSettings(Settings(AddModem()), "Modem A", true));
  ASSERT_EQ(ServiceStore().SpecificStore<ALRTGENPORTSERVICEREC>()->DBAlertRecDelete(backup), kOk);
  EXPECT_TRUE(service.ReloadRecords());
  EXPECT_TRUE(service.GetModemId().IsNull());
  EXPECT_FALSE(service.HasBackupModem());
  EXPECT_EQ(StoredCommon(service.ServiceId()).backupSpecificRecordId, backup) << "until the next save";
}

}  // namespace
