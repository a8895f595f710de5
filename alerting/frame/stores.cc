// SPDX-License-Identifier: MIT
#include "alerting/frame/stores.h"

namespace alerting {
namespace {

template <class Store>
Store& OrClosed(std::unique_ptr<Store>& store) {
  static Store closed;
  return store ? *store : closed;
}

}  // namespace

StoreSet& TheStores() {
  static StoreSet stores;
  return stores;
}

CAlertSERV_INST_NTFY_SERVDB& EnabledServiceStore() { return OrClosed(TheStores().enabled_services); }
CAlertSERV_MODEMDB& ModemStore() { return OrClosed(TheStores().modems); }
CAlertSERV_MODEMDB& ModemTypeStore() { return OrClosed(TheStores().modem_types); }
CAlert_SRV_CFGDB& ManagerStore() { return OrClosed(TheStores().managers); }
CAlertMODEM_LOCATIONDB& LocationStore() { return OrClosed(TheStores().locations); }
CAlertAPAGE_SERVICE_PROVIDERDB& ProviderStore() { return OrClosed(TheStores().providers); }
CAlertNtfyServDB& ServiceStore() { return OrClosed(TheStores().services); }
CAlertRespDB& ResponseStore() { return OrClosed(TheStores().responses); }
CAlertUsrInstServDB& UserLinkStore() { return OrClosed(TheStores().user_links); }

template <>
CAlertUSR_MHSDB& UserStore() {
  return OrClosed(TheStores().mhs_users);
}
template <>
CAlertUSR_SNMPDB& UserStore() {
  return OrClosed(TheStores().snmp_managers);
}
template <>
CAlertUSR_MCIDB& UserStore() {
  return OrClosed(TheStores().mci_users);
}
template <>
CAlertUSR_COMPUDB& UserStore() {
  return OrClosed(TheStores().compuserve_users);
}
template <>
CAlertUSR_SMTPDB& UserStore() {
  return OrClosed(TheStores().smtp_users);
}
template <>
CAlertUSR_MAPIDB& UserStore() {
  return OrClosed(TheStores().mapi_users);
}
template <>
CAlertUSR_CCMAILDB& UserStore() {
  return OrClosed(TheStores().ccmail_users);
}
template <>
CAlertUSR_APAGEDB& UserStore() {
  return OrClosed(TheStores().alpha_users);
}
template <>
CAlertUSR_NPAGEDB& UserStore() {
  return OrClosed(TheStores().numeric_users);
}

}  // namespace alerting
