// SPDX-License-Identifier: MIT
#pragma once

#include "desktops/qt/control_adapter.h"
#include "desktops/qt/edit_view.h"
#include "platform/ui/edit.h"

class QDropEvent;
class QMenu;

namespace desktops::qt {

/// A text field. The model edits; the widget shows text and selection and moves the caret by mouse and arrow
/// keys. So every character a person enters, by key, input method, paste or drop, passes the model's filters.
class EditAdapter : public ControlAdapter, private EditEvents {
 public:
  EditAdapter(platform::ui::Edit& model, QWidget* parent);
  ~EditAdapter() override;

 private:
  void Refresh(platform::ui::Change change) override;
  bool BeforeEvent(QEvent& event) override;
  void AfterEvent(QEvent& event) override;

  bool OnKeyPress(QKeyEvent& event);
  bool OnEditingKey(QKeyEvent& event);
  bool LeavesSelection(const QKeyEvent& event) const;
  bool OnInputMethod(QInputMethodEvent& event);
  bool OnMiddleButton(QEvent& event);
  void OnDrop(QDropEvent& event);
  void OnFocusIn(Qt::FocusReason reason);
  void OnTextChanged();
  void PasteAt(const QPoint& point, const QString& text);
  void ShowMenu(const QPoint& global);
  void FillMenu(QMenu& menu);
  void DeleteSelection();

  /// The model's text and selection put into the widget, the widget's selection told to the model.
  void ShowModelText();
  void ShowModelSelection();
  void TellSelection();

  platform::ui::Edit& model_;
  LineField* line_ = nullptr;
  TextField* text_ = nullptr;
  EditView* view_;
  bool showing_ = false;
};

}  // namespace desktops::qt
