// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QPushButton>
#include <QScrollArea>

#include "desktops/qt/form_view.h"
#include "platform/ui/dialog.h"

namespace desktops::qt {

/// A real window around a modal one. It closes when the modal one has ended, and only then: its close box,
/// Escape and Enter are requests that the model decides about.
class ModalWindow : public QDialog, public platform::ui::WindowObserver, public WidgetOwner {
 public:
  ModalWindow(platform::ui::Modal& modal, QWidget* parent);
  ~ModalWindow() override;

  platform::ui::Modal& ShownModal() const { return modal_; }
  QWidget* OwnedWidget() const override { return const_cast<ModalWindow*>(this); }
  platform::ui::Window& ShownWindow() const override { return modal_.AsWindow(); }
  void OnWindowChanged(platform::ui::Window& window, platform::ui::Change change) override;
  /// Opens the window at the size that its contents want. The toolkit's own way keeps a third of the screen
  /// free and cuts what is in the window for it.
  void setVisible(bool visible) override;
  /// What QDialog calls to dismiss itself.
  void reject() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  /// What the screen has for a window with its title.
  QSize Room() const;
  /// The size at which nothing is cut; wrapped texts are as high as they are at that width.
  QSize WantedSize();
  /// The button that Enter presses from a field, or null.
  virtual QPushButton* UsualDefault() const = 0;
  /// Enter was pressed while neither a control nor a button has the keyboard.
  virtual void PressDefault() {}

 private:
  void OnFocus(QWidget* focus);
  void ScrollContents(const QSize& wanted);

  platform::ui::Modal& modal_;
  QScrollArea* scrolled_ = nullptr;  ///< the contents, where the screen is too small for them
};

class DialogWindow : public ModalWindow {
 public:
  DialogWindow(platform::ui::Dialog& dialog, QWidget* parent);

 private:
  QPushButton* UsualDefault() const override;

  const platform::ui::Dialog& dialog_;
  std::unique_ptr<FormView> view_;
};

}  // namespace desktops::qt
