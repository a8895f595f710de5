// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "alerting/responses/panel.h"
#include "alerting/services/user_base.h"
#include "alerting/ui/filtered_edit.h"

// Panels for a user's entry on a service: the address at which the service reaches the user.

namespace alerting {

/// What they share. The entry is written by UpdatePanelData in a wizard and by the apply step in a sheet; each write is
/// told by the service where it fails. The wizard goes on once there is an address.
class CUserPanel : public CPanel {
 public:
  bool OnSetActive() override;
  bool UpdatePanelData() final;
  /// What became of the writes keeps no sheet open.
  bool OnApply() override;

 protected:
  // The numbers that help texts go by.
  enum ControlId { kIdService = 100, kIdUser, kIdAddress, kIdEnable, kIdEmsEnable, kIdEmsAddress };

  CUserPanel(ctxhelp::HelpPage help_page, CNtfyServiceUserBase& service, const GUID& user,
             std::uint32_t wizard_buttons);

  /// The controls that each panel has at a place of its own; called by its constructor.
  void Bind(ui::Edit& address, ui::CheckBox& enable);
  void Arrange(const char* group, ui::LayoutNodes fields);
  CNtfyServiceUserBase& Service() const { return service_; }
  const GUID& User() const { return user_; }

  void OnInitDialog() override;
  void Exchange(ui::DataExchange& x) override;
  /// Reads and writes what the panel has besides the entry.
  virtual void ReadMore() {}
  virtual bool SaveMore() { return true; }

  ui::Edit service_field_, user_field_;

 private:
  bool Save();
  void OnAddressChanged();
  void UpdateWizardButtons() { ShowWizardButtons(has_address_); }

  CNtfyServiceUserBase& service_;
  const GUID user_;
  std::string service_name_;
  UserEntry entry_;
  bool enabled_ = false, has_address_ = false;
  ui::Edit* address_ = nullptr;
  ui::CheckBox* enable_ = nullptr;
};

/// All mail services but MCI Mail.
class CWizardPageMailUser : public CUserPanel {
 public:
  CWizardPageMailUser(CNtfyServiceUserBase& service, const GUID& user, std::uint32_t wizard_buttons);

 private:
  void OnInitDialog() override;

  ui::Edit address_;
  ui::CheckBox enable_;
};

/// MCI Mail, whose users may sit on another mail system (EMS).
class CWizardPageMailAddUser : public CUserPanel {
 public:
  CWizardPageMailAddUser(CNtfyServiceMailBase& service, const GUID& user, std::uint32_t wizard_buttons);

 private:
  void OnInitDialog() override;
  void ReadMore() override;
  void Exchange(ui::DataExchange& x) override;
  bool SaveMore() override;
  void OnEmsClicked();

  CNtfyServiceMailBase& mail_;
  bool has_ems_ = false;
  std::string ems_address_;
  ui::Edit address_field_;
  ui::CheckBox ems_box_;
  ui::Edit ems_field_;
  ui::CheckBox enable_;
};

/// The pagers; `pin_mode`: the number is a PIN.
class CWizardPageNumAddUser : public CUserPanel {
 public:
  CWizardPageNumAddUser(CNtfyServiceUserBase& service, const GUID& user, std::uint32_t wizard_buttons,
                        bool pin_mode);

 private:
  CFilteredEdit number_;
  ui::CheckBox enable_;
};

}  // namespace alerting
