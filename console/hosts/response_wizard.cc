// SPDX-License-Identifier: MIT
#include "console/hosts/response_wizard.h"

#include "console/hosts/panel_wizard.h"
#include "console/hosts/service_and_user.h"
#include "console/site/advice.h"
#include "console/site/responses.h"

namespace hosts {
namespace {

class ResponseServicePage : public FirstPage {
 public:
  ResponseServicePage(const site::LibraryCalls& calls, const site::Overview& overview);

  const ServiceAndUser& Choice() const { return choice_; }

 private:
  bool Complete() const override { return choice_.Complete(); }

  ServiceAndUser choice_;
};

ResponseServicePage::ResponseServicePage(const site::LibraryCalls& calls, const site::Overview& overview)
    : FirstPage("Service", ctxhelp::kHelpNewResponse), choice_(*this, calls, overview) {
  SetLayout(ui::Column({ui::Note("Choose the service through which the alert is sent and, where that service "
                                 "reaches users, who is to be alerted."),
                        choice_.Layout()}));
  choice_.Fill(platform::kNullGuid, platform::kNullGuid);
  choice_.ChooseSomething();
  choice_.SetOnChange([this] { UpdateButtons(); });
  choice_.SetOnDoubleClick([this] { GoOn(); });
}

class ResponseWizard : public PanelWizard {
 public:
  /// The response outlives the wizard, as its panels edit it in place.
  ResponseWizard(ui::Window* parent, const site::LibraryCalls& calls, const site::Overview& overview,
                 alertstore::ALERTRESPREC& response)
      : PanelWizard(parent, "New Response", calls), response_(response), first_(calls, overview) {
    AddPage(first_);
  }

 private:
  platform::GUID Service() const override { return first_.Choice().Service(); }
  void Begin(int index) override;
  int CountPanels(int index) const override { return Calls().ResponseGetAddServicePanelCount(index); }
  alerting::CAlertPage* MakePanel(int index, int panel, std::uint32_t buttons) override {
    return Calls().ResponseGetAddServicePanel(index, panel, &response_, buttons, this);
  }
  bool Store(int index) override;

  alertstore::ALERTRESPREC& response_;
  ResponseServicePage first_;
};

// Types whose panel shows the message alone have more of a default message: the subject of a trap.
void ResponseWizard::Begin(int index) {
  response_ = {};
  Calls().DomainServiceInitWithDefMsg(index, &response_);
}

bool ResponseWizard::Store(int index) {
  if (!TakePanels(ShownPanels(), Calls().ResponseUpdatePanelData)) return false;
  first_.Choice().PutInto(index, response_);
  if (Calls().DomainServiceValidateResponse(&response_) == 0) return false;
  const alertstore::Status status = site::AddResponse(response_);
  if (status != alertstore::kOk) Tell(site::FailureText("add the response", status));
  return status == alertstore::kOk;
}

}  // namespace

bool AddResponse(ui::Window* parent, const site::LibraryCalls& calls, const site::Overview& overview,
                 platform::GUID& added) {
  alertstore::ALERTRESPREC response{};
  ResponseWizard wizard(parent, calls, overview, response);
  if (wizard.RunModal() != ui::kOk) return false;
  added = response.responseId;
  return true;
}

}  // namespace hosts
