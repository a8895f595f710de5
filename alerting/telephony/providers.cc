// SPDX-License-Identifier: MIT
#include "alerting/telephony/providers.h"

#include "alerting/frame/app.h"
#include "alerting/frame/messages.h"

namespace alerting {
namespace {

ProviderTable& Table() {
  static ProviderTable table{};
  return table;
}

/// The place for the next provider, cleared.
ALRTAPAGE_SERVICE_PROVIDER_REC& NextEntry(ProviderTable& table) { return table.entries[table.count] = {}; }

}  // namespace

const ProviderTable& TheProviders() { return Table(); }

bool LoadProviderTable() {
  EnsureStoresOpen();
  ProviderTable& table = Table();
  CAlertAPAGE_SERVICE_PROVIDERDB& store = ProviderStore();
  table.count = 0;
  Status status = store.DBAlertRecFindFirst(kProviderByIdentity, 0, nullptr, NextEntry(table));
  if (status != kOk) return Fail(kIdsNoProviders);
  while (status == kOk && ++table.count < table.entries.size())
    status = store.DBAlertRecFindNext(NextEntry(table));
  return true;
}

std::string LocationOf(const ALRTAPAGE_SERVICE_PROVIDER_REC& provider) {
  return std::string(provider.regionA.View()) + " " + std::string(provider.regionB.View());
}

void CopyProvider(const ALRTAPAGE_SERVICE_PROVIDER_REC& provider, ALRTAPAGESERVICEREC& record) {
  record.providerLocation.Assign(LocationOf(provider));
  record.maxTextLength = provider.maxTextLength;
  record.providerCompany.Assign(provider.company.View());
  record.providerPhone.Assign(provider.phone.View());
  record.baudRate = provider.baudRate;
  record.dataBits = provider.dataBits;
  record.stopBitsCode = provider.stopBits;
  record.parityCode = provider.parity;
}

}  // namespace alerting
