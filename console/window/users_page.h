// SPDX-License-Identifier: MIT
#pragma once

#include "console/window/page.h"

namespace alertconsole {

/// The people whom alerts can reach, and the entries of the chosen ones: on which service, under which address.
class UsersPage : public Page {
 public:
  UsersPage(Console& console, QWidget* parent);

  void ShowSite() override;
  QString Summary() const override;
  RecordView& MainView() override { return users_; }
  void ChooseFirst() override {
    users_.SelectFirst();
    entries_.SelectFirst();
  }
  void Remember(QSettings& settings) override;
  void Recall(const QSettings& settings) override;

 private:
  void AddCommands();
  void ShowEntries();
  void NewUser();
  void RemoveUser();
  bool RemoveEntriesOf(const platform::GUID& user);
  void NewEntry();
  void RemoveEntry();
  /// Opens a window of the library's on the chosen entry. `outcome`: what an open window comes to.
  void Open(hosts::RecordWindow::Kind kind, Outcome outcome);

  RecordView users_, entries_;
};

}  // namespace alertconsole
