// SPDX-License-Identifier: MIT
#include "console/hosts/record_list.h"

#include <algorithm>

#include "platform/base/utf8.h"

namespace hosts {

const RecordList::Row* RecordList::Chosen() const {
  return SelectedRow() < 0 ? nullptr : &rows_[RowData(SelectedRow())];
}

int RecordList::RowOf(const platform::GUID& id) const {
  const auto found = std::ranges::find(rows_, id, &Row::id);
  return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

// Arrow keys go on from the row that is selected.
void RecordList::ChooseRow(int row) {
  FocusRow(row);
  SelectRow(row);
}

void RecordList::Choose(const platform::GUID& id) { ChooseRow(RowOf(id)); }

void RecordList::ChooseSomething() {
  if (SelectedRow() < 0) ChooseRow(0);
}

void RecordList::Fill(std::vector<Row> rows) {
  const int place = SelectedRow();
  const platform::GUID chosen = place < 0 ? platform::kNullGuid : Chosen()->id;
  rows_ = std::move(rows);
  std::ranges::stable_sort(rows_, platform::LessIgnoringCase,
                           [](const Row& row) -> const std::string& { return row.cells.front(); });
  RemoveAllRows();
  for (std::size_t i = 0; i < rows_.size(); ++i) AddRow(rows_[i].cells, i);
  if (place < 0) return;
  const int now = RowOf(chosen);
  ChooseRow(now >= 0 ? now : std::min(place, RowCount() - 1));
}

}  // namespace hosts
