// SPDX-License-Identifier: MIT
#include "console/hosts/entry_wizard.h"

#include "console/hosts/panel_wizard.h"
#include "console/hosts/service_choice.h"

namespace hosts {
namespace {

constexpr int kIdServices = 100;

class EntryServicePage : public FirstPage {
 public:
  EntryServicePage(const std::string& user_name, std::vector<RecordList::Row> services);

  platform::GUID Service() const { return list_.Chosen()->id; }

 private:
  bool Complete() const override { return list_.Chosen() != nullptr; }

  RecordList list_;
};

EntryServicePage::EntryServicePage(const std::string& user_name, std::vector<RecordList::Row> services)
    : FirstPage("Service", ctxhelp::kHelpNewEntry), list_(*this, kIdServices, "&Services:") {
  SetLayout(ui::Column({ui::Note("Choose the service through which \"" + user_name + "\" is to be reached."),
                        ui::Over(list_)}));
  AddServiceColumns(list_);
  list_.Fill(std::move(services));
  list_.ChooseSomething();
  list_.SetOnChange([this] { UpdateButtons(); });
  list_.SetOnDoubleClick([this] { GoOn(); });
}

class EntryWizard : public PanelWizard {
 public:
  EntryWizard(ui::Window* parent, const site::LibraryCalls& calls, const platform::GUID& user,
              const std::string& user_name, std::vector<RecordList::Row> services)
      : PanelWizard(parent, "New Entry", calls), user_(user), first_(user_name, std::move(services)) {
    AddPage(first_);
  }

  bool Stored() const { return stored_; }

 private:
  platform::GUID Service() const override { return first_.Service(); }
  int CountPanels(int index) const override { return Calls().UserGetAddServicePanelCount(index); }
  alerting::CAlertPage* MakePanel(int index, int panel, std::uint32_t buttons) override {
    return Calls().UserGetAddServicePanel(index, panel, user_, buttons, this);
  }
  bool Store(int index) override;

  const platform::GUID user_;
  EntryServicePage first_;
  bool stored_ = false;
};

// A failure may leave part of the entry behind, which the person may then cancel.
bool EntryWizard::Store(int index) {
  const bool whole = TakePanels(ShownPanels(), Calls().UserUpdatePanelData);
  stored_ = Calls().UserServiceUserIsConfigured(index, user_) != 0;
  return whole;
}

}  // namespace

bool AddEntry(ui::Window* parent, const site::LibraryCalls& calls, const platform::GUID& user,
              const std::string& user_name) {
  bool any_takes_users = false;
  std::vector<RecordList::Row> services = ServiceRows(calls, [&](int index) {
    if (calls.DomainServiceIsUser(index) == 0) return false;
    any_takes_users = true;
    return calls.UserServiceUserIsConfigured(index, user) == 0;
  });
  if (services.empty()) {
    Tell(any_takes_users ? "\"" + user_name + "\" has an entry on every service that reaches users."
                         : "There is no service that reaches users.");
    return false;
  }
  EntryWizard wizard(parent, calls, user, user_name, std::move(services));
  wizard.RunModal();
  return wizard.Stored();
}

}  // namespace hosts
