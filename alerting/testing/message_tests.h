// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "alerting/testing/test_dialog.h"
#include "platform/ui/lists.h"

// Test dialogs of the services that send a message.

namespace alerting {

/// What a test of a message alone differs in from the others.
struct MessageTest {
  enum class Target { kNobody, kUser, kComputer };

  const char* caption;
  const char* label;
  ctxhelp::HelpPage help_page;
  std::size_t limit;  ///< bytes; 0: what the service can send
  bool digits;        ///< digits, "*" and "#" only, in one line
  Target target;      ///< what is chosen in the dialog
};

/// A message alone: to a user or a computer chosen in the dialog, to the user that is tested, or to nobody.
class CMessageTestDlg : public CTestDialog {
 public:
  CMessageTestDlg(ui::Window* parent, CNtfyService& service, const MessageTest& test, const GUID& user);

 private:
  void OnInitDialog() override;
  void Exchange(ui::DataExchange& x) override { x.Text(*message_, text_); }
  bool Send() override;
  void UpdateOk();

  const MessageTest& test_;
  const GUID user_;
  std::string text_;
  std::optional<TargetField> target_;
  std::unique_ptr<ui::Edit> message_;
};

/// A mail: to a user chosen in the dialog, or to the user that is tested.
class CMailTestDlg : public CTestDialog {
 public:
  /// A null `user`: one is chosen in the dialog.
  CMailTestDlg(ui::Window* parent, CNtfyService& service, const GUID* user);

 private:
  void OnInitDialog() override;
  void Exchange(ui::DataExchange& x) override;
  bool Send() override;

  GUID user_{};
  std::string subject_text_, body_text_;
  std::optional<TargetField> recipient_;
  ui::ComboBox priority_;
  ui::Edit subject_, body_;
};

}  // namespace alerting
