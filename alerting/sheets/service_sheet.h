// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "alerting/sheets/service_page.h"

namespace alerting {

/// The property sheet of a service; base of one class per type. A derived sheet has its pages as members in
/// tab order, and the last thing its constructor does is Assemble.
///
/// OK and Apply save all pages and the service's records before the platform acts on the press, and keep it
/// from acting when that fails. However the sheet closes, the alert managers' configuration file is
/// rewritten.
class CServiceSheet : public ui::PropertySheet {
 public:
  /// Saves the pages in tab order, then the service's records. Stops, after a message, at the first failure.
  bool SaveAllPages();
  /// Whether a test may run: at once when no page is modified, else as the person answers. Yes applies the
  /// changes first and allows the test only when they were saved.
  bool ConfirmApplyBeforeTest();

 protected:
  using PropertySheet::PropertySheet;

  /// Adds the pages, hands them service and sheet, and reads the service's records again. Where that fails
  /// the service has shown its message, and the sheet shows what the service held before.
  void Assemble(CNtfyService& service, std::initializer_list<CServicePage*> pages);

  bool OnCommand(ui::SheetButton button) override;
  void OnCreated() override { SetHelpButton(true); }
  void OnDestroyed() override;

 private:
  bool AnyModified() const;

  CNtfyService* service_ = nullptr;
  std::vector<CServicePage*> service_pages_;
};

}  // namespace alerting
