// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/responses/panel.h"
#include "alerting/services/ntfy_service.h"

namespace alerting {

/// What the panels share that edit a response of the console's: the record is read when the panel is first shown and written
/// by UpdatePanelData alone. Without a record a panel can be looked at, and writes nothing.
class CResponsePanel : public CPanel {
 public:
  bool UpdatePanelData() final;
  bool OnApply() override { return HostSaves() && CPanel::OnApply(); }

 protected:
  /// The record is the console's and outlives the panel; may be null.
  CResponsePanel(std::string caption, ctxhelp::HelpPage help_page, ALERTRESPREC* response,
                 std::uint32_t wizard_buttons)
      : CPanel(std::move(caption), help_page, wizard_buttons), response_(response) {}

  ALERTRESPREC* Response() const { return response_; }
  /// Puts the panel's values, which were just taken out of its controls, into the record.
  virtual void WriteResponse(ALERTRESPREC& response) = 0;

 private:
  ALERTRESPREC* const response_;
};

}  // namespace alerting
