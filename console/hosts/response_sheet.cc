// SPDX-License-Identifier: MIT
#include "console/hosts/response_sheet.h"

#include "console/hosts/panel_wizard.h"
#include "console/hosts/service_choice.h"
#include "console/hosts/store_response.h"

namespace hosts {
namespace {

constexpr char kServiceGone[] =
    "The service of this response has been deleted. Point the response at another service.";

class ResponseSheet : public ui::PropertySheet {
 public:
  ResponseSheet(ui::Window* parent, const site::LibraryCalls& calls, alertstore::ALERTRESPREC& response)
      : PropertySheet("Response Properties", parent), calls_(calls), response_(response) {}

  /// False when one of the panels cannot be made.
  bool MakePanels(int service_index);
  bool Stored() const { return stored_; }

 private:
  bool Commit() override;

  const site::LibraryCalls& calls_;
  alertstore::ALERTRESPREC& response_;
  Panels panels_;
  bool stored_ = false;
};

bool ResponseSheet::MakePanels(int service_index) {
  const int count = calls_.ResponseGetPropertyPanelCount(service_index);
  for (int i = 0; i < count; ++i) {
    panels_.emplace_back(calls_.ResponseGetPropertyPanel(service_index, i, &response_, this));
    if (panels_.back() == nullptr) return false;
    AddPage(*panels_.back());
  }
  return true;
}

// What stands on a page that was never shown is what the response has.
bool ResponseSheet::Commit() {
  if (IndexOrTell(calls_, response_.serviceId, kServiceGone) < 0) return false;
  for (const auto& panel : panels_)
    if (panel->Created() && calls_.ResponseUpdatePropertyPanelData(panel.get()) == 0) return false;
  if (!StoreResponse(calls_, response_)) return false;
  return stored_ = true;
}

}  // namespace

bool RunResponseSheet(ui::Window* parent, const site::LibraryCalls& calls,
                      alertstore::ALERTRESPREC& response) {
  const int index = IndexOrTell(calls, response.serviceId, kServiceGone);
  if (index < 0) return false;
  ResponseSheet sheet(parent, calls, response);
  if (sheet.MakePanels(index)) sheet.RunModal();
  return sheet.Stored();
}

bool EditResponse(ui::Window* parent, const site::LibraryCalls& calls, const platform::GUID& response) {
  alertstore::ALERTRESPREC record{};
  return FetchResponse(response, record) && RunResponseSheet(parent, calls, record);
}

}  // namespace hosts
