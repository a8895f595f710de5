// SPDX-License-Identifier: MIT
#include "desktops/qt/modal_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "desktops/qt/guard.h"
#include "desktops/qt/texts.h"

namespace desktops::qt {

using platform::ui::Change;

ModalWindow::ModalWindow(platform::ui::Modal& modal, QWidget* parent) : QDialog(parent), modal_(modal) {
  setWindowTitle(ToQt(ShownWindow().Label()));
  setEnabled(ShownWindow().Enabled());
  ShownWindow().SetObserver(this);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { OnFocus(now); });
}

// A button with the focus is the one that Enter presses, so no other may look like it meanwhile.
void ModalWindow::OnFocus(QWidget* focus) {
  if (focus == nullptr || focus->window() != this) return;
  if (scrolled_ != nullptr) scrolled_->ensureWidgetVisible(focus);
  auto* button = qobject_cast<QPushButton*>(focus);
  if (button == nullptr) button = UsualDefault();
  if (button != nullptr) button->setDefault(true);
}

ModalWindow::~ModalWindow() {
  disconnect(qApp, nullptr, this,
             nullptr);  // what the focus shows is a derived window's affair, which is gone
  ShownWindow().SetObserver(nullptr);
}

void ModalWindow::OnWindowChanged(platform::ui::Window& window, Change change) {
  if (change == Change::kLabel) setWindowTitle(ToQt(window.Label()));
  if (change == Change::kEnabled) setEnabled(window.Enabled());
  if (change == Change::kEnded) done(modal_.Result());
}

QSize ModalWindow::WantedSize() {
  constexpr int kTitleBarButtons = 150;
  ensurePolished();
  // What was put in meanwhile has only asked for its room so far.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  const int caption = fontMetrics().horizontalAdvance(windowTitle()) + kTitleBarButtons;
  QSize size = sizeHint().expandedTo({caption, 0});
  if (layout()->hasHeightForWidth()) size.setHeight(layout()->totalHeightForWidth(size.width()));
  return size;
}

QSize ModalWindow::Room() const {
  return screen()->availableSize() - QSize(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
}

void ModalWindow::setVisible(bool visible) {
  if (visible && !testAttribute(Qt::WA_Resized)) {
    QSize wanted = WantedSize();
    if (wanted != wanted.boundedTo(Room())) {
      ScrollContents(wanted);
      wanted += QSize(1, 1) * style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    }
    resize(wanted.boundedTo(Room()));
  }
  QDialog::setVisible(visible);
}

// On a small screen the whole contents scroll, so that no button is out of reach.
void ModalWindow::ScrollContents(const QSize& wanted) {
  auto* contents = new QWidget;
  contents->setLayout(layout());
  contents->setMinimumSize(wanted);
  scrolled_ = new QScrollArea(this);
  scrolled_->setFrameShape(QFrame::NoFrame);
  scrolled_->setWidgetResizable(true);
  scrolled_->setFocusPolicy(Qt::NoFocus);
  scrolled_->setWidget(contents);
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins({});
  whole->addWidget(scrolled_);
}

void ModalWindow::reject() {
  Guarded([&] { modal_.OnCloseRequest(); });
}

void ModalWindow::closeEvent(QCloseEvent* event) {
  event->setAccepted(modal_.Ended());
  if (!modal_.Ended()) reject();
}

// Keys that reach the window itself come from a button or a tab of its own; Enter presses such a button.
void ModalWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    reject();
  } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    button != nullptr ? button->click() : PressDefault();
  } else {
    event->ignore();
  }
}

DialogWindow::DialogWindow(platform::ui::Dialog& dialog, QWidget* parent)
    : ModalWindow(dialog, parent), dialog_(dialog), view_(FormView::Laid(dialog, this)) {
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins({});
  whole->addWidget(view_.get());
}

QPushButton* DialogWindow::UsualDefault() const {
  return qobject_cast<QPushButton*>(WidgetOf(dialog_.DefaultButton()));
}

}  // namespace desktops::qt
