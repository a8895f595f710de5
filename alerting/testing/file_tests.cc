// SPDX-License-Identifier: MIT
#include "alerting/testing/file_tests.h"

#include "alerting/frame/companions.h"
#include "alerting/ui/program_dialogs.h"
#include "alerting/ui/universal_path.h"
#include "alerting/ui/wave_open_dialog.h"

namespace alerting {
namespace {

constexpr char kCaption[] = "Site Alerting Service Test:";
constexpr std::size_t kMaxFile = 260, kMaxWorkstation = 200, kMaxMachine = 258, kMaxCommandLine = 2048;

}  // namespace

CFileTestDlg::CFileTestDlg(ui::Window* parent, ctxhelp::HelpPage help_page, CNtfyService& service)
    : CTestDialog(parent, kCaption, help_page, service) {}

void CFileTestDlg::OnInitDialog() {
  CTestDialog::OnInitDialog();
  UpdateOk();
}

void CFileTestDlg::UpdateOk() { Buttons().ok.Enable(!FileText().empty() && HasComputer()); }

bool CFileTestDlg::ConfirmPath() {
  std::string universal = path_;
  if (!ConfirmPathWarning(ToUniversal(universal), this)) return false;
  path_ = universal;
  UpdateData(false);
  return true;
}

template <class Dialog>
void CFileTestDlg::ChooseFile() {
  UpdateData(true);
  if (Dialog(this, path_).ChooseUniversal(path_) == ui::kOk) UpdateData(false);
  UpdateOk();
}

CWaveTestDlg::CWaveTestDlg(ui::Window* parent, CNtfyService& service)
    : CFileTestDlg(parent, ctxhelp::kHelpWaveTest, service),
      file_(*this, kIdFile, "&Wave File:"),
      browse_(*this, kIdBrowseFile, file_),
      computer_(*this, kIdTarget, "&Target Workstation:", TargetField::Computer(*this),
                [this] { UpdateOk(); }) {
  file_.SetLimit(kMaxFile);
  file_.SetOnChange([this] { UpdateOk(); });
  computer_.name.SetLimit(kMaxWorkstation);
  browse_.SetOnClick([this] { ChooseFile<CWaveOpenDialog>(); });
  Arrange({ui::Row({ui::Over(file_), ui::Bare(browse_)}), computer_.Row()});
}

bool CWaveTestDlg::Send() {
  if (!ConfirmPath()) return false;
  Service().SendTestAlert(computer_.id, nullptr, path_.c_str(), 0, this);
  return true;
}

CProgramTestDlg::CProgramTestDlg(ui::Window* parent, CNtfyService& service)
    : CFileTestDlg(parent, ctxhelp::kHelpProgramTest, service),
      program_(*this, kIdFile, "&Program:", false, true),
      browse_(*this, kIdBrowseFile, program_),
      command_line_(*this, kIdMessage, "&Command Line:"),
      computer_(*this, kIdTarget, "&Target Machine:", TargetField::Computer(*this), [this] { UpdateOk(); }) {
  program_.SetLimit(kMaxFile);
  program_.SetOnChange([this] { UpdateOk(); });
  command_line_.SetMultiLine(true);
  command_line_.SetLimit(kMaxCommandLine);
  computer_.name.SetLimit(kMaxMachine);
  browse_.SetOnClick([this] { ChooseFile<CProgOpenDialog>(); });
  Arrange({ui::Row({ui::Over(program_), ui::Bare(browse_)}), ui::Over(command_line_), computer_.Row()});
}

void CProgramTestDlg::OnInitDialog() {
  TheCompanions().agentui->FillComboWithMRUList(program_);
  CFileTestDlg::OnInitDialog();
}

void CProgramTestDlg::Exchange(ui::DataExchange& x) {
  x.Text(program_, path_);
  x.Text(command_line_, command_text_);
}

bool CProgramTestDlg::Send() {
  if (!ConfirmPath()) return false;
  TheCompanions().agentui->AddEntryToMRUList(path_.c_str());
  if (!Service().SendTestAlert(computer_.id, command_text_.c_str(), path_.c_str(), 0, this)) return false;
  TheCompanions().agentui->FreeComboMRUData(program_);
  return true;
}

void CProgramTestDlg::OnCancel() {
  TheCompanions().agentui->FreeComboMRUData(program_);
  CFileTestDlg::OnCancel();
}

}  // namespace alerting
