// SPDX-License-Identifier: MIT
#include "alerting/ui/select_row.h"

#include <algorithm>

namespace alerting {

bool SelectRowUnderCursor(platform::ui::ListView& list) {
  const int first = list.FirstVisibleRow();
  const int end = std::min(first + list.RowsPerPage(), list.RowCount());
  const int row = list.RowUnderCursor();
  if (row < first || row >= end) return false;
  list.SelectRow(row);
  list.FocusRow(row);
  return true;
}

}  // namespace alerting
