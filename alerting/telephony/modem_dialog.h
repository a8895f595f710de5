// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "alerting/telephony/modems.h"
#include "alerting/ui/properties_dialog.h"
#include "platform/ui/edit.h"
#include "platform/ui/lists.h"

namespace alerting {

/// What the properties dialogs of modems and of modem types share: nearly everything.
class CModemDialog : public CPropertiesDialog {
 protected:
  CModemDialog(ui::Window* parent, std::string caption, ctxhelp::HelpPage help_page, ModemStoreOf store,
               const GUID& modem, std::string direct_label);

  /// The fields that both have, for the layout.
  ui::LayoutNode Fields();
  ALRTSERV_MODEM& Working() { return working_; }
  ui::ComboBox& TypeField() { return type_; }

  // Fill controls from the record that was read, the location before the alert manager and the type after it.
  virtual void ShowLocation(const ALRTSERV_MODEM&) {}
  virtual void ShowType(const ALRTSERV_MODEM& modem) = 0;
  /// Takes what is the dialog's own into the working record; false after a message.
  virtual bool TakeOwn(ALRTSERV_MODEM& modem) = 0;
  /// False, after a message, where the dialog does not do without an alert manager.
  virtual bool AcceptWithoutManager() = 0;

  void OnInitDialog() override;
  void Exchange(ui::DataExchange& x) override;
  bool Save() override;

 private:
  void Show(const ALRTSERV_MODEM& modem);
  void OnAdvanced();
  void OnDirectPort();
  void EnableOtherCapabilities();
  bool TakeManager();
  void TakeFields();

  const ModemStoreOf store_;
  const GUID id_;
  ALRTSERV_MODEM working_{};
  std::string comment_text_;
  std::uint32_t capabilities_ = 0;
  bool enabled_value_ = false;
  std::optional<ui::ItemData> port_number_, baud_rate_;

  ui::ComboBox type_;
  ui::Button advanced_;
  ui::ComboBox machine_, port_, baud_;
  ui::Edit comment_;
  ui::CheckBox enabled_, direct_, online_, alpha_, numeric_, voice_;
};

}  // namespace alerting
