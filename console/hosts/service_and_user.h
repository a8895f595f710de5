// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <vector>

#include "companions/alertstore/records_common.h"
#include "console/hosts/service_choice.h"
#include "console/site/overview.h"
#include "platform/ui/form.h"

namespace hosts {

/// The users to choose from, who may share a name.
class UserList : public platform::ui::ComboBox {
 public:
  using ComboBox::ComboBox;

  void Fill(std::vector<const site::User*> users);
  const site::User* Chosen() const { return Current() < 0 ? nullptr : users_[Data(Current())]; }
  /// The place of the user's item, or -1.
  int PlaceOf(const platform::GUID& user) const;

 private:
  std::vector<const site::User*> users_;
};

/// The controls that say where a response goes: the service and, where it reaches users, one who has an entry on it.
class ServiceAndUser {
 public:
  ServiceAndUser(platform::ui::Form& form, const site::LibraryCalls& calls, const site::Overview& overview);

  platform::ui::LayoutNode Layout();
  /// Shows the services with this one chosen, and this user; null for nothing.
  void Fill(const platform::GUID& service, const platform::GUID& user);
  /// Selects the first service where none is selected.
  void ChooseSomething();
  void SetOnChange(std::function<void()> handler) { on_change_ = std::move(handler); }
  void SetOnDoubleClick(std::function<void()> handler) { services_.SetOnDoubleClick(std::move(handler)); }

  /// False while a service or the user that it needs is missing.
  bool Complete() const;
  /// Null while none is chosen.
  platform::GUID Service() const;
  /// Names service and user in the response; no user where the service reaches none.
  void PutInto(int service_index, alertstore::ALERTRESPREC& response) const;

 private:
  void OnServiceChanged();
  void FillUsers(const platform::GUID& chosen);
  const site::User* User() const { return user_.Chosen(); }

  const site::LibraryCalls& calls_;
  const site::Overview& overview_;
  const std::map<platform::GUID, const site::User*> users_by_id_;
  std::function<void()> on_change_;
  bool reaches_users_ = false;
  RecordList services_;
  UserList user_;
  platform::ui::StaticText no_users_;
};

}  // namespace hosts
