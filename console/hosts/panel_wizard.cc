// SPDX-License-Identifier: MIT
#include "console/hosts/panel_wizard.h"

#include <algorithm>

#include "console/hosts/service_choice.h"

namespace hosts {

bool FirstPage::OnSetActive() {
  UpdateButtons();
  return HostPage::OnSetActive();
}

PanelWizard::PanelWizard(ui::Window* parent, std::string caption, const site::LibraryCalls& calls)
    : PropertySheet(std::move(caption), parent), calls_(calls) {
  SetWizardMode();
}

bool PanelWizard::OnCommand(ui::SheetButton button) {
  return button == ui::SheetButton::kNext && ActiveIndex() == 0 && !PreparePanels();
}

bool PanelWizard::Commit() {
  const int index = IndexOrTell(calls_, prepared_for_);
  return index >= 0 && Store(index);
}

bool PanelWizard::AddPanel(int index, int panel, bool is_last) {
  const std::uint32_t forward = is_last ? ui::kWizardFinish : ui::kWizardNext;
  std::unique_ptr<alerting::CAlertPage> made(MakePanel(index, panel, ui::kWizardBack | forward));
  if (made == nullptr) return false;
  AddPage(*made);
  panels_.push_back(std::move(made));
  return true;
}

bool PanelWizard::PreparePanels() {
  const platform::GUID service = Service();
  const int index = IndexOrTell(calls_, service);
  if (index < 0) return false;
  if (service == prepared_for_) return true;
  prepared_for_ = platform::kNullGuid;
  panels_.clear();
  Begin(index);
  const int count = CountPanels(index);
  for (int panel = 0; panel < count; ++panel)
    if (!AddPanel(index, panel, panel + 1 == count)) return false;
  prepared_for_ = service;
  return true;
}

bool TakePanels(const Panels& panels, std::uint32_t (*take)(alerting::CAlertPage*)) {
  return std::ranges::all_of(panels, [take](const auto& panel) { return take(panel.get()) != 0; });
}

}  // namespace hosts
