// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/services/user_base.h"
#include "alerting/sheets/serial_choices.h"
#include "alerting/sheets/service_page.h"
#include "alerting/telephony/modem_lists.h"
#include "platform/ui/edit.h"
#include "platform/ui/lists.h"

namespace alerting {

/// "Modems" page: the modem that a service dials with, its line settings and script. Modems and types are stored
/// at once, whatever becomes of the sheet.
class CPropPgModem : public CServicePage {
 public:
  CPropPgModem();

  // Before the page is shown.
  /// Hides the script, which pagers do not have.
  void SetPagerMode() { pager_mode_ = true; }
  /// Edits the service's backup modem link.
  void SetBackupLink() { backup_link_ = true; }

  /// Reads the settings again, but for the list; where the page was shown.
  void ReloadModemSettings();
  /// Once modified the page stays so: each later save writes the settings again.
  bool SavePage() override { return !IsModified() || SaveFields(); }

 private:
  CNtfyServiceUserBase& Dialer() const { return static_cast<CNtfyServiceUserBase&>(Service()); }
  void OnInitDialog() override;
  void Exchange(ui::DataExchange& x) override;
  bool SaveFields() override;

  void ReadSettings();
  void TakeChoices();
  void RefillModems() { FillModemListCtrl(modems_, settings_.modem); }
  void EnableRowButtons(bool on) {
    properties_.Enable(on);
    delete_.Enable(on);
  }
  void OnKeyInList(ui::Key key);
  void OnProperties();
  void OnNew();
  void OnDelete();
  void OnBrowseScript();

  bool pager_mode_ = false, backup_link_ = false;
  ModemSettings settings_;

  ui::ListView modems_;
  ui::ComboBox baud_;
  ui::Edit script_;
  ui::BrowseButton browse_;
  SerialChoices serial_;
  ui::Button properties_, new_, delete_, manage_types_;
};

}  // namespace alerting
