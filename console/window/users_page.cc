// SPDX-License-Identifier: MIT
#include "console/window/users_page.h"

#include <QSplitter>
#include <QVBoxLayout>
#include <map>

#include "companions/alertstore/console_users.h"
#include "companions/dbconfig/strings.h"
#include "console/hosts/entry_wizard.h"
#include "console/hosts/name_dialog.h"
#include "console/site/advice.h"
#include "desktops/qt/texts.h"

namespace alertconsole {
namespace {

using desktops::qt::FromQt;
using desktops::qt::ToQt;
using platform::GUID;

}  // namespace

UsersPage::UsersPage(Console& console, QWidget* parent)
    : Page(console, tr("&Users"), parent),
      users_(tr("Users"), {{tr("User"), 40}, {tr("Entries"), 12}}, this),
      entries_(
          tr("Entries of the chosen users"),
          {{tr("Service"), 30}, {tr("User"), 26}, {tr("Type"), 26}, {tr("Address"), 32}, {tr("Alerted"), 10}},
          this) {
  auto* split = new QSplitter(Qt::Vertical, this);
  entries_.HideFilter();
  split->addWidget(&users_);
  split->addWidget(&entries_);
  split->setChildrenCollapsible(false);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addWidget(split);
  users_.SetEmptyText(
      tr("There are no users yet.\n\nNew User adds one; entries on services then say how alerts reach the "
         "user."));
  users_.SetOnSelection([this] {
    ShowEntries();
    console_.SelectionChanged();
  });
  entries_.SetOnSelection([this] { console_.SelectionChanged(); });
  users_.SetOnFilter([this] { console_.SelectionChanged(); });
  entries_.SetOnActivated([this] {
    if (entries_.Selected().size() == 1) Commands().at(4)->trigger();
  });
  AddCommands();
}

void UsersPage::AddCommands() {
  Add(users_, tr("&New User..."), QKeySequence::New, Needs::kNothing, [this] { NewUser(); });
  Add(users_, tr("&Remove User"), QKeySequence::Delete, Needs::kOneRow, [this] { RemoveUser(); });
  AddSeparator();
  Add(users_, tr("New &Entry..."), QKeySequence(Qt::CTRL | Qt::Key_E), Needs::kOneRow,
      [this] { NewEntry(); });
  // Apply stores, too, whatever comes after it.
  Add(entries_, tr("Entry &Properties..."), {}, Needs::kOneRow,
      [this] { Open(hosts::RecordWindow::Kind::kEntry, Outcome::kStored); });
  Add(entries_, tr("&Test Entry..."), {}, Needs::kOneRow,
      [this] { Open(hosts::RecordWindow::Kind::kTest, Outcome::kMayHaveStored); });
  Add(entries_, tr("Remove Entr&y"), QKeySequence::Delete, Needs::kOneRow, [this] { RemoveEntry(); });
}

void UsersPage::ShowSite() {
  std::vector<Row> rows;
  for (const site::User& user : console_.Site().users)
    rows.push_back({{user.id, {}}, {ToQt(user.name), QString::number(user.entries)}});
  users_.SetRows(std::move(rows));
}

void UsersPage::ShowEntries() {
  const auto users = site::ById(console_.Site().users);
  std::map<GUID, QString> chosen;
  for (const RowKey& key : users_.Selected())
    if (const auto user = users.find(key.id); user != users.end()) chosen[key.id] = ToQt(user->second->name);
  std::vector<Row> rows;
  for (const site::Entry& entry : console_.Site().entries) {
    const auto user = chosen.find(entry.user);
    if (user == chosen.end()) continue;
    rows.push_back({{entry.user, entry.service},
                    {ToQt(entry.service_name), user->second,
                     QString::fromUtf8(dbconfig::ServiceTypeName(entry.record_type)), ToQt(entry.address),
                     entry.enabled ? tr("Yes") : tr("No")},
                    console_.IconOf(entry.record_type)});
  }
  entries_.SetEmptyText(chosen.empty()
                            ? tr("Choose a user to see on which services alerts reach the user.")
                            : tr("No entry yet: no alert reaches this user.\n\nNew Entry adds one."));
  entries_.SetRows(std::move(rows));
}

QString UsersPage::Summary() const { return CountText(users_, tr("user"), tr("users")); }

void UsersPage::NewUser() {
  const GUID id = GUID::Generate();
  const auto take = [&](const std::string& name) -> std::string {
    const alertstore::Status status = alertstore::AddConsoleUser(id, name);
    return status == alertstore::kOk ? "" : site::FailureText("add the user", status);
  };
  console_.Do(
      [&] {
        const bool added =
            hosts::AskName(console_.Owner(), {"New User", "&Name:", "a user's name", "",
                                              alertstore::kMaxConsoleUserName, ctxhelp::kHelpName, take});
        return added ? Outcome::kStored : Outcome::kNothing;
      },
      tr("Added the user. New Entry says how alerts reach the user."));
  users_.Select({id, {}});
}

// Alerts would go on to someone who is no longer listed, so the entries go first.
bool UsersPage::RemoveEntriesOf(const GUID& user) {
  for (const site::Entry& entry : console_.Site().entries) {
    if (entry.user != user) continue;
    const int index = console_.Calls().IndexOf(entry.service);
    if (index < 0 || console_.Calls().UserServiceUserDelete(index, user) == 0) return false;
  }
  return true;
}

void UsersPage::RemoveUser() {
  const site::User user = *site::Find(console_.Site().users, Chosen(users_));
  const QString entries =
      user.entries == 0 ? QString() : tr(" and the entries on services (%1)").arg(user.entries);
  const QString question =
      tr("Remove the user \"%1\"%2?\n\nThis cannot be undone.").arg(ToQt(user.name), entries);
  console_.Do(
      [&] {
        if (!hosts::Ask(FromQt(question))) return Outcome::kNothing;
        if (!RemoveEntriesOf(user.id)) {
          hosts::Tell("Not all entries of the user could be removed, so the user stays.");
          return Outcome::kMayHaveStored;
        }
        const alertstore::Status status = alertstore::RemoveConsoleUser(user.id);
        if (status == alertstore::kOk) return Outcome::kStored;
        hosts::Tell(site::FailureText("remove the user", status));
        return Outcome::kMayHaveStored;
      },
      tr("Removed \"%1\".").arg(ToQt(user.name)));
}

void UsersPage::NewEntry() {
  const site::User user = *site::Find(console_.Site().users, Chosen(users_));
  console_.Do(
      [&] {
        return hosts::AddEntry(console_.Owner(), console_.Calls(), user.id, user.name) ? Outcome::kStored
                                                                                       : Outcome::kNothing;
      },
      tr("Added the entry."));
}

void UsersPage::Open(hosts::RecordWindow::Kind kind, Outcome outcome) {
  const RowKey entry = entries_.Selected().front();
  console_.Do([&] {
    const bool opened = console_.Windows().Open(console_.Owner(), {kind, entry.other, entry.id});
    return opened ? outcome : Outcome::kNothing;
  });
}

void UsersPage::RemoveEntry() {
  const RowKey entry = entries_.Selected().front();
  console_.Do(
      [&] {
        const int index = console_.Calls().IndexOf(entry.other);
        if (index < 0) {
          hosts::Tell("Another console has deleted the service of this entry.");
          return Outcome::kNothing;
        }
        if (!hosts::Ask("Remove this entry? Alerts will no longer reach the user through the service."))
          return Outcome::kNothing;
        return console_.Calls().UserServiceUserDelete(index, entry.id) != 0 ? Outcome::kStored
                                                                            : Outcome::kNothing;
      },
      tr("Removed the entry."));
}

void UsersPage::Remember(QSettings& settings) {
  Page::Remember(settings);
  entries_.Remember(settings);
}

void UsersPage::Recall(const QSettings& settings) {
  Page::Recall(settings);
  entries_.Recall(settings);
}

}  // namespace alertconsole
