// SPDX-License-Identifier: MIT
#include "console/hosts/correct_field.h"

#include "console/hosts/field_places.h"
#include "console/hosts/field_way.h"
#include "platform/ui/desktop.h"
#include "platform/ui/meet_modal.h"

namespace hosts {
namespace {

using agentui::Correction;
using Kind = RecordWindow::Kind;
using Start = FieldPlace::Start;

/// The backup modem may be the same as the first; then either window has it.
bool IsOfBackup(const site::Overview& site, const Correction& wanted) {
  const site::Service* service = site::Find(site.services, wanted.subject.service);
  return service != nullptr && !wanted.record.empty() && service->modem != wanted.record &&
         service->backup_modem == wanted.record;
}

/// Tests of files go to a computer, so their target is no user of the site. Such a test is opened from its service.
bool IsTestOfUser(const RecordWindows& windows, const site::Overview& site, const Correction& wanted) {
  const RecordWindow* last = windows.Last();
  const RecordWindow service{Kind::kService, wanted.subject.service};
  return site::Find(site.users, wanted.subject.target) != nullptr && (last == nullptr || *last != service);
}

RecordWindow WindowOf(const FieldPlace& place, const RecordWindows& windows, const site::Overview& site,
                      const Correction& wanted) {
  const platform::GUID &service = wanted.subject.service, &user = wanted.subject.target;
  if (place.start == Start::kEntry) return {Kind::kEntry, service, user};
  if (place.start == Start::kTest && IsTestOfUser(windows, site, wanted)) return {Kind::kTest, service, user};
  const bool is_backup =
      place.start == Start::kBackup || (place.start == Start::kModem && IsOfBackup(site, wanted));
  return {is_backup ? Kind::kBackup : Kind::kService, service};
}

bool MayOpen(const RecordWindows& windows, const site::Overview& site, const RecordWindow& window) {
  if (windows.IsOpen(window))
    Tell("The window with this field is open already, behind another one. Close what is over it first.");
  else if (window.kind == Kind::kEntry && site::Find(site.users, window.user) == nullptr)
    Tell("The user that was tested has been removed.");
  else
    return true;
  return false;
}

}  // namespace

bool HasWindow(const Correction& wanted) {
  const FieldPlace* place = FindFieldPlace(wanted.field);
  return place != nullptr && place->start != Start::kNowhere;
}

Corrected CorrectField(RecordWindows& windows, const site::Overview& site, const Correction& wanted,
                       ui::Window* owner) {
  const FieldPlace& place = *FindFieldPlace(wanted.field);
  const RecordWindow window = WindowOf(place, windows, site, wanted);
  // The window for a test is the one that its service's button opens.
  const auto way = place.Way().subspan(window.kind == Kind::kTest ? 1 : 0);
  ui::Window* const front = ui::Desktop::Current().ForegroundWindow();
  auto* const sheet = dynamic_cast<ui::PropertySheet*>(front);
  if (sheet != nullptr && windows.Last() != nullptr && *windows.Last() == window) {
    GoToField(way, wanted.record, *sheet);
    return Corrected::kTurned;
  }
  if (!MayOpen(windows, site, window)) return Corrected::kNotOpened;
  bool opened = false;
  ui::MeetNextModal([&] { opened = windows.Open(front != nullptr ? front : owner, window); },
                    [way, record = wanted.record](ui::Modal& there) { GoToField(way, record, there); });
  return opened ? Corrected::kOpened : Corrected::kNotOpened;
}

}  // namespace hosts
