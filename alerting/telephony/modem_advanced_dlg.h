// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/frame/stores.h"
#include "alerting/ui/library_dialog.h"
#include "platform/ui/edit.h"

namespace alerting {

/// Edits the command strings of a modem or a modem type. Stores nothing itself: OK changes the record it was given.
class CModemAdvancedDlg : public CLibraryDialog {
 public:
  CModemAdvancedDlg(ui::Window* parent, ALRTSERV_MODEM& record);

 private:
  /// A command string and the record's field that it is.
  struct Command {
    ui::Edit edit;
    std::string text;
  };

  void OnInitDialog() override;
  void Exchange(ui::DataExchange& x) override;
  void OnOk() override;
  template <class Visit>
  void ForEachCommand(Visit&& visit);

  ALRTSERV_MODEM& record_;
  Command initialization_, hangup_, prefix_, suffix_, escape_, alpha_;
  ui::OkCancelButtons buttons_;
};

}  // namespace alerting
