// SPDX-License-Identifier: MIT
#include "console/window/services_page.h"

#include <QVBoxLayout>

#include "companions/alertstore/problem.h"
#include "companions/choices/choose.h"
#include "companions/dbconfig/strings.h"
#include "console/hosts/name_dialog.h"
#include "console/site/advice.h"
#include "console/site/delivery.h"
#include "console/site/services.h"
#include "desktops/qt/texts.h"

namespace alertconsole {
namespace {

using desktops::qt::ToQt;
using platform::GUID;
using Kind = hosts::RecordWindow::Kind;

QString TypeName(std::uint32_t record_type) {
  return QString::fromUtf8(dbconfig::ServiceTypeName(record_type));
}

QString Joined(const std::vector<std::string>& names) {
  QStringList texts;
  for (const std::string& name : names) texts << ToQt(name);
  return texts.join(", ");
}

Row RowOf(const site::Service& service, const QIcon& icon) {
  return {
      {service.id, {}},
      {ToQt(service.name), TypeName(service.record_type), service.on ? "On" : "Off", Joined(service.managers),
       QString::number(service.users), ToQt(service.modem), ToQt(service.backup_modem)},
      icon};
}

/// The index of a service for the library; -1 after saying that it is gone.
int Locate(const site::LibraryCalls& library, const GUID& service) {
  const int index = library.IndexOf(service);
  if (index < 0) hosts::Tell("Another console has deleted this service.");
  return index;
}

/// What a person should know before a service goes.
QString Consequences(const site::Overview& site, const site::Service& service) {
  QStringList lines;
  if (service.users > 0)
    lines << QObject::tr("%1 of its users' entries stay behind in the stores and alert nobody.")
                 .arg(service.users);
  const auto responses =
      std::count_if(site.responses.begin(), site.responses.end(),
                    [&](const site::Response& response) { return response.service == service.id; });
  if (responses > 0)
    lines << QObject::tr(
                 "%1 responses go to it and will alert nobody until they are pointed at another service.")
                 .arg(responses);
  if (!service.managers.empty())
    lines << QObject::tr("%1 no longer delivers it.").arg(Joined(service.managers));
  return lines.isEmpty() ? QString() : "\n\n" + lines.join("\n");
}

}  // namespace

ServicesPage::ServicesPage(Console& console, QWidget* parent)
    : Page(console, tr("&Services"), parent),
      view_(tr("Services"),
            {{tr("Service"), 30},
             {tr("Type"), 26},
             {tr("On"), 7},
             {tr("Delivered by"), 20},
             {tr("Users"), 9},
             {tr("Modem"), 20},
             {tr("Backup modem"), 20}},
            this) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addWidget(&view_);
  view_.SetEmptyText(tr("There are no notification services here."));
  view_.SetOnSelection([this] { console_.SelectionChanged(); });
  view_.SetOnFilter([this] { console_.SelectionChanged(); });
  view_.SetOnActivated([this] {
    if (view_.Selected().size() == 1) OpenSheet(Chosen(view_));
  });
  AddCommands();
}

// Enter in the table opens the properties already; a shortcut would take it away from the table.
void ServicesPage::AddCommands() {
  Add(view_, tr("&Properties..."), {}, Needs::kOneRow, [this] { OpenSheet(Chosen(view_)); });
  QAction* backup = Add(view_, tr("&Backup Modem..."), {}, Needs::kOneRow, [this] {
    Open({Kind::kBackup, Chosen(view_)});
  });
  OnlyIf(backup, [this] {
    return console_.Calls().DomainServiceIsModemService(console_.Calls().IndexOf(Chosen(view_))) != 0;
  });
  Add(view_, tr("&Test..."), {}, Needs::kOneRow, [this] { Test(); });
  AddSeparator();
  Add(view_, tr("Switch &On"), {}, Needs::kRows, [this] { Switch(true); });
  Add(view_, tr("Switch O&ff"), {}, Needs::kRows, [this] { Switch(false); });
  Add(view_, tr("Deli&ver Through..."), {}, Needs::kRows, [this] { Deliver(); });
  AddSeparator();
  Add(view_, tr("&Copy..."), {}, Needs::kOneRow, [this] { Copy(); });
  Add(view_, tr("&Rename..."), QKeySequence(Qt::Key_F2), Needs::kOneRow, [this] { Rename(); });
  QAction* remove = Add(view_, tr("&Delete"), QKeySequence::Delete, Needs::kOneRow, [this] { Delete(); });
  OnlyIf(remove, [this] { return !IsFirstOfType(); });
}

void ServicesPage::ShowSite() {
  std::vector<Row> rows;
  for (const site::Service& service : console_.Site().services)
    rows.push_back(RowOf(service, console_.IconOf(service.record_type)));
  view_.SetRows(std::move(rows));
}

QString ServicesPage::Summary() const { return CountText(view_, tr("service"), tr("services")); }

const site::Service& ServicesPage::ChosenService() const {
  return *site::Find(console_.Site().services, Chosen(view_));
}

// The library keeps the first service of each type, so that a type never vanishes.
bool ServicesPage::IsFirstOfType() const {
  const site::Service& chosen = ChosenService();
  for (const site::Service& service : console_.Site().services)
    if (service.record_type == chosen.record_type) return service.id == chosen.id;
  return false;
}

void ServicesPage::OpenSheet(const GUID& service) { Open({Kind::kService, service}); }

void ServicesPage::Open(const hosts::RecordWindow& wanted) {
  console_.Do([&] {
    return console_.Windows().Open(console_.Owner(), wanted) ? Outcome::kMayHaveStored : Outcome::kNothing;
  });
}

// Services that reach users are tested with one of them; the others have their test in the properties.
void ServicesPage::Test() {
  const site::Service service = ChosenService();
  choices::Offer offer{"Test " + service.name, "&User:", {}, "", ctxhelp::kHelpChooseUser, false};
  std::vector<GUID> users;
  const auto known = site::ById(console_.Site().users);
  for (const site::Entry& entry : console_.Site().entries) {
    const auto user = known.find(entry.user);
    if (entry.service != service.id || user == known.end()) continue;
    users.push_back(entry.user);
    offer.texts.push_back(user->second->name);
  }
  if (users.empty()) return OpenSheet(service.id);
  console_.Do([&] {
    const auto chosen = choices::Choose(console_.Owner(), offer);
    if (!chosen) return Outcome::kNothing;
    const bool opened = console_.Windows().Open(console_.Owner(), {Kind::kTest, service.id, users[*chosen]});
    return opened ? Outcome::kMayHaveStored : Outcome::kNothing;
  });
}

void ServicesPage::Copy() {
  const site::Service service = ChosenService();
  GUID copy{};
  const auto take = [&](const std::string& name) -> std::string {
    for (const site::Service& other : console_.Site().services)
      if (ToQt(other.name).compare(ToQt(name), Qt::CaseInsensitive) == 0)
        return "There is a service named \"" + other.name + "\" already: choose another name.";
    const int index = console_.Calls().IndexOf(service.id);
    if (index < 0) return "Another console has deleted the service that is to be copied.";
    if (console_.Calls().DomainServiceCopyService(index, name.c_str()) == 0)
      return "The service was not copied.";
    copy = console_.Calls().DomainServiceGetInfo(console_.Calls().DomainServiceGetCount() - 1)->serviceId;
    return {};
  };
  console_.Do(
      [&] {
        const bool made =
            hosts::AskName(console_.Owner(),
                           {"Copy Service", "&Name of the copy:", "a service's name",
                            "Copy of " + service.name, site::kLongestServiceName, ctxhelp::kHelpName, take});
        return made ? Outcome::kStored : Outcome::kNothing;
      },
      tr("Copied \"%1\". No alert manager delivers the copy yet.").arg(ToQt(service.name)));
  view_.Select({copy, {}});
}

void ServicesPage::Rename() {
  const site::Service service = ChosenService();
  const auto take = [&](const std::string& name) -> std::string {
    const alertstore::Status status = site::RenameService(service.id, name);
    if (status == alertstore::kNotUnique)
      return "There is a service named \"" + name + "\" already: choose another name.";
    return status == alertstore::kOk ? "" : site::FailureText("rename the service", status);
  };
  console_.Do(
      [&] {
        const bool renamed =
            hosts::AskName(console_.Owner(), {"Rename Service", "&Name:", "a service's name", service.name,
                                              site::kLongestServiceName, ctxhelp::kHelpName, take});
        return renamed ? Outcome::kStored : Outcome::kNothing;
      },
      tr("Renamed the service."));
}

void ServicesPage::Delete() {
  const site::Service service = ChosenService();
  const QString question = tr("Delete the service \"%1\"?%2\n\nThis happens at once and cannot be undone.")
                               .arg(ToQt(service.name), Consequences(console_.Site(), service));
  console_.Do(
      [&] {
        if (!hosts::Ask(desktops::qt::FromQt(question))) return Outcome::kNothing;
        const int index = Locate(console_.Calls(), service.id);
        if (index < 0) return Outcome::kNothing;
        // On failure the library has said why.
        if (console_.Calls().DomainServiceDeleteService(index, platform::kNullGuid) == 0)
          return Outcome::kMayHaveStored;
        return Outcome::kStored;
      },
      tr("Deleted \"%1\".").arg(ToQt(service.name)));
}

void ServicesPage::Switch(bool on) {
  console_.Do(
      [&] {
        for (const RowKey& key : view_.Selected()) {
          const alertstore::Status status = site::SwitchService(key.id, on);
          if (status == alertstore::kOk) continue;
          hosts::Tell(site::FailureText("switch the service", status));
          return Outcome::kMayHaveStored;
        }
        return Outcome::kStored;
      },
      on ? tr("Switched on.") : tr("Switched off."));
}

Outcome ServicesPage::DeliverThrough(const GUID& manager) {
  bool all = true;
  for (const RowKey& key : view_.Selected()) {
    const int index = Locate(console_.Calls(), key.id);
    if (index < 0) continue;
    const bool taken = manager.IsNull() ? site::StopDelivering(console_.Calls(), index, key.id)
                                        : site::DeliverThrough(console_.Calls(), index, key.id, manager);
    all = all && taken;
    if (!taken) hosts::Tell("The stores did not take the change. The list shows what holds now.");
  }
  return all ? Outcome::kStored : Outcome::kMayHaveStored;
}

void ServicesPage::Deliver() {
  choices::Offer offer{"Deliver Through",           "&Alert manager:",
                       {"(none: do not deliver)"},  "",
                       ctxhelp::kHelpChooseManager, false};
  std::vector<GUID> managers = {platform::kNullGuid};
  for (const site::Manager& manager : console_.Site().managers) {
    managers.push_back(manager.id);
    offer.texts.push_back(manager.name);
  }
  console_.Do([&] {
    const auto chosen = choices::Choose(console_.Owner(), offer);
    return chosen ? DeliverThrough(managers[*chosen]) : Outcome::kNothing;
  });
}

}  // namespace alertconsole
