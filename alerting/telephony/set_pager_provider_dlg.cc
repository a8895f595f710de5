// SPDX-License-Identifier: MIT
#include "alerting/telephony/set_pager_provider_dlg.h"

#include "alerting/frame/app.h"
#include "alerting/frame/messages.h"
#include "alerting/telephony/providers.h"

namespace alerting {
namespace {

constexpr int kIdList = 100;

std::string LineOf(const ALRTAPAGE_SERVICE_PROVIDER_REC& provider) {
  return std::string(provider.company.View()) + "\t" + LocationOf(provider) + "\t" +
         std::string(provider.phone.View()) + "\t" + std::to_string(std::uint32_t{provider.baudRate}) + "\t" +
         std::to_string(std::uint32_t{provider.maxTextLength});
}

}  // namespace

CSetPagerProviderDlg::CSetPagerProviderDlg(ui::Window* parent, const ALRTAPAGESERVICEREC* service)
    : CLibraryDialog(parent, "Set Alphanumeric Pager Service Provider", ctxhelp::kHelpPagerProvider),
      service_(service),
      list_(*this, kIdList, "&Available Alphanumeric Service Provider:", false, true),
      buttons_(*this) {
  list_.SetTabStops({19, 44, 56, 69, 81});
  SetLayout(ui::Column({ui::Over(list_), buttons_.Row()}));
}

void CSetPagerProviderDlg::OnInitDialog() {
  LoadProviderTable();
  list_.RemoveAll();
  for (std::size_t i = 0; i < TheProviders().count; ++i) {
    const ALRTAPAGE_SERVICE_PROVIDER_REC& provider = TheProviders().entries[i];
    list_.Add(LineOf(provider), reinterpret_cast<ui::ItemData>(&provider));
  }
  list_.Select(0);
  CLibraryDialog::OnInitDialog();
}

void CSetPagerProviderDlg::OnOk() {
  const auto* provider = reinterpret_cast<const ALRTAPAGE_SERVICE_PROVIDER_REC*>(list_.Data(list_.Current()));
  if (provider == nullptr) return;  // none is selected
  if (Store(*provider) == kOk)
    EndDialog(ui::kOk);
  else
    ShowMessage(service_ != nullptr ? kIdsSpecificUpdateFailed : kIdsSpecificAddFailed, this);
}

/// The lock is free again before a failure is shown.
Status CSetPagerProviderDlg::Store(const ALRTAPAGE_SERVICE_PROVIDER_REC& provider) const {
  EnsureStoresOpen();
  RecordStore<ALRTAPAGESERVICEREC>* store = ServiceStore().SpecificStore<ALRTAPAGESERVICEREC>();
  if (store == nullptr) return kStoreClosed;
  ALRTAPAGESERVICEREC record = service_ != nullptr ? *service_ : ALRTAPAGESERVICEREC{};
  CopyProvider(provider, record);
  const StoreLock lock(*store);
  if (lock.Result() != kOk) return lock.Result();
  GUID new_id{};
  return service_ != nullptr ? store->DBAlertRecUpdate(record) : store->DBAlertRecAdd(record, new_id);
}

int RunSetPagerProvider(CNtfyService& service, ui::Window* parent) {
  return CSetPagerProviderDlg(parent, static_cast<const ALRTAPAGESERVICEREC*>(service.GetSpecificRecord()))
      .RunModal();
}

}  // namespace alerting
