// SPDX-License-Identifier: MIT
#include "platform/ui/property_sheet.h"

#include <algorithm>
#include <utility>

namespace platform::ui {

PropertyPage::~PropertyPage() {
  if (sheet_ != nullptr) sheet_->RemovePage(*this);
}

void PropertyPage::SetModified(bool changed) {
  page_changed_ = changed;
  if (sheet_ != nullptr) sheet_->PageStateChanged();
}

void PropertyPage::OnEnter() {
  const bool own_button = dynamic_cast<Button*>(FocusedControl()) != nullptr || DefaultButton() != nullptr;
  if (own_button || sheet_ == nullptr) return Form::OnEnter();
  sheet_->OnButton(sheet_->DefaultButton());
}

void PropertyPage::OnEscape() {
  if (sheet_ != nullptr) sheet_->OnCloseRequest();
}

PropertySheet::PropertySheet(std::string caption, Window* parent, int selected_page)
    : Window(parent, 0, std::move(caption)), selected_(selected_page) {}

PropertySheet::~PropertySheet() {
  for (PropertyPage* page : pages_) {
    page->sheet_ = nullptr;
    page->SetParent(nullptr);
  }
}

void PropertySheet::AddPage(PropertyPage& page) {
  page.sheet_ = this;
  page.SetParent(this);
  pages_.push_back(&page);
  PageStateChanged();
}

void PropertySheet::RemovePage(PropertyPage& page) {
  PropertyPage* active = ActivePage();
  std::erase(pages_, &page);
  const auto at = std::ranges::find(pages_, active);
  active_ = at != pages_.end() ? static_cast<int>(at - pages_.begin()) : -1;
  PageStateChanged();
}

PropertyPage* PropertySheet::ActivePage() const {
  return active_ >= 0 ? pages_[static_cast<std::size_t>(active_)] : nullptr;
}

bool PropertySheet::SetActivePage(int index) {
  if (index < 0 || index >= static_cast<int>(pages_.size())) return false;
  if (index == active_) return true;
  PropertyPage* left = ActivePage();
  const bool shown = (left == nullptr || left->OnKillActive()) && Show(index);
  // Also after a refusal: a tab bar may already have moved to the tab that was clicked.
  Notify(Change::kPages);
  return shown;
}

bool PropertySheet::Show(int index) {
  PropertyPage& page = *pages_[static_cast<std::size_t>(index)];
  page.Create();
  if (!page.OnSetActive()) return false;
  active_ = index;
  return true;
}

bool PropertySheet::ButtonVisible(SheetButton button) const {
  const bool finish = (wizard_buttons_ & (kWizardFinish | kWizardDisabledFinish)) != 0;
  switch (button) {
    case SheetButton::kCancel:
      return true;
    case SheetButton::kOk:
    case SheetButton::kApply:
      return !wizard_;
    case SheetButton::kBack:
      return wizard_;
    case SheetButton::kNext:  // Finish takes the place of a Next that is not offered
      return wizard_ && (!finish || (wizard_buttons_ & kWizardNext) != 0);
    case SheetButton::kFinish:
      return wizard_ && finish;
  }
  return false;
}

bool PropertySheet::ButtonEnabled(SheetButton button) const {
  if (!ButtonVisible(button)) return false;
  switch (button) {
    case SheetButton::kApply:
      return std::ranges::any_of(pages_, &PropertyPage::PageChanged);
    case SheetButton::kBack:
      return (wizard_buttons_ & kWizardBack) != 0;
    case SheetButton::kNext:
      return (wizard_buttons_ & kWizardNext) != 0;
    case SheetButton::kFinish:
      return (wizard_buttons_ & kWizardFinish) != 0;
    default:
      return true;
  }
}

SheetButton PropertySheet::DefaultButton() const {
  if (!wizard_) return SheetButton::kOk;
  return ButtonEnabled(SheetButton::kFinish) ? SheetButton::kFinish : SheetButton::kNext;
}

void PropertySheet::SetWizardButtons(std::uint32_t flags) {
  wizard_buttons_ = flags;
  Notify(Change::kPages);
}

void PropertySheet::OnButton(SheetButton button) {
  if (ButtonEnabled(button) && !OnCommand(button)) Press(button);
}

void PropertySheet::Press(SheetButton button) {
  if (!ButtonEnabled(button)) return;
  switch (button) {
    case SheetButton::kOk:
      if (ApplyAll()) EndModal(kOk);
      break;
    case SheetButton::kApply:
      ApplyAll();
      break;
    case SheetButton::kCancel:
      EndModal(kCancel);
      break;
    case SheetButton::kBack:
      SetActivePage(active_ - 1);
      break;
    case SheetButton::kNext:
      SetActivePage(active_ + 1);
      break;
    case SheetButton::kFinish:
      if (Finish()) EndModal(kOk);
      break;
  }
}

bool PropertySheet::ApplyAll() {
  PropertyPage* active = ActivePage();
  if (active != nullptr && !active->OnKillActive()) return false;
  for (PropertyPage* page : pages_) {
    if (page->Created() && !page->OnApply()) return false;
  }
  if (!Commit()) return false;
  for (PropertyPage* page : pages_) page->page_changed_ = false;
  PageStateChanged();
  return true;
}

bool PropertySheet::Finish() {
  PropertyPage* active = ActivePage();
  return (active == nullptr || active->OnWizardFinish()) && Commit();
}

void PropertySheet::OpenWindow() {
  for (PropertyPage* page : pages_) page->page_changed_ = false;
  OnCreated();
  const int last = static_cast<int>(pages_.size()) - 1;
  if (last >= 0) SetActivePage(std::clamp(selected_, 0, last));
}

void PropertySheet::CloseWindow() {
  for (PropertyPage* page : pages_) {
    if (page->Created()) page->Destroy();
  }
  active_ = -1;
  OnDestroyed();
}

bool PropertySheet::UpdateData(bool save) {
  PropertyPage* active = ActivePage();
  return active == nullptr || active->UpdateData(save);
}

}  // namespace platform::ui
