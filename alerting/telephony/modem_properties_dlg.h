// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/telephony/modem_dialog.h"

namespace alerting {

/// Edits a modem, and from here the location that it dials from.
class CModemPropertiesDlg : public CModemDialog {
 public:
  /// The null GUID: the first modem.
  CModemPropertiesDlg(ui::Window* parent, const GUID& modem);

 private:
  void ShowLocation(const ALRTSERV_MODEM& modem) override;
  void ShowType(const ALRTSERV_MODEM& modem) override;
  bool TakeOwn(ALRTSERV_MODEM& modem) override;
  bool AcceptWithoutManager() override;

  void OnChooseType();
  void OnEditLocation();
  void OnNewLocation();

  ui::ComboBox location_;
  ui::Button new_location_, edit_location_;
  CPropertiesButtons buttons_;
};

/// Edits a modem type, whose name is the type that it shows.
class CModemTypePropertiesDlg : public CModemDialog {
 public:
  CModemTypePropertiesDlg(ui::Window* parent, const GUID& type);

 private:
  void ShowType(const ALRTSERV_MODEM& modem) override;
  bool TakeOwn(ALRTSERV_MODEM& modem) override;
  bool AcceptWithoutManager() override { return true; }

  CPropertiesButtons buttons_;
};

}  // namespace alerting
