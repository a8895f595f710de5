// SPDX-License-Identifier: MIT
#include "companions/choices/choose.h"

#include "companions/ctxhelp/ctxhelp.h"
#include "platform/ui/dialog.h"
#include "platform/ui/lists.h"

namespace choices {
namespace {

namespace ui = platform::ui;

enum ControlId { kIdList = 100, kIdEmpty };

class ChoiceDialog : public ui::Dialog {
 public:
  ChoiceDialog(ui::Window* parent, const Offer& offer);

  std::size_t Chosen() const { return list_.Data(list_.Current()); }

 private:
  void OnInitDialog() override;
  void OnOk() override;
  void OnHelp(const ui::HelpEvent& event) override;
  void UpdateOk() { buttons_.ok.Enable(list_.Current() >= 0); }

  const Offer& offer_;
  ui::StaticText empty_;
  ui::ListBox list_;
  ui::OkCancelButtons buttons_;
};

ChoiceDialog::ChoiceDialog(ui::Window* parent, const Offer& offer)
    : Dialog(parent, offer.caption),
      offer_(offer),
      empty_(*this, kIdEmpty, offer.empty_text),
      list_(*this, kIdList, offer.list_label, offer.sorted),
      buttons_(*this) {
  SetLayout(ui::Column({ui::Bare(empty_), ui::Over(list_), buttons_.Row()}));
  empty_.Show(offer.texts.empty());
  list_.SetOnChange([this] { UpdateOk(); });
  list_.SetOnDoubleClick([this] { OnOk(); });
}

void ChoiceDialog::OnInitDialog() {
  for (std::size_t i = 0; i < offer_.texts.size(); ++i) list_.Add(offer_.texts[i], i);
  list_.Select(0);
  UpdateOk();
  Dialog::OnInitDialog();
}

void ChoiceDialog::OnOk() {
  if (list_.Current() >= 0) Dialog::OnOk();
}

void ChoiceDialog::OnHelp(const ui::HelpEvent& event) {
  ctxhelp::MakeContextHelp()->QEVDlgOnContextHelp(*this, event,
                                                  ctxhelp::HelpTableOf(*this, offer_.help_page).data());
}

}  // namespace

std::optional<std::size_t> Choose(ui::Window* parent, const Offer& offer) {
  ChoiceDialog dialog(parent, offer);
  if (dialog.RunModal() != ui::kOk) return std::nullopt;
  return dialog.Chosen();
}

}  // namespace choices
