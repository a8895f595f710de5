// SPDX-License-Identifier: MIT
#include "console/hosts/name_dialog.h"

#include "console/site/names.h"

namespace hosts {
namespace {

constexpr int kIdName = 100;

class NameDialog : public HostDialog {
 public:
  NameDialog(ui::Window* parent, const NameQuestion& question);

 private:
  void OnInitDialog() override;
  void OnOk() override;
  std::string Take(const std::string& name) const;

  const NameQuestion& question_;
  ui::Edit field_;
  ui::OkCancelButtons buttons_;
};

NameDialog::NameDialog(ui::Window* parent, const NameQuestion& question)
    : HostDialog(parent, question.caption, question.help_page),
      question_(question),
      field_(*this, kIdName, question.label),
      buttons_(*this) {
  SetLayout(ui::Column({ui::Characters(40, ui::Field(field_)), buttons_.Row()}));
  field_.SetOnChange([this] { buttons_.ok.Enable(!Trimmed(field_.Text()).empty()); });
}

void NameDialog::OnInitDialog() {
  HostDialog::OnInitDialog();
  field_.SetText(question_.name);
  field_.SetSelection(0, question_.name.size());
  buttons_.ok.Enable(!question_.name.empty());
}

std::string NameDialog::Take(const std::string& name) const {
  const std::string problem = site::NameProblem(question_.what, name, question_.limit);
  return problem.empty() ? question_.take(name) : problem;
}

// The field has no limit of its own: what is too long is told, not cut, so that nothing typed or pasted is lost.
void NameDialog::OnOk() {
  if (const std::string problem = Take(Trimmed(field_.Text())); !problem.empty()) {
    Tell(problem);
    return field_.SetFocus();
  }
  EndDialog(ui::kOk);
}

}  // namespace

bool AskName(ui::Window* parent, const NameQuestion& question) {
  return NameDialog(parent, question).RunModal() == ui::kOk;
}

}  // namespace hosts
