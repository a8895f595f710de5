// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "console/hosts/host_dialog.h"
#include "console/hosts/record_list.h"

namespace hosts {

/// A window with a list of records and, beside it, buttons that change them at once.
class ListDialog : public HostDialog {
 public:
  /// Whether something was stored while the window was open.
  bool Changed() const { return changed_; }

 protected:
  struct Look {
    std::string caption, list_label;
    std::string empty_text;  ///< says above an empty list what to do
    std::vector<std::pair<std::string, int>> columns;
    ctxhelp::HelpPage help_page;
  };

  ListDialog(ui::Window* parent, const Look& look);
  /// Adds a button under those that are there. Their ids follow the list's, 100.
  ui::Button& AddButton(std::string label, std::function<void()> press);
  /// The same for what is done to the selected record.
  ui::Button& AddRowButton(std::string label, std::function<void()> press);
  /// Adds Close, which Enter presses, and lays everything out. The last thing that a constructor does.
  void Finish();

  RecordList& List() { return list_; }
  /// What the list is to show; false after telling why it cannot be read, and the list stays as it is.
  virtual bool ReadRows(std::vector<RecordList::Row>& rows) = 0;
  /// Enables what can be done to the selected record.
  virtual void EnableButtons();
  /// Reads the list again; false after telling that this failed.
  bool Refill();
  /// Something was stored.
  void NoteChange();

 private:
  void OnInitDialog() override;

  bool changed_ = false;
  ui::StaticText empty_;
  RecordList list_;
  std::vector<std::unique_ptr<ui::Button>> buttons_;
  std::vector<ui::Button*> row_buttons_;
};

}  // namespace hosts
