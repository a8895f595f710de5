// SPDX-License-Identifier: MIT
#include "console/hosts/record_windows.h"

#include <algorithm>
#include <optional>

#include "console/site/open_mark.h"

namespace hosts {
namespace {

using Kind = RecordWindow::Kind;

bool EditsService(const RecordWindow& window) {
  return window.kind == Kind::kService || window.kind == Kind::kBackup;
}

bool MayOpenBeside(const std::optional<site::OpenMark::Holder>& other) {
  return !other || Ask("The properties of this service are open in another console (" + other->who +
                       ", since " + other->since + "). Whoever stores last wins.\n\nOpen them all the same?");
}

}  // namespace

void RecordWindows::Run(ui::Window* parent, const RecordWindow& wanted, int index) const {
  switch (wanted.kind) {
    case Kind::kService:
      calls_.DomainServicePropertySheet(parent, index);
      break;
    case Kind::kBackup:
      calls_.DomainServiceBackupPropertySheet(parent, index);
      break;
    case Kind::kEntry:
      calls_.UserServicePropertySheet(parent, index, wanted.user);
      break;
    case Kind::kTest:
      calls_.UserServiceTestDialog(parent, index, wanted.user);
  }
}

bool RecordWindows::HasMarked(const platform::GUID& service) const {
  return std::ranges::any_of(
      open_, [&](const RecordWindow& window) { return EditsService(window) && window.service == service; });
}

// An entry and a test store nothing of the service's own, so they need no mark.
bool RecordWindows::Open(ui::Window* parent, const RecordWindow& wanted) {
  std::optional<site::OpenMark> mark;
  if (EditsService(wanted) && !HasMarked(wanted.service)) mark.emplace(wanted.service);
  const int index = calls_.IndexOf(wanted.service);
  if (index < 0) {
    Tell("Another console has deleted this service.");
    return false;
  }
  if (mark && !MayOpenBeside(mark->Other())) return false;
  open_.push_back(wanted);
  Run(parent, wanted, index);
  open_.pop_back();
  return true;
}

bool RecordWindows::IsOpen(const RecordWindow& window) const {
  return std::ranges::find(open_, window) != open_.end();
}

}  // namespace hosts
