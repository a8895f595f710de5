// SPDX-License-Identifier: MIT
#include "console/hosts/service_and_user.h"

#include <algorithm>

#include "console/site/responses.h"

namespace hosts {
namespace {

namespace ui = platform::ui;

enum ControlId { kIdServices = 100, kIdUser, kIdNoUsers };

constexpr std::uint32_t kReachesUsers = 1;  // of the classes that the library puts services in

}  // namespace

// The only one is the one who is meant.
void UserList::Fill(std::vector<const site::User*> users) {
  users_ = std::move(users);
  RemoveAll();
  for (std::size_t i = 0; i < users_.size(); ++i) Add(users_[i]->name, i);
  Select(users_.size() == 1 ? 0 : -1);
}

int UserList::PlaceOf(const platform::GUID& user) const {
  const auto found = std::ranges::find(users_, user, [](const site::User* each) { return each->id; });
  return found == users_.end() ? -1 : FindData(static_cast<std::size_t>(found - users_.begin()));
}

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

void ServiceAndUser::FillUsers(const platform::GUID& chosen) {
  reaches_users_ = calls_.DomainServiceType(Service()) == kReachesUsers;
  std::vector<const site::User*> users;
  for (const site::Entry& entry : overview_.entries) {
    if (!reaches_users_ || entry.service != Service()) continue;
    const auto user = users_by_id_.find(entry.user);
    if (user != users_by_id_.end()) users.push_back(user->second);
  }
  user_.Fill(std::move(users));
  if (user_.PlaceOf(chosen) >= 0) user_.Select(user_.PlaceOf(chosen));
  user_.Enable(user_.Count() > 0);
  no_users_.Show(reaches_users_ && user_.Count() == 0);
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
