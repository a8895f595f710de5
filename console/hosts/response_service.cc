// SPDX-License-Identifier: MIT
#include "console/hosts/response_service.h"

#include "console/hosts/host_dialog.h"
#include "console/hosts/response_sheet.h"
#include "console/hosts/service_and_user.h"
#include "console/hosts/store_response.h"

namespace hosts {
namespace {

using alertstore::ALERTRESPREC;

class ResponseServiceDialog : public HostDialog {
 public:
  ResponseServiceDialog(ui::Window* parent, const site::LibraryCalls& calls, const site::Overview& overview,
                        const ALERTRESPREC& response);

 private:
  void OnInitDialog() override;
  void OnOk() override;
  void UpdateOk() { buttons_.ok.Enable(choice_.Complete()); }
  bool PointAt(int service_index);

  const site::LibraryCalls& calls_;
  const ALERTRESPREC& response_;
  ServiceAndUser choice_;
  ui::OkCancelButtons buttons_;
};

ResponseServiceDialog::ResponseServiceDialog(ui::Window* parent, const site::LibraryCalls& calls,
                                             const site::Overview& overview, const ALERTRESPREC& response)
    : HostDialog(parent, "Service of the Response", ctxhelp::kHelpResponseService),
      calls_(calls),
      response_(response),
      choice_(*this, calls, overview),
      buttons_(*this) {
  SetLayout(ui::Column({choice_.Layout(), buttons_.Row()}));
  choice_.SetOnChange([this] { UpdateOk(); });
  choice_.SetOnDoubleClick([this] { OnOk(); });
}

void ResponseServiceDialog::OnInitDialog() {
  choice_.Fill(response_.serviceId, response_.userId);
  UpdateOk();
  HostDialog::OnInitDialog();
}

void ResponseServiceDialog::OnOk() {
  if (!choice_.Complete()) return;
  const int index = IndexOrTell(calls_, choice_.Service());
  if (index >= 0 && PointAt(index)) EndDialog(ui::kOk);
}

// The library takes away what a service of the new type cannot send; some types lose their message even among themselves.
bool ResponseServiceDialog::PointAt(int service_index) {
  ALERTRESPREC changed = response_;
  const bool is_other_type = calls_.DomainServiceReinitializeResponse(service_index, &changed) != 0;
  choice_.PutInto(service_index, changed);
  if (!is_other_type && changed.message.View() == response_.message.View())
    return StoreResponse(calls_, changed);
  calls_.DomainServiceInitWithDefMsg(service_index, &changed);
  return RunResponseSheet(this, calls_, changed);
}

}  // namespace

bool RetargetResponse(ui::Window* parent, const site::LibraryCalls& calls, const site::Overview& overview,
                      const platform::GUID& response) {
  ALERTRESPREC record{};
  return FetchResponse(response, record) &&
         ResponseServiceDialog(parent, calls, overview, record).RunModal() == ui::kOk;
}

}  // namespace hosts
