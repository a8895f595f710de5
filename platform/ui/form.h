// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/base/module.h"
#include "platform/ui/control.h"
#include "platform/ui/data_exchange.h"
#include "platform/ui/layout.h"

namespace platform::ui {

/// A person asked for help: F1 with the focus on a control, or "What's this?" (question mark, context menu).
struct HelpEvent {
  enum class Kind { kHelpKey, kContextMenu };
  Kind kind;
  Control* control;  ///< the one asked about; null for the form itself
};

/// What dialogs and property pages share: controls as members, a layout, data exchange, one focus. What a person does in a
/// form runs in the resource context in which it was made, so that a panel's messages bear its own library's title wherever
/// the panel stands.
class Form : public Window {
 public:
  Form(Window* parent, std::string caption)
      : Window(parent, 0, std::move(caption)), module_(Module::Current()) {}
  ~Form() override;

  /// In tab order. Not owned: they are members of the derived class.
  const std::vector<Control*>& Controls() const { return controls_; }
  const LayoutNode& Layout() const { return layout_; }

  /// True from the first showing until the window is gone.
  bool Created() const { return created_; }
  /// Makes the window: OnInitDialog, then the focus on the first control that takes it unless that was set.
  /// Desktops and property sheets call it; a second call does nothing.
  void Create();
  /// The window goes; members keep their values.
  virtual void Destroy();

  /// Runs Exchange both ways. False when a value was refused; its field has the focus then.
  bool UpdateData(bool save) override;

  Control* FocusedControl() const { return focused_; }
  /// Moves the focus, by program or person; null takes it away.
  void MoveFocus(Control* control);

  /// The control that takes the focus after the one that has it, in tab order and round the end; null where
  /// there is none.
  Control* NextInTabOrder() const;

  /// The button that Enter presses, or null.
  class Button* DefaultButton() const;

  /// Passes a help request on; the base ignores it.
  virtual void OnHelp(const HelpEvent&) {}
  /// The library that the form belongs to.
  const Module& OwnModule() const { return module_; }

  /// Enter (not in a multi-line field) and Escape, where the control did not want them. Enter presses the
  /// button with the focus, else the default button.
  virtual void OnEnter();
  virtual void OnEscape() {}
  /// A person changed a control that edits the form's data, after its own handler ran. One place to mark a page as
  /// modified.
  virtual void OnPersonChange(Control&) {}

 protected:
  void SetLayout(LayoutNode layout) { layout_ = std::move(layout); }
  /// Fills the controls. The base loads the members into them.
  virtual void OnInitDialog();
  /// Binds members to controls, both ways.
  virtual void Exchange(DataExchange&) {}

 private:
  friend class Control;
  void AddControl(Control& control);
  void RemoveControl(Control& control);
  bool CanFocus(const Control& control) const;

  const Module& module_;
  std::vector<Control*> controls_;
  LayoutNode layout_{LayoutNode::Kind::kColumn, nullptr, {}, {}};
  Control* focused_ = nullptr;
  bool created_ = false;
};

}  // namespace platform::ui
