// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "alerting/services/ntfy_service.h"
#include "alerting/ui/library_dialog.h"
#include "platform/ui/edit.h"

// What the dialogs that send a test are put together from.

namespace alerting {

/// A dialog that sends a test alert with OK, and stays open where that failed. Its caption ends with the service's name.
class CTestDialog : public CLibraryDialog {
 public:
  void ShowProgress(const std::string& what) override { progress_->SetLabel(what); }

 protected:
  enum ControlId { kIdTarget = 100, kIdMessage = 102, kIdPriority, kIdSubject, kIdFile, kIdBrowseFile };

  CTestDialog(ui::Window* parent, const std::string& caption, ctxhelp::HelpPage help_page,
              CNtfyService& service)
      : CLibraryDialog(parent, caption + " " + service.Name(), help_page), service_(service) {}

  CNtfyService& Service() const { return service_; }
  ui::OkCancelButtons& Buttons() { return *buttons_; }
  /// The fields over the line that says what is waited for, and the buttons. Called once the fields are there: what ends the
  /// dialog ends its tab order.
  void Arrange(std::vector<ui::LayoutNode> fields);
  /// The service's default message as it is shown.
  DefaultMessage ShownDefaultMessage();

  void OnOk() override;
  /// Sends the values, which were just taken out of the controls; false keeps the dialog open.
  virtual bool Send() = 0;

 private:
  CNtfyService& service_;
  std::optional<ui::StaticText> progress_;
  std::optional<ui::OkCancelButtons> buttons_;
};

/// Whom a test goes to: a read-only name, and the "..." that chooses another.
struct TargetField {
  /// Chooses: true when name and identity were written.
  using Choose = std::function<bool(std::string& name, GUID& id)>;

  TargetField(ui::Form& form, int id, std::string label, Choose choose, std::function<void()> on_chosen);
  /// A user of the service; a computer of the site.
  static Choose UserOf(CNtfyService& service, ui::Form& form);
  static Choose Computer(ui::Form& form);

  bool IsChosen() const { return !id.IsNull(); }
  ui::LayoutNode Row() { return ui::Row({ui::Over(name), ui::Bare(browse)}); }

  GUID id{};
  ui::Edit name;
  ui::BrowseButton browse;
};

}  // namespace alerting
