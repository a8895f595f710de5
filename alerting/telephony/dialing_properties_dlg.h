// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "alerting/frame/stores.h"
#include "alerting/ui/filtered_edit.h"
#include "alerting/ui/properties_dialog.h"
#include "platform/ui/lists.h"

namespace alerting {

/// Edits, adds and removes dialing locations. What is edited is stored with OK, with a change to another location and
/// before a new one is added; what was added or removed stays so after Cancel.
class CDialingPropertiesDlg : public CPropertiesDialog {
 public:
  /// `location`: the name of the location to show first; "" for the first of the list.
  explicit CDialingPropertiesDlg(ui::Window* parent, std::string location = {});

  /// The name of the location that was shown last; after OK, the one that the person chose.
  const std::string& Location() const { return shown_; }

 private:
  void OnInitDialog() override;
  void Exchange(ui::DataExchange& x) override;
  bool Save() override;
  void OnOk() override;

  void OnChooseLocation();
  void OnChooseCountry();
  void OnNew();
  void OnRemove();

  void Refill(const std::string& location);
  bool Load();
  void Show(const ALRTMODEM_LOCATION& location);
  ui::LayoutNode WhereIAm();
  ui::LayoutNode HowIDial();

  std::string shown_;
  std::string area_code_, local_, long_distance_, disable_digits_;
  bool has_call_waiting_ = false;
  int dialing_ = 0;

  ui::ComboBox location_field_;
  ui::Button new_, remove_;
  CFilteredEdit area_code_field_;
  ui::ComboBox country_;
  CFilteredEdit local_field_, long_distance_field_;
  ui::CheckBox call_waiting_box_;
  CFilteredEdit disable_field_;
  ui::RadioGroup dialing_group_;
  ui::OkCancelButtons buttons_;
};

}  // namespace alerting
