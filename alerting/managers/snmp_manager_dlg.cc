// SPDX-License-Identifier: MIT
#include "alerting/managers/snmp_manager_dlg.h"

#include "alerting/frame/app.h"
#include "alerting/frame/companions.h"
#include "alerting/frame/messages.h"

namespace alerting {
namespace {

enum ControlId {
  kIdComputer = 100,
  kIdBrowse,
  kIdCommunity,
  kIdCommunities,
  kIdAddress,
  kIdAddresses,
  kIdComment
};

constexpr std::uint32_t kComputerBufferSize = 64;

using Manager = ALRTUSR_SNMPSERVICEREC;

}  // namespace

CSnmpManagerDlg::CSnmpManagerDlg(ui::Window* parent, ALRTUSR_SNMPSERVICEREC* manager)
    : CLibraryDialog(parent, manager != nullptr ? "SNMP Manager Properties" : "Add SNMP Manager",
                     ctxhelp::kHelpSnmpManager),
      given_(manager),
      computer_(*this, kIdComputer, "&Machine Name:"),
      browse_computer_(*this, kIdBrowse, computer_),
      community_(*this, kIdCommunity, "&Community:"),
      recent_communities_(*this, kIdCommunities, community_),
      address_(*this, kIdAddress, "&Network Address:"),
      recent_addresses_(*this, kIdAddresses, address_),
      comment_(*this, kIdComment, "C&omment:"),
      buttons_(*this) {
  SetLayout(ui::Column({ui::Row({ui::Field(computer_), ui::Bare(browse_computer_)}),
                        ui::Row({ui::Field(community_), ui::Bare(recent_communities_)}),
                        ui::Row({ui::Field(address_), ui::Bare(recent_addresses_)}), ui::Field(comment_),
                        buttons_.Row()}));
  browse_computer_.SetOnClick([this] { OnBrowseComputer(); });
  recent_communities_.SetOnClick([this] { OnRecentCommunity(); });
  recent_addresses_.SetOnClick([this] { OnRecentAddress(); });
}

void CSnmpManagerDlg::OnInitDialog() {
  computer_.SetLimit(decltype(Manager::computer)::kMaxLength);
  community_.SetLimit(decltype(Manager::community)::kMaxLength);
  address_.SetLimit(decltype(Manager::address)::kMaxLength);
  comment_.SetLimit(decltype(Manager::comment)::kMaxLength);
  if (given_ != nullptr) {
    record_ = *given_;
    computer_text_ = record_.computer.View();
    community_text_ = record_.community.View();
    address_text_ = record_.address.View();
    comment_text_ = record_.comment.View();
  }
  CLibraryDialog::OnInitDialog();
  UpdateOk();
}

// A recently used entry may be longer than the record has room for: a part of it would name another machine.
void CSnmpManagerDlg::Exchange(ui::DataExchange& x) {
  x.Text(computer_, computer_text_);
  x.LimitedText(community_, community_text_);
  x.LimitedText(address_, address_text_);
  x.Text(comment_, comment_text_);
}

void CSnmpManagerDlg::UpdateOk() { buttons_.ok.Enable(!address_.Text().empty()); }

void CSnmpManagerDlg::OnBrowseComputer() {
  GUID result{};
  char name[kComputerBufferSize] = {};
  const GUID* chosen = TheCompanions().minibrowse->dlgMiniBrowser(&result, objmodel::kComputerClass, 0, this);
  if (TheCompanions().objmodel->QevOMGetInstanceProperty(*chosen, objmodel::kComputerClass,
                                                         objmodel::kNameProperty, name, sizeof name) == 0)
    computer_.SetText(name);
  UpdateOk();
}

void CSnmpManagerDlg::OnRecentCommunity() {
  char chosen[agentui::kCommunityBufferSize] = {};
  TheCompanions().agentui->DisplayCommunityNameMRUListDialog(this, chosen);
  if (chosen[0] != '\0') community_.SetText(chosen);
  UpdateOk();
}

void CSnmpManagerDlg::OnRecentAddress() {
  char chosen[agentui::kAddressBufferSize] = {};
  TheCompanions().agentui->DisplayIPAddressMRUListDialog(this, chosen);
  if (chosen[0] != '\0') address_.SetText(chosen);
  UpdateOk();
}

void CSnmpManagerDlg::FillRecord(Manager& record) const {
  record.address.Assign(address_text_);
  record.comment.Assign(comment_text_);
  record.community.Assign(community_text_);
  record.computer.Assign(computer_text_);
}

// Another console may have changed what is not shown; the text fields are this person's.
bool CSnmpManagerDlg::Update() {
  CAlertUSR_SNMPDB& store = UserStore<CAlertUSR_SNMPDB>();
  StoreLock lock(store);
  Status status = lock.Result();
  if (status == kOk) {
    Manager updated = *given_;
    store.DBAlertRecRetrieve(updated.guid, updated);
    FillRecord(updated);
    status = store.DBAlertRecUpdate(updated);
    if (status == kOk) record_ = *given_ = updated;
  }
  lock.Release();
  return status == kOk || Fail(kIdsSnmpManagerUpdateFailed, this);
}

bool CSnmpManagerDlg::Add() {
  Manager added{};
  GUID new_id{};
  FillRecord(added);
  added.enabled = 1;
  if (UserStore<CAlertUSR_SNMPDB>().DBAlertRecAdd(added, new_id) != kOk)
    return Fail(kIdsSnmpManagerAddFailed, this);
  record_ = added;
  return true;
}

void CSnmpManagerDlg::OnOk() {
  EnsureStoresOpen();
  if (!UpdateData(true)) return;
  TheCompanions().agentui->AddIPAddressToMRUList(address_text_.c_str());
  if (!community_text_.empty()) TheCompanions().agentui->AddCommunityNameToMRUList(community_text_.c_str());
  if (given_ != nullptr ? Update() : Add()) EndDialog(ui::kOk);
}

}  // namespace alerting
