// SPDX-License-Identifier: MIT
#include "desktops/qt/sheet_window.h"

#include <QTabBar>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "desktops/qt/guard.h"
#include "desktops/qt/texts.h"

namespace desktops::qt {

using platform::ui::Change;
using platform::ui::PropertyPage;
using platform::ui::PropertySheet;
using platform::ui::SheetButton;

SheetWindow::SheetWindow(PropertySheet& sheet, QWidget* parent)
    : ModalWindow(sheet, parent), sheet_(sheet), tabs_(new QTabWidget(this)), row_(new QHBoxLayout) {
  setWindowFlag(Qt::WindowContextHelpButtonHint, sheet.HelpButton());
  auto* whole = new QVBoxLayout(this);
  whole->addWidget(tabs_);
  whole->addLayout(row_);
  AddButtons();
  MakeTabs();
  MakeRoomForPages();
  ShowPage();
  ShowButtons();
}

// Apply has its key only where no field of a page wants the same one.
QString SheetWindow::ApplyText() const {
  for (const PropertyPage* page : sheet_.Pages())
    for (const platform::ui::Control* control : page->Controls())
      if (platform::ui::AccessKey(control->Label()) == 'a') return tr("Apply");
  return tr("&Apply");
}

void SheetWindow::AddButtons() {
  row_->addStretch();
  for (const auto& [button, text] :
       {std::pair{SheetButton::kBack, tr("< &Back")}, std::pair{SheetButton::kNext, tr("&Next >")},
        std::pair{SheetButton::kFinish, tr("Finish")}, std::pair{SheetButton::kOk, tr("OK")},
        std::pair{SheetButton::kCancel, tr("Cancel")}, std::pair{SheetButton::kApply, ApplyText()}}) {
    auto* widget = new QPushButton(text, this);
    widget->setAutoDefault(false);
    // A press must not take the focus out of the field that a message may be about.
    widget->setFocusPolicy(Qt::TabFocus);
    connect(widget, &QPushButton::clicked, this,
            [this, button = button] { Guarded([&] { sheet_.OnButton(button); }); });
    row_->addWidget(widget);
    buttons_[button] = widget;
  }
}

void SheetWindow::MakeTabs() {
  FollowPages();
  tabs_->setUsesScrollButtons(false);  // all tabs are in view
  tabs_->tabBar()->setVisible(!sheet_.IsWizard());
  connect(tabs_, &QTabWidget::currentChanged, this, [this](int index) { OnTabChosen(index); });
}

void SheetWindow::AddTab(const PropertyPage& page) {
  auto* place = new QWidget(tabs_);
  (new QVBoxLayout(place))->setContentsMargins({});
  tabs_->addTab(place, ToQt(page.Label()));
  placed_.push_back(&page);
}

// The view goes with its place, later: a handler of one of its widgets may be running.
void SheetWindow::RemoveTab(int index) {
  QWidget* place = tabs_->widget(index);
  const auto view = views_.extract(placed_[static_cast<std::size_t>(index)]);
  if (!view.empty()) view.mapped().release();
  tabs_->removeTab(index);
  place->deleteLater();
  placed_.erase(placed_.begin() + index);
}

void SheetWindow::FollowPages() {
  const QSignalBlocker quiet(tabs_);
  const std::vector<PropertyPage*>& pages = sheet_.Pages();
  for (int i = static_cast<int>(placed_.size()) - 1; i >= 0; --i)
    if (std::ranges::find(pages, placed_[static_cast<std::size_t>(i)]) == pages.end()) RemoveTab(i);
  for (std::size_t i = placed_.size(); i < pages.size(); ++i) AddTab(*pages[i]);
  tabs_->setVisible(!pages.empty());
}

// A sheet does not grow when a larger page is chosen: each page is laid out once for its size, before any is shown. Notes
// wrap, so the height follows the width that all pages get.
void SheetWindow::MakeRoomForPages() {
  std::vector<std::unique_ptr<FormView>> views;
  QSize room(0, 0);
  for (PropertyPage* page : sheet_.Pages()) {
    if (page->Created()) continue;
    views.push_back(FormView::Laid(*page, this));
    views.back()->ensurePolished();
    room.setWidth(std::max(room.width(), views.back()->sizeHint().width()));
  }
  for (const auto& view : views) {
    const bool follows = view->layout() != nullptr && view->layout()->hasHeightForWidth();
    const int height =
        follows ? view->layout()->totalHeightForWidth(room.width()) : view->sizeHint().height();
    room.setHeight(std::max(room.height(), height));
  }
  for (int i = 0; i < tabs_->count(); ++i) tabs_->widget(i)->setMinimumSize(room);
}

void SheetWindow::OnWindowChanged(platform::ui::Window& window, Change change) {
  if (change == Change::kPages) {
    FollowPages();
    ShowPage();
    ShowButtons();
  } else {
    ModalWindow::OnWindowChanged(window, change);
  }
}

FormView& SheetWindow::ViewOf(PropertyPage& page, int index) {
  std::unique_ptr<FormView>& view = views_[&page];
  if (view == nullptr) {
    QWidget* place = tabs_->widget(index);
    view = FormView::Laid(page, place);
    view->SetOnCaption(
        [this, &page, place] { tabs_->setTabText(tabs_->indexOf(place), ToQt(page.Label())); });
    place->layout()->addWidget(view.get());
    EndTabOrderWithButtons(*view);
    view->show();
    if (isVisible()) resize(size().expandedTo(WantedSize()).boundedTo(Room()));
  }
  return *view;
}

// A page is made after the buttons below it, and would come after them.
void SheetWindow::EndTabOrderWithButtons(const FormView& page) {
  QWidget* last = page.LastInTabOrder();
  for (int i = 0; last != nullptr && i < row_->count(); ++i) {
    QWidget* button = row_->itemAt(i)->widget();
    if (button != nullptr) setTabOrder(std::exchange(last, button), button);
  }
}

void SheetWindow::ShowPage() {
  PropertyPage* page = sheet_.ActivePage();
  if (page == nullptr || !page->Created()) return;
  const bool is_new = views_.count(page) == 0;
  FormView& view = ViewOf(*page, sheet_.ActiveIndex());
  const QSignalBlocker quiet(tabs_);
  if (tabs_->currentIndex() == sheet_.ActiveIndex() && !is_new) return;
  tabs_->setCurrentIndex(sheet_.ActiveIndex());
  view.FocusCurrent();
}

void SheetWindow::ShowButtons() {
  for (const auto& [button, widget] : buttons_) {
    widget->setVisible(sheet_.ButtonVisible(button));
    widget->setEnabled(sheet_.ButtonEnabled(button));
  }
  if (qobject_cast<QPushButton*>(focusWidget()) == nullptr) UsualDefault()->setDefault(true);
}

QPushButton* SheetWindow::UsualDefault() const {
  const PropertyPage* page = sheet_.ActivePage();
  auto* own = page == nullptr ? nullptr : qobject_cast<QPushButton*>(WidgetOf(page->DefaultButton()));
  return own != nullptr ? own : buttons_.at(sheet_.DefaultButton());
}

void SheetWindow::PressDefault() {
  Guarded([&] { sheet_.OnButton(sheet_.DefaultButton()); });
}

// The page in front may refuse to let go, with a message; until that is decided it stays in front.
void SheetWindow::OnTabChosen(int index) {
  {
    const QSignalBlocker quiet(tabs_);
    tabs_->setCurrentIndex(sheet_.ActiveIndex());
  }
  Guarded([&] { sheet_.SetActivePage(index); });
}

}  // namespace desktops::qt
