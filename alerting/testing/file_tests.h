// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "alerting/testing/test_dialog.h"
#include "alerting/ui/keyword_edit.h"
#include "platform/ui/lists.h"

// Test dialogs of the services that play or start a file on a computer.

namespace alerting {

/// What they share: OK needs a file and a computer; the file's path is brought into universal form before it is sent, and
/// the dialog stays open when the person does not want one that has none.
class CFileTestDlg : public CTestDialog {
 protected:
  CFileTestDlg(ui::Window* parent, ctxhelp::HelpPage help_page, CNtfyService& service);

  void OnInitDialog() override;
  void UpdateOk();
  /// Puts the path's universal form in its place; false when the person does not want it.
  bool ConfirmPath();
  template <class Dialog>
  void ChooseFile();
  virtual std::string FileText() const = 0;
  virtual bool HasComputer() const = 0;

  std::string path_;
};

class CWaveTestDlg : public CFileTestDlg {
 public:
  CWaveTestDlg(ui::Window* parent, CNtfyService& service);

 private:
  void Exchange(ui::DataExchange& x) override { x.Text(file_, path_); }
  /// Answers true whatever became of the send.
  bool Send() override;
  std::string FileText() const override { return file_.Text(); }
  bool HasComputer() const override { return computer_.IsChosen(); }

  ui::Edit file_;
  ui::BrowseButton browse_;
  TargetField computer_;
};

/// The program's field offers the recently used ones.
class CProgramTestDlg : public CFileTestDlg {
 public:
  CProgramTestDlg(ui::Window* parent, CNtfyService& service);

 private:
  void OnInitDialog() override;
  void OnCancel() override;
  void Exchange(ui::DataExchange& x) override;
  bool Send() override;
  std::string FileText() const override { return program_.Text(); }
  bool HasComputer() const override { return computer_.IsChosen(); }

  std::string command_text_;
  ui::ComboBox program_;
  ui::BrowseButton browse_;
  CKeywordEdit command_line_;
  TargetField computer_;
};

}  // namespace alerting
