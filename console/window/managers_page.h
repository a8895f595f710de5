// SPDX-License-Identifier: MIT
#pragma once

#include "console/window/page.h"

namespace alertconsole {

/// The alert managers: the servers that deliver alerts, and which services each of them delivers.
class ManagersPage : public Page {
 public:
  ManagersPage(Console& console, QWidget* parent);

  void ShowSite() override;
  QString Summary() const override;
  RecordView& MainView() override { return view_; }

 private:
  void AddCommands();
  const site::Manager& ChosenManager() const;
  using ServicesById = std::map<platform::GUID, const site::Service*>;
  static QString NamesOf(const std::vector<platform::GUID>& services, const ServicesById& by_id);
  void New();
  void Rename();
  void Remove();
  void Services();
  void SetBackup();
  /// Stores a manager under a name: "" or why it cannot be.
  static std::string Taken(const char* doing, std::uint32_t status, const std::string& name);

  RecordView view_;
};

}  // namespace alertconsole
