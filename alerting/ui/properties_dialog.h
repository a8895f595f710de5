// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/ui/library_dialog.h"

namespace alerting {

class CPropertiesDialog;

/// OK, Cancel and Apply of a properties dialog. Declared behind its other controls.
struct CPropertiesButtons : ui::OkCancelButtons {
  static constexpr int kIdApply = 3;

  explicit CPropertiesButtons(CPropertiesDialog& dialog);
  ui::LayoutNode Row() {
    return ui::Row({ui::Stretch(), ui::Field(ok), ui::Field(cancel), ui::Field(apply)});
  }

  ui::Button apply;
};

/// A dialog that edits a record and stores it itself. It is clean or dirty, and Apply is available while it is dirty. OK
/// saves when it is dirty and closes when that succeeded; a failed save leaves it open with what was entered. Cancel
/// writes nothing.
class CPropertiesDialog : public CLibraryDialog {
 public:
  /// Every edit that a person makes comes through here.
  void OnPersonChange(ui::Control&) override { SetDirty(true); }

 protected:
  using CLibraryDialog::CLibraryDialog;

  bool IsDirty() const { return dirty_; }
  /// Also for changes that the program makes on a person's behalf, and for going back to clean after another record was
  /// loaded.
  void SetDirty(bool dirty);

  /// Takes the values out of the controls and stores them; false after a message.
  virtual bool Save() = 0;
  /// Leaves the dialog clean; false where Save failed.
  bool SaveIfDirty();

  /// The base puts the values into the controls; the dialog is clean then.
  void OnInitDialog() override;
  void OnOk() override;

 private:
  friend struct CPropertiesButtons;

  ui::Button* apply_ = nullptr;
  bool dirty_ = false;
};

}  // namespace alerting
