// SPDX-License-Identifier: MIT
// What a console that has the public headers, and what they name, can compile.
#include <alerting/alert_page.h>
#include <alerting/alerting.h>

std::int32_t (*const first_export)() = DomainServiceGetCount;
platform::GUID IdentityOf(std::int32_t index) { return DomainServiceGetInfo(index)->serviceId; }

void Host(alerting::CAlertPage& panel, platform::ui::PropertySheet& wizard) {
  panel.SetHostDialog(&wizard);
  wizard.AddPage(panel);
}
