// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

#include "desktops/qt/list_adapter.h"
#include "platform/ui/lists.h"

namespace desktops::qt {

class ComboAdapter : public ListAdapter {
 public:
  ComboAdapter(platform::ui::ComboBox& model, QWidget* parent);

 private:
  void Refresh(platform::ui::Change change) override;
  void Fill() override;
  void ShowCurrent() override;
  void ShowEditedText();

  platform::ui::ComboBox& model_;
  QComboBox* combo_;
};

}  // namespace desktops::qt
