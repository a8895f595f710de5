// SPDX-License-Identifier: MIT
#pragma once

#include "console/window/page.h"

namespace alertconsole {

/// What is sent when alerts occur.
class ResponsesPage : public Page {
 public:
  ResponsesPage(Console& console, QWidget* parent);

  void ShowSite() override;
  QString Summary() const override;
  RecordView& MainView() override { return view_; }

 private:
  void New();
  void Edit();
  void Retarget();
  void Remove();

  RecordView view_;
};

}  // namespace alertconsole
