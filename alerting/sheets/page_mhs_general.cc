// SPDX-License-Identifier: MIT
#include "alerting/sheets/page_mhs_general.h"

#include "alerting/frame/strings.h"
#include "alerting/services/ntfy_service_mhs.h"
#include "alerting/ui/universal_path.h"
#include "platform/ui/desktop.h"

namespace alerting {
namespace {

constexpr int kIdDirectory = 102;
constexpr int kIdBrowse = 103;
constexpr std::size_t kMaxDirectory = 260;
constexpr int kFirstWithFolderDialog = 4;

}  // namespace

CPropPgMHSGeneral::CPropPgMHSGeneral()
    : CMailGeneralPage(ctxhelp::kHelpMhsGeneral, kGeneralOf<CNtfyServiceMHS>),
      directory_(*this, kIdDirectory, "&Server/Volume path (MHS Directory):"),
      browse_(*this, kIdBrowse, directory_),
      login_(*this) {
  SetLayout(FramesOver(
      "MHS (Message Handling System) is Novell's email system.",
      {ui::Row({ui::Over(directory_), ui::Bare(browse_)}), ui::Field(login_.login), login_.PasswordRow()}));
  directory_.SetLimit(kMaxDirectory);
  Bind(directory_, directory_text_, &GeneralFields::mhsDirectory);
  Bind(login_);
  browse_.SetOnClick([this] { OnBrowse(); });
}

void CPropPgMHSGeneral::OnInitDialog() {
  browse_.Show(ui::Desktop::Current().SystemMajorVersion() >= kFirstWithFolderDialog);
  CMailGeneralPage::OnInitDialog();
}

void CPropPgMHSGeneral::OnBrowse() {
  UpdateData(true);
  ui::FolderDialog folders(this, Text(kIdsChoosePostOffice));
  if (folders.RunModal() != ui::kOk) return;
  std::string chosen = folders.Path();
  const int code = ToUniversal(chosen);
  ShowPathWarning(code, this);
  if (code == kPathInvalid) return;  // the record has no room for it
  directory_text_ = chosen;
  UpdateData(false);
  MarkModified();
}

bool CPropPgMHSGeneral::SaveFields() {
  return ConfirmPathWarning(ToUniversal(directory_text_), this) && CMailGeneralPage::SaveFields();
}

}  // namespace alerting
