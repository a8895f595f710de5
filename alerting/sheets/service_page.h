// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "alerting/services/ntfy_service.h"
#include "companions/ctxhelp/ctxhelp.h"
#include "platform/ui/property_sheet.h"

namespace alerting {

class CServiceSheet;

/// A page of a service's property sheet: reads the service when its tab is first shown and hands its values
/// back when it is saved. Its modified flag is its own; the platform's page-changed state, which enables
/// Apply, is set with it.
///
/// A derived page declares its controls as members in tab order, lays them out in its constructor, fills its
/// values in OnInitDialog and then calls the base's, binds them in Exchange and hands them over in
/// SaveFields.
class CServicePage : public ui::PropertyPage {
 public:
  /// Before the page is shown. Not owned.
  void SetService(CNtfyService* service) { service_ = service; }
  /// Only a General page keeps its sheet.
  virtual void SetSheet(CServiceSheet* /*sheet*/) {}

  bool IsModified() const { return modified_; }
  /// Does nothing while the page is unmodified. Else clears the flag, takes the values out of the controls
  /// and hands them to the service; false, after a message, when they are refused. Refused values are not
  /// tried again until the next edit.
  virtual bool SavePage();

  void OnHelp(const ui::HelpEvent& event) override;
  /// Every edit that a person makes comes through here.
  void OnPersonChange(ui::Control&) override { MarkModified(); }

 protected:
  CServicePage(std::string caption, ctxhelp::HelpPage help_page)
      : PropertyPage(std::move(caption)), help_page_(help_page) {}

  bool HasService() const { return service_ != nullptr; }
  CNtfyService& Service() const { return *service_; }
  /// Also for changes that the program makes on a person's behalf.
  void MarkModified();
  /// The base clears the modified flag and puts the values into the controls.
  void OnInitDialog() override;
  /// Hands the values to the service; false after a message.
  virtual bool SaveFields() = 0;

 private:
  const ctxhelp::HelpPage help_page_;
  CNtfyService* service_ = nullptr;
  bool modified_ = false;
};

}  // namespace alerting
