// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/frame/stores.h"
#include "alerting/ui/library_dialog.h"
#include "platform/ui/edit.h"
#include "platform/ui/lists.h"

namespace alerting {

/// Makes a modem from a type under a name of its own, and stores it.
class CNewModemDlg : public CLibraryDialog {
 public:
  explicit CNewModemDlg(ui::Window* parent);

  /// The modem that was made.
  const GUID& Modem() const { return modem_; }

 private:
  void OnInitDialog() override;
  void OnOk() override;
  void OnChooseType();
  void OnManageTypes();
  void UpdateOk();

  GUID modem_{};
  ui::ComboBox type_;
  ui::Edit name_;
  ui::Button manage_types_;
  ui::OkCancelButtons buttons_;
};

/// Asks for the name of a new modem type and the type that it begins as; stores nothing.
class CNewModemTypeDlg : public CLibraryDialog {
 public:
  explicit CNewModemTypeDlg(ui::Window* parent);

  const std::string& Name() const { return name_text_; }
  const GUID& Basis() const { return basis_; }

 private:
  void OnInitDialog() override;
  void Exchange(ui::DataExchange& x) override { x.Text(name_, name_text_); }
  void OnOk() override;
  void OnPersonChange(ui::Control&) override { UpdateOk(); }
  void UpdateOk();

  std::string name_text_;
  GUID basis_{};
  ui::Edit name_;
  ui::ComboBox type_;
  ui::OkCancelButtons buttons_;
};

}  // namespace alerting
