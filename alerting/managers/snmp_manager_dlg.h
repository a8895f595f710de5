// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/frame/stores.h"
#include "alerting/ui/library_dialog.h"
#include "platform/ui/edit.h"

namespace alerting {

/// Adds an SNMP manager, or changes the one that it was given, and stores it.
class CSnmpManagerDlg : public CLibraryDialog {
 public:
  /// `manager`: the record to change, which is changed with the store; null to add one.
  CSnmpManagerDlg(ui::Window* parent, ALRTUSR_SNMPSERVICEREC* manager);

  /// The record that was given or added.
  const ALRTUSR_SNMPSERVICEREC& Record() const { return record_; }

 private:
  void OnInitDialog() override;
  void Exchange(ui::DataExchange& x) override;
  void OnOk() override;
  void OnPersonChange(ui::Control&) override { UpdateOk(); }

  void OnBrowseComputer();
  void OnRecentCommunity();
  void OnRecentAddress();
  void UpdateOk();
  bool Update();
  bool Add();
  void FillRecord(ALRTUSR_SNMPSERVICEREC& record) const;

  ALRTUSR_SNMPSERVICEREC* const given_;
  ALRTUSR_SNMPSERVICEREC record_{};
  std::string computer_text_, community_text_, address_text_, comment_text_;

  ui::Edit computer_;
  ui::BrowseButton browse_computer_;
  ui::Edit community_;
  ui::BrowseButton recent_communities_;
  ui::Edit address_;
  ui::BrowseButton recent_addresses_;
  ui::Edit comment_;
  ui::OkCancelButtons buttons_;
};

}  // namespace alerting
