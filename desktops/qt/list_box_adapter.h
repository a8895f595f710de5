// SPDX-License-Identifier: MIT
#pragma once

#include <QTreeWidget>

#include "desktops/qt/list_adapter.h"
#include "platform/ui/lists.h"

namespace desktops::qt {

/// A list box; where its texts have tab stops, each part is a column as wide as its widest text and as the
/// positions of the stops ask.
class ListBoxAdapter : public ListAdapter {
 public:
  ListBoxAdapter(platform::ui::ListBox& model, QWidget* parent);

 private:
  void Fill() override;
  void ShowCurrent() override;
  void OnSelectionChanged();
  QStringList CellsOf(const std::string& text) const;
  /// `widest_texts`: the width of the widest text of each column.
  void SetColumnWidths(const std::vector<qreal>& widest_texts);
  int AskedWidth(int column) const;

  platform::ui::ListBox& model_;
  QTreeWidget* list_;
};

}  // namespace desktops::qt
