// SPDX-License-Identifier: MIT
#include "console/window/managers_page.h"

#include <QVBoxLayout>

#include "console/hosts/manager_services.h"
#include "console/hosts/name_dialog.h"
#include "console/site/advice.h"
#include "console/site/backup_manager.h"
#include "console/site/managers.h"
#include "desktops/qt/texts.h"

namespace alertconsole {
namespace {

using desktops::qt::FromQt;
using desktops::qt::ToQt;
using platform::GUID;

bool MayBeRemoved(const GUID& manager) {
  alertstore::Status status = alertstore::kOk;
  const std::string problem = site::RemovalProblem(manager, status);
  if (!problem.empty()) hosts::Tell(problem);
  return problem.empty();
}

bool KeepBackup(const GUID& manager) {
  const std::string problem = site::WriteBackupManager(manager);
  if (!problem.empty()) hosts::Tell("cannot keep the choice of the backup: " + problem);
  return problem.empty();
}

}  // namespace

ManagersPage::ManagersPage(Console& console, QWidget* parent)
    : Page(console, tr("Alert &Managers"), parent),
      view_(tr("Alert managers"),
            {{tr("Alert manager"), 30},
             {tr("Services"), 11},
             {tr("Delivers"), 60},
             {tr("Takes over"), 30},
             {tr("Backup"), 10}},
            this) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addWidget(&view_);
  view_.SetEmptyText(
      tr("There is no alert manager yet, so nothing is delivered.\n\nNew Alert Manager names a server that "
         "delivers alerts."));
  view_.SetOnSelection([this] { console_.SelectionChanged(); });
  view_.SetOnFilter([this] { console_.SelectionChanged(); });
  view_.SetOnActivated([this] {
    if (view_.Selected().size() == 1) Services();
  });
  AddCommands();
}

void ManagersPage::AddCommands() {
  Add(view_, tr("&New Alert Manager..."), QKeySequence::New, Needs::kNothing, [this] { New(); });
  Add(view_, tr("Ser&vices Delivered..."), {}, Needs::kOneRow, [this] { Services(); });
  Add(view_, tr("&Backup or Not"), {}, Needs::kOneRow, [this] { SetBackup(); });
  AddSeparator();
  Add(view_, tr("&Rename..."), QKeySequence(Qt::Key_F2), Needs::kOneRow, [this] { Rename(); });
  Add(view_, tr("Re&move"), QKeySequence::Delete, Needs::kOneRow, [this] { Remove(); });
}

// A cell shows the first of them; who needs all sees them in Services Delivered.
QString ManagersPage::NamesOf(const std::vector<GUID>& services, const ServicesById& by_id) {
  constexpr int kNamesAtMost = 50;
  QStringList names;
  for (const GUID& id : services) {
    const auto service = by_id.find(id);
    if (service != by_id.end()) names << ToQt(service->second->name);
    if (names.size() == kNamesAtMost) return names.join(", ") + "...";
  }
  return names.join(", ");
}

void ManagersPage::ShowSite() {
  const GUID backup = site::ReadBackupManager();
  const ServicesById by_id = site::ById(console_.Site().services);
  std::vector<Row> rows;
  for (const site::Manager& manager : console_.Site().managers)
    rows.push_back(
        {{manager.id, {}},
         {ToQt(manager.name), QString::number(manager.services.size()), NamesOf(manager.services, by_id),
          NamesOf(manager.backup_services, by_id), manager.id == backup ? tr("Yes") : ""}});
  view_.SetRows(std::move(rows));
}

QString ManagersPage::Summary() const { return CountText(view_, tr("alert manager"), tr("alert managers")); }

const site::Manager& ManagersPage::ChosenManager() const {
  return *site::Find(console_.Site().managers, Chosen(view_));
}

std::string ManagersPage::Taken(const char* doing, alertstore::Status status, const std::string& name) {
  if (status == alertstore::kNotUnique) return "There is an alert manager named \"" + name + "\" already.";
  return status == alertstore::kOk ? "" : site::FailureText(doing, status);
}

void ManagersPage::New() {
  GUID id{};
  const auto take = [&](const std::string& name) {
    return Taken("add the alert manager", site::AddManager(name, id), name);
  };
  console_.Do(
      [&] {
        const bool added = hosts::AskName(
            console_.Owner(), {"New Alert Manager", "&Name of its computer:", "an alert manager's name", "",
                               site::kLongestManagerName, ctxhelp::kHelpName, take});
        return added ? Outcome::kStored : Outcome::kNothing;
      },
      tr("Added the alert manager. Services Delivered says what it delivers."));
  view_.Select({id, {}});
}

void ManagersPage::Rename() {
  const site::Manager manager = ChosenManager();
  const auto take = [&](const std::string& name) {
    return Taken("rename the alert manager", site::RenameManager(manager.id, name), name);
  };
  console_.Do(
      [&] {
        const bool renamed = hosts::AskName(
            console_.Owner(), {"Rename Alert Manager", "&Name of its computer:", "an alert manager's name",
                               manager.name, site::kLongestManagerName, ctxhelp::kHelpName, take});
        return renamed ? Outcome::kStored : Outcome::kNothing;
      },
      tr("Renamed the alert manager."));
}

void ManagersPage::Remove() {
  const site::Manager manager = ChosenManager();
  const std::string services = FromQt(NamesOf(manager.services, site::ById(console_.Site().services)));
  const std::string loss =
      services.empty() ? "" : "\n\nNobody will deliver these services then: " + services + ".";
  console_.Do(
      [&] {
        if (!MayBeRemoved(manager.id)) return Outcome::kNothing;
        if (!hosts::Ask("Remove the alert manager \"" + manager.name + "\"?" + loss +
                        "\n\nThis cannot be undone."))
          return Outcome::kNothing;
        const alertstore::Status status = site::RemoveManager(manager.id);
        if (status != alertstore::kOk) {
          hosts::Tell(site::FailureText("remove the alert manager", status));
          return Outcome::kMayHaveStored;
        }
        const bool was_backup = site::ReadBackupManager() == manager.id;
        return was_backup && !KeepBackup(platform::kNullGuid) ? Outcome::kMayHaveStored : Outcome::kStored;
      },
      tr("Removed \"%1\".").arg(ToQt(manager.name)));
}

void ManagersPage::Services() {
  const GUID manager = Chosen(view_);
  console_.Do([&] {
    return hosts::EditManagerServices(console_.Owner(), console_.Calls(), console_.Site(), manager)
               ? Outcome::kStored
               : Outcome::kNothing;
  });
}

// What is delivered already keeps its entries: the library adds those of the backup when a service is enabled.
void ManagersPage::SetBackup() {
  const GUID chosen = Chosen(view_);
  const GUID backup = site::ReadBackupManager() == chosen ? platform::kNullGuid : chosen;
  console_.Do([&] { return KeepBackup(backup) ? Outcome::kStored : Outcome::kNothing; },
              backup.IsNull() ? tr("There is no backup now.")
                              : tr("Takes over for services that dial out and are delivered from now on."));
}

}  // namespace alertconsole
