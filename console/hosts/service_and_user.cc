// SPDX-License-Identifier: MIT
#include "console/hosts/service_and_user.h"

#include "console/site/responses.h"

namespace hosts {
namespace {

namespace ui = platform::ui;

enum ControlId { kIdServices = 100, kIdUser, kIdNoUsers };

constexpr std::uint32_t kReachesUsers = 1;  // of the classes that the library puts services in

}  // namespace

ServiceAndUser::ServiceAndUser(ui::Form& form, const site::LibraryCalls& calls,
                               const site::Overview& overview)
    : calls_(calls),
      overview_(overview),
      users_by_id_(site::ById(overview.users)),
      services_(form, kIdServices, "&Services:"),
      user_(form, kIdUser, "&User to alert:", true),
      no_users_(form, kIdNoUsers, "No user has an entry on this service. Give one an entry first.") {
  AddServiceColumns(services_);
  services_.SetOnChange([this] { OnServiceChanged(); });
  user_.SetOnChange([this] { on_change_(); });
}

ui::LayoutNode ServiceAndUser::Layout() {
  return ui::Column({ui::Over(services_), ui::Field(user_), ui::Bare(no_users_)});
}

void ServiceAndUser::Fill(const platform::GUID& service, const platform::GUID& user) {
  services_.Fill(ServiceRows(calls_));
  services_.Choose(service);
  FillUsers(user);
}

void ServiceAndUser::ChooseSomething() {
  services_.ChooseSomething();
  FillUsers(platform::kNullGuid);
}

// The same person may have an entry on the other service, too.
void ServiceAndUser::OnServiceChanged() {
  const site::User* user = User();
  FillUsers(user != nullptr ? user->id : platform::kNullGuid);
  on_change_();
}

// The only one is the one who is meant.
void ServiceAndUser::FillUsers(const platform::GUID& chosen) {
  reaches_users_ = calls_.DomainServiceType(Service()) == kReachesUsers;
  users_.clear();
  user_.RemoveAll();
  for (const site::Entry& entry : overview_.entries) {
    if (!reaches_users_ || entry.service != Service()) continue;
    const auto user = users_by_id_.find(entry.user);
    if (user == users_by_id_.end()) continue;
    user_.Add(user->second->name, users_.size());
    users_.push_back(user->second);
  }
  user_.Select(users_.size() == 1 ? 0 : -1);
  for (std::size_t i = 0; i < users_.size(); ++i)
    if (users_[i]->id == chosen) user_.Select(user_.FindData(i));
  user_.Enable(!users_.empty());
  no_users_.Show(reaches_users_ && users_.empty());
}

const site::User* ServiceAndUser::User() const {
  return user_.Current() < 0 ? nullptr : users_[user_.Data(user_.Current())];
}

platform::GUID ServiceAndUser::Service() const {
  return services_.Chosen() != nullptr ? services_.Chosen()->id : platform::kNullGuid;
}

bool ServiceAndUser::Complete() const {
  return services_.Chosen() != nullptr && (!reaches_users_ || User() != nullptr);
}

void ServiceAndUser::PutInto(int service_index, alertstore::ALERTRESPREC& response) const {
  const site::User* user = User();
  site::PointAt(*calls_.DomainServiceGetInfo(service_index), response);
  response.responseType = calls_.DomainServiceGetResponseType(service_index);
  response.userId = user != nullptr ? user->id : platform::kNullGuid;
  response.userName.Assign(user != nullptr ? user->name : "");
}

}  // namespace hosts
