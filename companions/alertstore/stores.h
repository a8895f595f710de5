// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <tuple>

#include "companions/alertstore/records.h"
#include "companions/alertstore/schemas.h"
#include "companions/alertstore/selectors.h"
#include "companions/alertstore/store.h"

namespace alertstore {

// The service-specific stores; each belongs to the store of services.

class CAlertMHSNtfyServDB : public RecordStore<ALRTMHSSERVICEREC> {};
class CAlertSNMPNtfyServDB : public RecordStore<ALRTSNMPSERVICEREC> {};
class CAlertMCINtfyServDB : public RecordStore<ALRTMCISERVICEREC> {};
class CAlertCOMPUSNtfyServDB : public RecordStore<ALRTCOMPUSSERVICEREC> {};
class CAlertSMTPNtfyServDB : public RecordStore<ALRTSMTPSERVICEREC> {};
class CAlertMAPINtfyServDB : public RecordStore<ALRTMAPISERVICEREC> {};
class CAlertCCMAILNtfyServDB : public RecordStore<ALRTCCMAILSERVICEREC> {};
class CAlertWAVENtfyServDB : public RecordStore<ALRTWAVESERVICEREC> {};
class CAlertTTSNtfyServDB : public RecordStore<ALRTTTSSERVICEREC> {};
class CAlertAPAGENtfyServDB : public RecordStore<ALRTAPAGESERVICEREC> {};
class CAlertNPAGENtfyServDB : public RecordStore<ALRTNPAGESERVICEREC> {};
class CAlertGENPORTNtfyServDB : public RecordStore<ALRTGENPORTSERVICEREC> {};

/// The site's services, and with them the twelve service-specific stores.
class CAlertNtfyServDB : public RecordStore<ALRTNTFYSERV> {
 public:
  CAlertNtfyServDB();
  ~CAlertNtfyServDB() override;

  /// Opens the specific stores too; the answer is the first failure.
  Status DBOpen() override;

  using RecordStore::DBAlertRecAdd;
  /// Adds a service and its specific record, linked by `specificRecordId`: both or neither. kStoreClosed when
  /// the specific store is not there or not open.
  template <class Specific>
  Status DBAlertRecAdd(ALRTNTFYSERV& common, platform::GUID& new_id, Specific& specific,
                       platform::GUID& new_specific_id) {
    RecordStore<Specific>* store = SpecificStore<Specific>();
    if (store == nullptr || !store->IsOpen()) return kStoreClosed;
    return AddLinked(common, &ALRTNTFYSERV::specificRecordId, new_id, specific, new_specific_id);
  }

  /// The store of that record type, owned by this one; null when it was dropped.
  template <class Specific>
  RecordStore<Specific>* SpecificStore() {
    return std::get<std::unique_ptr<RecordStore<Specific>>>(specific_).get();
  }

  /// From now on this store has none for that record type.
  template <class Specific>
  void DropSpecificStore() {
    std::get<std::unique_ptr<RecordStore<Specific>>>(specific_).reset();
  }

 private:
  template <class... Specific>
  using Owned = std::tuple<std::unique_ptr<RecordStore<Specific>>...>;

  Owned<ALRTMHSSERVICEREC, ALRTSNMPSERVICEREC, ALRTMCISERVICEREC, ALRTCOMPUSSERVICEREC, ALRTSMTPSERVICEREC,
        ALRTMAPISERVICEREC, ALRTCCMAILSERVICEREC, ALRTWAVESERVICEREC, ALRTTTSSERVICEREC, ALRTAPAGESERVICEREC,
        ALRTNPAGESERVICEREC, ALRTGENPORTSERVICEREC>
      specific_;
};

class CAlertRespDB : public RecordStore<ALERTRESPREC> {};

/// The links of users to services.
class CAlertUsrInstServDB : public RecordStore<ALRTUSRINSTSERV> {
 public:
  using RecordStore::DBAlertRecAdd;
  /// Adds a link and the user's record in its own store, linked by `userRecordId`: both or neither.
  template <class User>
  Status DBAlertRecAdd(ALRTUSRINSTSERV& link, platform::GUID& new_id, User& user,
                       platform::GUID& new_user_id) {
    return AddLinked(link, &ALRTUSRINSTSERV::userRecordId, new_id, user, new_user_id);
  }
};

// The user stores.

class CAlertUSR_MHSDB : public RecordStore<ALRTUSR_MHSSERVICEREC> {
 public:
  static constexpr UserSelectors kSelectors{14, 15, 14};
};
class CAlertUSR_SNMPDB : public RecordStore<ALRTUSR_SNMPSERVICEREC> {};
class CAlertUSR_MCIDB : public RecordStore<ALRTUSR_MCISERVICEREC> {
 public:
  static constexpr UserSelectors kSelectors{28, 29, 28};
};
class CAlertUSR_COMPUDB : public RecordStore<ALRTUSR_COMPUSERVICEREC> {
 public:
  static constexpr UserSelectors kSelectors{34, 35, 35};
};
class CAlertUSR_SMTPDB : public RecordStore<ALRTUSR_SMTPSERVICEREC> {
 public:
  static constexpr UserSelectors kSelectors{40, 41, 40};
};
class CAlertUSR_MAPIDB : public RecordStore<ALRTUSR_MAPISERVICEREC> {
 public:
  static constexpr UserSelectors kSelectors{46, 47, 46};
};
class CAlertUSR_CCMAILDB : public RecordStore<ALRTUSR_CCMAILSERVICEREC> {
 public:
  static constexpr UserSelectors kSelectors{52, 53, 52};
};
class CAlertUSR_APAGEDB : public RecordStore<ALRTUSR_APAGESERVICEREC> {
 public:
  static constexpr UserSelectors kSelectors{58, 61, 58};
};
class CAlertUSR_NPAGEDB : public RecordStore<ALRTUSR_NPAGESERVICEREC> {
 public:
  static constexpr UserSelectors kSelectors{66, 67, 66};
};

/// The file name of the modem types.
inline constexpr char kModemTypeFile[] = "QModemDB.dat";

/// The modems; under another file name, the modem types.
class CAlertSERV_MODEMDB : public RecordStore<ALRTSERV_MODEM> {
 public:
  CAlertSERV_MODEMDB() = default;
  explicit CAlertSERV_MODEMDB(std::string file_name);
};

class CAlertMODEM_LOCATIONDB : public RecordStore<ALRTMODEM_LOCATION> {};
class CAlertAPAGE_SERVICE_PROVIDERDB : public RecordStore<ALRTAPAGE_SERVICE_PROVIDER_REC> {};
class CAlert_SRV_CFGDB : public RecordStore<ALRT_SRV_CFGREC> {};
class CAlertSERV_INST_NTFY_SERVDB : public RecordStore<ALRTSERV_INST_NTFY_SERVREC> {};

}  // namespace alertstore
