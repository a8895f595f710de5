// SPDX-License-Identifier: MIT
#include "console/hosts/manager_services.h"

#include <algorithm>

#include "companions/dbconfig/strings.h"
#include "console/hosts/list_dialog.h"
#include "console/hosts/service_choice.h"
#include "console/site/advice.h"
#include "console/site/delivery.h"

namespace hosts {
namespace {

using platform::GUID;

constexpr char kManagerDeleted[] = "Another console has deleted the alert manager.";

std::string Listed(const std::vector<std::string>& names) {
  std::string list;
  for (const std::string& name : names) list += (list.empty() ? "" : ", ") + name;
  return list;
}

class ManagerServicesDialog : public ListDialog {
 public:
  ManagerServicesDialog(ui::Window* parent, const site::LibraryCalls& calls, const site::Manager& manager);

 private:
  bool ReadRows(std::vector<RecordList::Row>& rows) override;
  void EnableButtons() override;
  void Deliver();
  void Stop();
  bool ReadAgain(site::Service& service);
  void ShowChange(bool taken);
  const site::Service* Chosen();
  bool Delivers(const site::Service& service) const;

  const site::LibraryCalls& calls_;
  const GUID manager_;
  const std::string name_;
  site::Overview overview_;
  ui::Button &deliver_, &stop_;
};

ManagerServicesDialog::ManagerServicesDialog(ui::Window* parent, const site::LibraryCalls& calls,
                                             const site::Manager& manager)
    : ListDialog(parent, {"Services of " + manager.name,
                          "Se&rvices:",
                          "There is no service yet.",
                          {{"Service", 120}, {"Type", 130}, {"On", 10}, {"Delivered by", 60}},
                          ctxhelp::kHelpManagerServices}),
      calls_(calls),
      manager_(manager.id),
      name_(manager.name),
      deliver_(AddRowButton("&Deliver", [this] { Deliver(); })),
      stop_(AddRowButton("&Stop Delivering", [this] { Stop(); })) {
  Finish();
}

bool ManagerServicesDialog::ReadRows(std::vector<RecordList::Row>& rows) {
  if (const alertstore::Status status = site::ReadOverview(overview_)) {
    Tell(site::FailureText("read the services", status));
    return false;
  }
  for (const site::Service& service : overview_.services)
    rows.push_back({service.id,
                    {service.name, dbconfig::ServiceTypeName(service.record_type), service.on ? "On" : "Off",
                     Listed(service.managers)}});
  return true;
}

const site::Service* ManagerServicesDialog::Chosen() {
  return List().Chosen() != nullptr ? site::Find(overview_.services, List().Chosen()->id) : nullptr;
}

bool ManagerServicesDialog::Delivers(const site::Service& service) const {
  const site::Manager* manager = site::Find(overview_.managers, manager_);
  return manager != nullptr && (std::ranges::count(manager->services, service.id) > 0 ||
                                std::ranges::count(manager->backup_services, service.id) > 0);
}

void ManagerServicesDialog::EnableButtons() {
  const site::Service* service = Chosen();
  deliver_.Enable(service != nullptr && !Delivers(*service));
  stop_.Enable(service != nullptr && Delivers(*service));
}

// Another console may have changed something since the list was filled; what is asked is to be about what holds now. The list
// then selects another service where this one is gone.
bool ManagerServicesDialog::ReadAgain(site::Service& service) {
  const GUID id = List().Chosen()->id;
  if (!Refill()) return false;
  const site::Service* found = site::Find(overview_.services, id);
  const bool has_manager = site::Find(overview_.managers, manager_) != nullptr;
  if (found == nullptr || !has_manager) {
    Tell(has_manager ? kServiceDeleted : kManagerDeleted);
    return false;
  }
  service = *found;
  return true;
}

void ManagerServicesDialog::ShowChange(bool taken) {
  NoteChange();
  if (!taken) Tell("The stores did not take the change. The list shows what holds now.");
}

void ManagerServicesDialog::Deliver() {
  site::Service service;
  if (!ReadAgain(service) || Delivers(service)) return;
  if (!service.managers.empty() &&
      !Ask("\"" + service.name + "\" is delivered by " + Listed(service.managers) + ". Have \"" + name_ +
           "\" deliver it instead?"))
    return;
  const int index = IndexOrTell(calls_, service.id);
  if (index >= 0) ShowChange(site::DeliverThrough(calls_, index, service.id, manager_));
}

void ManagerServicesDialog::Stop() {
  site::Service service;
  if (!ReadAgain(service) || !Delivers(service)) return;
  if (service.managers.size() > 1 && !Ask("\"" + service.name + "\" is delivered by " +
                                          Listed(service.managers) + ". They stop together. Stop them all?"))
    return;
  const int index = IndexOrTell(calls_, service.id);
  if (index >= 0) ShowChange(site::StopDelivering(calls_, index, service.id));
}

}  // namespace

bool EditManagerServices(ui::Window* parent, const site::LibraryCalls& calls, const site::Overview& overview,
                         const GUID& manager) {
  const site::Manager* found = site::Find(overview.managers, manager);
  if (found == nullptr) {
    Tell(kManagerDeleted);
    return false;
  }
  ManagerServicesDialog dialog(parent, calls, *found);
  dialog.RunModal();
  return dialog.Changed();
}

}  // namespace hosts
