// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/services/specific_record.h"

namespace alerting {

/// Copies the chosen modem's command strings and capabilities into a record that keeps them.
template <class Record>
void CopyModem(const ALRTSERV_MODEM& modem, Record& record) {
  record.capabilities = modem.capabilities;
  record.initString.Assign(modem.initString.View());
  record.dialSuffix.Assign(modem.dialSuffix.View());
  if constexpr (kHas<Record, kAlphaInitString>)
    record.alphaInitString.Assign(modem.alphaInitString.View());
  else
    record.dialPrefix.Assign(modem.dialPrefix.View());
}

/// Reads a modem; false when the modem store does not have it.
bool FindModem(const GUID& id, ALRTSERV_MODEM& modem);

/// The types that dial out keep a second record of the same layout for their backup modem. It is made when a
/// service without one is loaded.
template <class Record, class Base, RecordRules kRules = RecordRules{}>
class ModemRecord : public SpecificRecord<Record, Base, kRules> {
 public:
  using SpecificRecord<Record, Base, kRules>::SpecificRecord;

  bool HasModem() const override { return !this->Primary().modemId.IsNull(); }
  bool HasBackupModem() const override { return !backup_.modemId.IsNull(); }
  GUID GetModemId() const override { return this->Common().backupSpecificRecordId; }

  bool GetModemSettings(ModemSettings& settings, bool backup) const override;
  bool SetModemSettings(const ModemSettings& settings, const std::string& modem_name, bool backup) override;

 protected:
  void LoadBackup(CAlertNtfyServDB& store, RecordStore<Record>& specific) override;
  Status SaveBackup(RecordStore<Record>& specific) override;
  bool AddBackup(CAlertNtfyServDB& store, ALRTNTFYSERV& common) override;

 private:
  void CreateBackup(CAlertNtfyServDB& store, RecordStore<Record>& specific);

  Record backup_{};
};

/// Puts a new backup record's identity into a common record and writes that. A failure shows its message.
void LinkBackup(CAlertNtfyServDB& store, const GUID& backup, ALRTNTFYSERV& common);

template <class Record, class Base, RecordRules kRules>
void ModemRecord<Record, Base, kRules>::LoadBackup(CAlertNtfyServDB& store, RecordStore<Record>& specific) {
  ALRTNTFYSERV& common = this->Common();
  if (common.backupSpecificRecordId.IsNull()) return CreateBackup(store, specific);
  Record read{};
  read.guid = common.backupSpecificRecordId;
  if (specific.DBAlertRecRetrieve(read.guid, read) == kOk) {
    backup_ = read;
  } else {  // the service goes on without its backup; the stored link is left to the next save
    backup_ = Record{};
    common.backupSpecificRecordId = kNullGuid;
  }
}

template <class Record, class Base, RecordRules kRules>
void ModemRecord<Record, Base, kRules>::CreateBackup(CAlertNtfyServDB& store, RecordStore<Record>& specific) {
  backup_ = this->Primary();
  backup_.guid = kNullGuid;
  GUID new_id{};
  StoreLock lock(specific);
  const Status status = lock.Result() == kOk ? specific.DBAlertRecAdd(backup_, new_id) : lock.Result();
  lock.Release();
  if (status == kOk) LinkBackup(store, new_id, this->Common());
}

template <class Record, class Base, RecordRules kRules>
Status ModemRecord<Record, Base, kRules>::SaveBackup(RecordStore<Record>& specific) {
  if (this->Common().backupSpecificRecordId.IsNull()) return kOk;
  return specific.DBAlertRecUpdate(backup_);
}

template <class Record, class Base, RecordRules kRules>
bool ModemRecord<Record, Base, kRules>::AddBackup(CAlertNtfyServDB& store, ALRTNTFYSERV& common) {
  if (common.backupSpecificRecordId.IsNull()) return true;
  RecordStore<Record>* specific = store.SpecificStore<Record>();
  if (specific == nullptr) return Fail(kIdsAddFailed);
  Record copy = backup_;
  copy.guid = kNullGuid;
  copy.modemId = kNullGuid;  // the copy keeps the backup's settings but not its modem
  GUID new_id{};
  StoreLock lock(*specific);
  const Status status = lock.Result() == kOk ? specific->DBAlertRecAdd(copy, new_id) : lock.Result();
  lock.Release();
  if (status != kOk) return Fail(kIdsAddFailed);
  common.backupSpecificRecordId = new_id;
  return true;
}

template <class Record, class Base, RecordRules kRules>
bool ModemRecord<Record, Base, kRules>::GetModemSettings(ModemSettings& settings, bool backup) const {
  const Record& record = backup ? backup_ : this->Primary();
  settings = {record.modemId,    record.baudRate,     record.dataBits,
              record.parityCode, record.stopBitsCode, std::string(record.scriptFile.View())};
  return true;
}

template <class Record, class Base, RecordRules kRules>
bool ModemRecord<Record, Base, kRules>::SetModemSettings(const ModemSettings& settings,
                                                         const std::string& modem_name, bool backup) {
  ALRTSERV_MODEM modem{};
  if (!FindModem(settings.modem, modem)) return Fail(kIdsModemNotFound);
  Record& record = backup ? backup_ : this->Primary();
  record.modemId = settings.modem;
  record.modemName.Assign(modem_name);
  record.baudRate = settings.baudRate;
  record.dataBits = settings.dataBits;
  record.stopBitsCode = settings.stopBitsCode;
  record.parityCode = settings.parityCode;
  record.scriptFile.Assign(settings.scriptFile);
  CopyModem(modem, record);
  return true;
}

}  // namespace alerting
