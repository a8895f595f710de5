// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/ui/image.h"
#include "platform/ui/window.h"

namespace platform::ui {

class Form;

/// Keys that a control may hear of besides characters.
enum class Key {
  kLeft,
  kRight,
  kUp,
  kDown,
  kHome,
  kEnd,
  kPageUp,
  kPageDown,
  kDelete,
  kSpace,
  kTab,
  kEnter,
  kEscape,
  kF1
};

/// A control of a form. Constructing it adds it to the form; the order of construction is the tab order. Its
/// label belongs to it: hiding or disabling the control does the same to the label.
///
/// Changes that the program makes report nothing; changes that a person makes run the control's change
/// handler and then the form's OnPersonChange.
class Control : public Window {
 public:
  Control(Form& form, int id, std::string label);
  ~Control() override;

  Form& OwnerForm() const { return form_; }
  /// False for static texts, which never take the focus.
  virtual bool TakesFocus() const { return true; }
  /// What a screen reader says for the control.
  virtual std::string SpokenName() const { return PlainLabel(Label()); }
  bool HasFocus() const;
  void SetFocus() override;

  /// Runs after a person changed the control's value (text, check, choice, row).
  void SetOnChange(std::function<void()> handler) { on_change_ = std::move(handler); }

  /// False for a control whose changes are no edits of the form's data, such as the row chosen in a list of its own: the
  /// form does not hear of them. Its own handler does.
  void SetIsEdit(bool is_edit) { is_edit_ = is_edit; }

  /// The focus came or went, by whatever way. Overriders call the base.
  virtual void OnSetFocus() {}
  virtual void OnKillFocus() {}
  /// A key was pressed (before the control acts) or released (after it acted).
  virtual void OnKeyDown(Key /*key*/) {}
  virtual void OnKeyUp(Key /*key*/) {}

 protected:
  /// False while it is hidden or disabled: what a person does there has no effect.
  bool WithinReach() const { return Enabled() && Visible(); }
  /// Reports a person's change.
  void ChangedByPerson();
  /// Runs a handler, where there is one, in the resource context of the form.
  void Run(const std::function<void()>& handler) const;
  /// A control that goes out of reach passes the focus on.
  void OnReachChanged() override;

 private:
  friend class Form;

  Form& form_;
  std::function<void()> on_change_;
  bool is_edit_ = true;
};

/// A text that only stands there; a hint, a note, a label that changes.
class StaticText : public Control {
 public:
  StaticText(Form& form, int id, std::string text) : Control(form, id, std::move(text)) {}
  bool TakesFocus() const override { return false; }
};

/// A push button. `is_default`: pressed by Enter.
class Button : public Control {
 public:
  Button(Form& form, int id, std::string label) : Control(form, id, std::move(label)) {}
  void SetOnClick(std::function<void()> handler) { on_click_ = std::move(handler); }
  bool IsDefault() const { return is_default_; }
  /// Makes this the form's default button in place of any other.
  void SetDefault(bool is_default);
  /// Shows the picture in place of the text, which stays the button's name and keeps its access key.
  void SetPicture(const Bitmap& picture);
  const Bitmap& Picture() const { return picture_; }
  /// A person pressed it; ignored while it is disabled or hidden.
  virtual void OnClick();

 private:
  std::function<void()> on_click_;
  Bitmap picture_;
  bool is_default_ = false;
};

/// A button behind a field that has its like behind other fields, so that it is spoken of by its field: `purpose` and the
/// field's name.
class FieldButton : public Button {
 public:
  FieldButton(Form& form, int id, std::string face, std::string purpose, const Control& field)
      : Button(form, id, std::move(face)), purpose_(std::move(purpose)), field_(field) {}
  std::string SpokenName() const override;

 private:
  const std::string purpose_;
  const Control& field_;
};

/// The small "..." button behind a field, which offers values for it.
class BrowseButton : public FieldButton {
 public:
  BrowseButton(Form& form, int id, const Control& field) : FieldButton(form, id, "...", "Choose", field) {}
};

class CheckBox : public Control {
 public:
  CheckBox(Form& form, int id, std::string label) : Control(form, id, std::move(label)) {}
  bool Checked() const { return checked_; }
  void SetChecked(bool checked);
  /// A person clicked it: toggles, then reports.
  void OnClick();

 private:
  bool checked_ = false;
};

/// A group of radio buttons; index -1 when none is chosen. The label is the group's caption.
class RadioGroup : public Control {
 public:
  /// Options one under the other or side by side, with the label as a caption around them; or side by side
  /// behind the label.
  enum class Arrangement { kUpright, kSideBySide, kLabelLeft };

  RadioGroup(Form& form, int id, std::string label, std::vector<std::string> options);
  /// Before the window is made.
  void SetArrangement(Arrangement arrangement) { arrangement_ = arrangement; }
  Arrangement GetArrangement() const { return arrangement_; }
  const std::vector<std::string>& Options() const { return options_; }
  int Index() const { return index_; }
  /// -1 or a valid index; anything else counts as -1.
  void SetIndex(int index);
  /// A person clicked option `index`; reports also when it was chosen already, as clicks do.
  void OnChoose(int index);

 private:
  std::vector<std::string> options_;
  Arrangement arrangement_ = Arrangement::kUpright;
  int index_ = -1;
};

}  // namespace platform::ui
