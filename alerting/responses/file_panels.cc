// SPDX-License-Identifier: MIT
#include "alerting/responses/file_panels.h"

#include "alerting/services/default_message.h"
#include "alerting/ui/program_dialogs.h"
#include "alerting/ui/universal_path.h"
#include "alerting/ui/wave_open_dialog.h"

namespace alerting {
namespace {

constexpr std::size_t kMaxFile = 258, kMaxCommandLine = 2048;

}  // namespace

CFilePanel::CFilePanel(std::string caption, ctxhelp::HelpPage help_page, std::string label,
                       ALERTRESPREC* response, std::uint32_t wizard_buttons)
    : CResponsePanel(std::move(caption), help_page, response, wizard_buttons),
      file_(*this, kIdFile, std::move(label)),
      browse_(*this, kIdBrowse, file_) {
  file_.SetLimit(kMaxFile);
  file_.SetOnChange([this] { UpdateWizardButtons(); });
  browse_.SetOnClick([this] { OnBrowse(); });
}

void CFilePanel::OnInitDialog() {
  if (Response() != nullptr) file_name_ = Response()->subject.View();
  CResponsePanel::OnInitDialog();
  UpdateWizardButtons();
}

bool CFilePanel::OnSetActive() {
  UpdateWizardButtons();
  return CResponsePanel::OnSetActive();
}

bool CFilePanel::OnApply() {
  if (!HostSaves()) return false;
  UpdateData(true);
  std::string path = file_name_;
  if (!ConfirmPathWarning(ToUniversal(path), this)) return false;
  file_name_ = path;
  UpdateData(false);
  return CPanel::OnApply();
}

void CFilePanel::OnBrowse() {
  UpdateData(true);
  if (ChooseFile(file_name_) != ui::kOk) return;
  UpdateData(false);
  SetModified(true);
  UpdateWizardButtons();
}

CWizardPageWaveAddResp::CWizardPageWaveAddResp(ALERTRESPREC* response, std::uint32_t wizard_buttons)
    : CFilePanel("File", ctxhelp::kHelpWaveResponse, "&Wave file:", response, wizard_buttons) {
  SetLayout(ui::Column({FileRow(), ui::Stretch()}));
}

// The panel knows no service; its type is a sound's, whatever the response was for before.
void CWizardPageWaveAddResp::WriteResponse(ALERTRESPREC& response) {
  CFilePanel::WriteResponse(response);
  response.serviceRecordType = RecordTypeOf(kTypeWave);
}

int CWizardPageWaveAddResp::ChooseFile(std::string& path) {
  return CWaveOpenDialog(this, path).ChooseUniversal(path);
}

CWizardPageProgAddResp::CWizardPageProgAddResp(CNtfyService& service, ALERTRESPREC* response,
                                               std::uint32_t wizard_buttons)
    : CFilePanel("Program", ctxhelp::kHelpProgramResponse, "&Program:", response, wizard_buttons),
      service_(service),
      command_line_(*this, kIdMore, "&Command Line:", "<< &Fields...", "") {
  command_line_.edit.SetMultiLine(true);
  command_line_.edit.SetLimit(kMaxCommandLine);
  SetLayout(ui::Column({FileRow(), ui::Row({ui::Over(command_line_.edit), ui::Bare(command_line_.fields)})}));
}

void CWizardPageProgAddResp::OnInitDialog() {
  if (Response() != nullptr)
    command_line_.Expand(std::string(Response()->message.View()),
                         ResponseKeywords(Response()->messageKeywords));
  CFilePanel::OnInitDialog();
}

void CWizardPageProgAddResp::Exchange(ui::DataExchange& x) {
  CFilePanel::Exchange(x);
  x.Text(command_line_.edit, command_line_.text);
}

void CWizardPageProgAddResp::WriteResponse(ALERTRESPREC& response) {
  CFilePanel::WriteResponse(response);
  DefaultMessage message;
  message.body = command_line_.Collapse(message.bodyKeywords);
  InitResponseMessage(message, response);
  response.serviceRecordType = service_.Common().recordType;
}

int CWizardPageProgAddResp::ChooseFile(std::string& path) {
  return CProgOpenDialog(this, path).ChooseUniversal(path);
}

}  // namespace alerting
