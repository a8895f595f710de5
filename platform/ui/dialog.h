// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/ui/form.h"
#include "platform/ui/modal.h"

namespace platform::ui {

/// A modal dialog: typed controls as members, a layout, OnInitDialog, Exchange, OnOk, OnCancel.
class Dialog : public Form, public Modal {
 public:
  Dialog(Window* parent, std::string caption) : Form(parent, std::move(caption)) {}

  void EndDialog(int result) { EndModal(result); }

  Window& AsWindow() override { return *this; }
  void OpenWindow() override { Create(); }
  void CloseWindow() override { Destroy(); }
  void OnCloseRequest() override { OnCancel(); }
  void OnEscape() override { OnCancel(); }

 protected:
  friend struct OkCancelButtons;
  /// The base takes the values out of the controls and ends with kOk; stays open when a value is refused.
  virtual void OnOk();
  /// The base ends with kCancel.
  virtual void OnCancel();
};

constexpr int kIdOk = 1;
constexpr int kIdCancel = 2;

/// OK, which Enter presses, and Cancel, wired to the dialog. Declared behind a dialog's other controls, so that they end
/// the tab order.
struct OkCancelButtons {
  explicit OkCancelButtons(Dialog& dialog);

  /// Side by side at the right.
  LayoutNode Row() { return ui::Row({Stretch(), Field(ok), Field(cancel)}); }

  Button ok, cancel;
};

}  // namespace platform::ui
