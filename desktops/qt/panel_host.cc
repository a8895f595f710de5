// SPDX-License-Identifier: MIT
#include "desktops/qt/panel_host.h"

#include <QVBoxLayout>

#include "desktops/qt/guard.h"

namespace desktops::qt {

PanelHost::PanelHost(platform::ui::PropertyPage& panel, QWidget& place) : panel_(panel.GetHandle()) {
  Guarded([&] { panel.Create(); });
  auto* whole = new QVBoxLayout(&place);
  whole->setContentsMargins({});
  view_ = FormView::Laid(panel, &place).release();  // the place owns it
  view_->LeaveEndingToWindow();
  whole->addWidget(view_);
  Activate();
}

PanelHost::~PanelHost() {
  delete view_;
  if (platform::ui::PropertyPage* panel = Panel()) panel->Destroy();
}

bool PanelHost::Activate() {
  bool agreed = false;
  if (platform::ui::PropertyPage* panel = Panel()) Guarded([&] { agreed = panel->OnSetActive(); });
  return agreed;
}

platform::ui::PropertyPage* PanelHost::Panel() const {
  return static_cast<platform::ui::PropertyPage*>(platform::ui::Window::FromHandle(panel_));
}

}  // namespace desktops::qt
