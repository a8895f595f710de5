// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/base/guid.h"
#include "platform/ui/lists.h"

namespace hosts {

/// A list of records, sorted by its first column without regard to case.
class RecordList : public platform::ui::ListView {
 public:
  struct Row {
    platform::GUID id;
    std::vector<std::string> cells;
  };
  using ListView::ListView;

  /// Shows other rows. The selected record stays selected; where it is gone, the one that has its place now.
  void Fill(std::vector<Row> rows);
  /// Selects the record, or nothing where it is not there.
  void Choose(const platform::GUID& id);
  /// Selects the first record where none is selected.
  void ChooseSomething();
  /// The selected record, or null.
  const Row* Chosen() const;
  bool Empty() const { return rows_.empty(); }
  /// The row that shows the record, or -1.
  int RowOf(const platform::GUID& id) const;

 private:
  void ChooseRow(int row);

  std::vector<Row> rows_;
};

}  // namespace hosts
