// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "alerting/responses/message_field.h"
#include "alerting/responses/response_panel.h"

// Panels for the file of a response: the sound that is played, the program that is started.

namespace alerting {

/// What they share: a file's path, which is brought into universal form when it is chosen and again before it is applied.
/// The wizard goes on once there is one.
class CFilePanel : public CResponsePanel {
 public:
  bool OnSetActive() override;
  /// Fails, with the panel as it was, when the person does not want a path that others cannot follow.
  bool OnApply() override;

 protected:
  static constexpr int kIdFile = 100, kIdBrowse = 101, kIdMore = 102;

  CFilePanel(std::string caption, ctxhelp::HelpPage help_page, std::string label, ALERTRESPREC* response,
             std::uint32_t wizard_buttons);

  ui::LayoutNode FileRow() { return ui::Row({ui::Over(file_), ui::Bare(browse_)}); }
  void OnInitDialog() override;
  void Exchange(ui::DataExchange& x) override { x.Text(file_, file_name_); }
  void WriteResponse(ALERTRESPREC& response) override { response.subject.Assign(file_name_); }
  /// Runs the type's file dialog on a path, which becomes the chosen one in universal form: ui::kOk or ui::kCancel.
  virtual int ChooseFile(std::string& path) = 0;

 private:
  void OnBrowse();
  void UpdateWizardButtons() { ShowWizardButtons(!file_.Text().empty()); }

  std::string file_name_;
  ui::Edit file_;
  ui::BrowseButton browse_;
};

class CWizardPageWaveAddResp : public CFilePanel {
 public:
  CWizardPageWaveAddResp(ALERTRESPREC* response, std::uint32_t wizard_buttons);

 private:
  void WriteResponse(ALERTRESPREC& response) override;
  int ChooseFile(std::string& path) override;
};

/// A program with its command line, which may hold keywords.
class CWizardPageProgAddResp : public CFilePanel {
 public:
  CWizardPageProgAddResp(CNtfyService& service, ALERTRESPREC* response, std::uint32_t wizard_buttons);

 private:
  void OnInitDialog() override;
  void Exchange(ui::DataExchange& x) override;
  void WriteResponse(ALERTRESPREC& response) override;
  int ChooseFile(std::string& path) override;

  CNtfyService& service_;
  MessageField command_line_;
};

}  // namespace alerting
