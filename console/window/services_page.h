// SPDX-License-Identifier: MIT
#pragma once

#include "console/window/page.h"

namespace alertconsole {

/// The site's notification services.
class ServicesPage : public Page {
 public:
  ServicesPage(Console& console, QWidget* parent);

  void ShowSite() override;
  QString Summary() const override;
  RecordView& MainView() override { return view_; }
  /// Opens the properties of a service, unless another console has them open and the person leaves it at that.
  void OpenSheet(const platform::GUID& service);

 private:
  void AddCommands();
  const site::Service& ChosenService() const;
  bool IsFirstOfType() const;
  void Open(const hosts::RecordWindow& wanted);
  void Test();
  void Copy();
  void Rename();
  void Delete();
  void Deliver();
  void Switch(bool on);
  Outcome DeliverThrough(const platform::GUID& manager);

  RecordView view_;
};

}  // namespace alertconsole
