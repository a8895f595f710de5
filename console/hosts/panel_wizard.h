// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "alerting/alert_page.h"
#include "console/hosts/host_dialog.h"
#include "console/site/library_calls.h"

namespace hosts {

using Panels = std::vector<std::unique_ptr<alerting::CAlertPage>>;

/// The page of a wizard that chooses what the others are for. Next is its only button.
class FirstPage : public HostPage {
 protected:
  using HostPage::HostPage;

  /// Whether the person may go on.
  virtual bool Complete() const = 0;
  /// After a change of what was chosen.
  void UpdateButtons() { Sheet()->SetWizardButtons(Complete() ? std::uint32_t{ui::kWizardNext} : 0); }
  void GoOn() { Sheet()->OnButton(ui::SheetButton::kNext); }

 private:
  bool OnSetActive() override;
};

/// A wizard whose first page chooses a service; the library's panels for it follow. Whoever goes back and chooses another
/// service gets the panels of that one; whoever comes back to the same finds there what was entered.
class PanelWizard : public ui::PropertySheet {
 protected:
  PanelWizard(ui::Window* parent, std::string caption, const site::LibraryCalls& calls);

  const site::LibraryCalls& Calls() const { return calls_; }
  const Panels& ShownPanels() const { return panels_; }

  /// The service that the first page has chosen.
  virtual platform::GUID Service() const = 0;
  /// Panels for the service at that index are about to be made.
  virtual void Begin(int /*index*/) {}
  virtual int CountPanels(int index) const = 0;
  virtual alerting::CAlertPage* MakePanel(int index, int panel, std::uint32_t buttons) = 0;
  /// Finish was pressed. False, after telling why, keeps the wizard open.
  virtual bool Store(int index) = 0;

 private:
  bool OnCommand(ui::SheetButton button) override;
  bool Commit() override;
  bool PreparePanels();
  bool AddPanel(int index, int panel, bool is_last);

  const site::LibraryCalls& calls_;
  platform::GUID prepared_for_{};
  Panels panels_;
};

/// Has every panel write its values; the library tells why one could not.
bool TakePanels(const Panels& panels, std::uint32_t (*take)(alerting::CAlertPage*));

}  // namespace hosts
