// SPDX-License-Identifier: MIT
#include "alerting/telephony/modem_advanced_dlg.h"

namespace alerting {
namespace {

enum ControlId { kIdInitialization = 100, kIdHangup, kIdPrefix, kIdSuffix, kIdEscape, kIdAlpha };

}  // namespace

CModemAdvancedDlg::CModemAdvancedDlg(ui::Window* parent, ALRTSERV_MODEM& record)
    : CLibraryDialog(parent, "Modem Advanced Properties", ctxhelp::kHelpModemAdvanced),
      record_(record),
      initialization_{{*this, kIdInitialization, "&Initialization string:"}, {}},
      hangup_{{*this, kIdHangup, "&Hangup string:"}, {}},
      prefix_{{*this, kIdPrefix, "Dialing &prefix string:"}, {}},
      suffix_{{*this, kIdSuffix, "Dialing &suffix string:"}, {}},
      escape_{{*this, kIdEscape, "&Escape string:"}, {}},
      alpha_{{*this, kIdAlpha, "&Alpha pager initialization string:"}, {}},
      buttons_(*this) {
  SetLayout(ui::Column(
      {ui::Group("Modem Command Strings",
                 {ui::Field(initialization_.edit), ui::Field(hangup_.edit), ui::Field(prefix_.edit),
                  ui::Field(suffix_.edit), ui::Field(escape_.edit), ui::Field(alpha_.edit)}),
       buttons_.Row()}));
}

template <class Visit>
void CModemAdvancedDlg::ForEachCommand(Visit&& visit) {
  visit(initialization_, record_.initString);
  visit(hangup_, record_.hangupString);
  visit(prefix_, record_.dialPrefix);
  visit(suffix_, record_.dialSuffix);
  visit(escape_, record_.escapeString);
  visit(alpha_, record_.alphaInitString);
}

void CModemAdvancedDlg::OnInitDialog() {
  ForEachCommand([](Command& command, const auto& field) {
    command.edit.SetLimit(field.kMaxLength);
    command.text = field.View();
  });
  CLibraryDialog::OnInitDialog();
}

void CModemAdvancedDlg::Exchange(ui::DataExchange& x) {
  ForEachCommand([&x](Command& command, const auto&) { x.Text(command.edit, command.text); });
}

void CModemAdvancedDlg::OnOk() {
  UpdateData(true);
  ForEachCommand([](const Command& command, auto& field) { field.Assign(command.text); });
  EndDialog(ui::kOk);
}

}  // namespace alerting
