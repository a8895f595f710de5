// SPDX-License-Identifier: MIT
#include "console/hosts/computers_dialog.h"

#include "companions/alertstore/computers.h"
#include "console/hosts/list_dialog.h"
#include "console/hosts/name_dialog.h"
#include "console/site/advice.h"

namespace hosts {
namespace {

class ComputersDialog : public ListDialog {
 public:
  explicit ComputersDialog(ui::Window* parent);

 private:
  bool ReadRows(std::vector<RecordList::Row>& rows) override;
  void Add();
  void Remove();
};

ComputersDialog::ComputersDialog(ui::Window* parent)
    : ListDialog(parent, {"Computers of the Site",
                          "&Computers:",
                          "This site knows no computer yet. Add those that traps are sent to.",
                          {{"Name", 200}},
                          ctxhelp::kHelpComputers}) {
  AddButton("&Add...", [this] { Add(); });
  AddRowButton("&Remove", [this] { Remove(); });
  Finish();
}

bool ComputersDialog::ReadRows(std::vector<RecordList::Row>& rows) {
  std::vector<alertstore::Computer> computers;
  if (const alertstore::Status status = alertstore::ListComputers(computers)) {
    Tell(site::FailureText("read the computers", status));
    return false;
  }
  for (const alertstore::Computer& computer : computers) rows.push_back({computer.id, {computer.name}});
  return true;
}

void ComputersDialog::Add() {
  const auto id = platform::GUID::Generate();
  const auto take = [&](const std::string& name) -> std::string {
    const alertstore::Status status = alertstore::AddComputer(id, name);
    if (status == alertstore::kNotUnique) return "the site knows a computer of that name: enter another";
    return status == alertstore::kOk ? "" : site::FailureText("add the computer", status);
  };
  if (!AskName(this, {"New Computer", "&Name:", "a computer's name", "", alertstore::kMaxObjectName,
                      ctxhelp::kHelpName, take}))
    return;
  NoteChange();
  List().Choose(id);
  EnableButtons();
}

void ComputersDialog::Remove() {
  const RecordList::Row computer = *List().Chosen();
  if (!Ask("Remove the computer \"" + computer.cells.front() + "\" from those that can be chosen?")) return;
  const alertstore::Status status = alertstore::RemoveComputer(computer.id);
  if (status != alertstore::kOk) return Tell(site::FailureText("remove the computer", status));
  NoteChange();
}

}  // namespace

bool EditComputers(ui::Window* parent) {
  ComputersDialog dialog(parent);
  dialog.RunModal();
  return dialog.Changed();
}

}  // namespace hosts
