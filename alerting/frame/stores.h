// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>

#include "companions/alertstore/console_users.h"
#include "companions/alertstore/store_lock.h"
#include "companions/alertstore/stores.h"

/// The open store set: the eighteen record stores that the library works on, one of each per process.
namespace alerting {

// The record store's classes and records go by their own names throughout the library.
using namespace alertstore;  // NOLINT
using platform::GUID;
using platform::kNullGuid;

/// The stores in the order in which they are created, opened and destroyed; null while closed.
struct StoreSet {
  std::unique_ptr<CAlertSERV_INST_NTFY_SERVDB> enabled_services;
  std::unique_ptr<CAlertSERV_MODEMDB> modems;
  std::unique_ptr<CAlertSERV_MODEMDB> modem_types;
  std::unique_ptr<CAlert_SRV_CFGDB> managers;
  std::unique_ptr<CAlertMODEM_LOCATIONDB> locations;
  std::unique_ptr<CAlertAPAGE_SERVICE_PROVIDERDB> providers;
  std::unique_ptr<CAlertNtfyServDB> services;
  std::unique_ptr<CAlertRespDB> responses;
  std::unique_ptr<CAlertUSR_MHSDB> mhs_users;
  std::unique_ptr<CAlertUSR_SNMPDB> snmp_managers;
  std::unique_ptr<CAlertUSR_MCIDB> mci_users;
  std::unique_ptr<CAlertUSR_COMPUDB> compuserve_users;
  std::unique_ptr<CAlertUSR_SMTPDB> smtp_users;
  std::unique_ptr<CAlertUSR_MAPIDB> mapi_users;
  std::unique_ptr<CAlertUSR_CCMAILDB> ccmail_users;
  std::unique_ptr<CAlertUSR_APAGEDB> alpha_users;
  std::unique_ptr<CAlertUSR_NPAGEDB> numeric_users;
  std::unique_ptr<CAlertUsrInstServDB> user_links;

  /// Calls `visit` with each pointer in that order, until one answers false; answers whether none did.
  template <class Visit>
  bool ForEach(Visit&& visit) {
    return visit(enabled_services) && visit(modems) && visit(modem_types) && visit(managers) &&
           visit(locations) && visit(providers) && visit(services) && visit(responses) && visit(mhs_users) &&
           visit(snmp_managers) && visit(mci_users) && visit(compuserve_users) && visit(smtp_users) &&
           visit(mapi_users) && visit(ccmail_users) && visit(alpha_users) && visit(numeric_users) &&
           visit(user_links);
  }
};

/// The process's store set. Operations reach a store through the functions below, which never give null.
StoreSet& TheStores();

// The store in use. While the set is closed a store that was never opened answers in its place, with
// kStoreClosed to everything, so that nothing crashes between CloseDBs and the next OpenDBs.
CAlertSERV_INST_NTFY_SERVDB& EnabledServiceStore();
CAlertSERV_MODEMDB& ModemStore();
CAlertSERV_MODEMDB& ModemTypeStore();
CAlert_SRV_CFGDB& ManagerStore();
CAlertMODEM_LOCATIONDB& LocationStore();
CAlertAPAGE_SERVICE_PROVIDERDB& ProviderStore();
CAlertNtfyServDB& ServiceStore();
CAlertRespDB& ResponseStore();
CAlertUsrInstServDB& UserLinkStore();

/// The user store of a store class, CAlertUSR_MHSDB for example.
template <class Store>
Store& UserStore();

}  // namespace alerting
