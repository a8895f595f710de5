// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "console/operator/field_option.h"
#include "console/operator/window_operator.h"
#include "platform/ui/form.h"

namespace console_operator {

/// The window in front, a dialog or a property sheet, for the story that works it. Labels are those of the program
/// ("&Name:"). What cannot be done throws a Failure (kInvalid) that says why.
class OperatedWindow {
 public:
  static constexpr char kMissing[] = "something that is needed is missing: give it with an option";

  OperatedWindow(WindowOperator& desktop, platform::ui::Modal& modal, desktops::Person& person)
      : desktop_(desktop), modal_(modal), person_(person) {}

  std::string Caption() { return person_.Caption(); }
  bool HasTab(const std::string& caption) const;
  void SelectTab(const std::string& caption);
  /// `missing` is what is wrong with a button that cannot be pressed.
  void Press(const std::string& button, const std::string& missing = kMissing);
  /// Presses a button that ends the window when all is well; refused otherwise, with what was said.
  void Finish(const std::string& button = "OK", const std::string& missing = kMissing);
  /// Presses a button that opens windows.
  void Open(const std::string& button, std::vector<WindowOperator::Story> stories);
  /// The same with the button that stands beside a field.
  void OpenBeside(const std::string& label, const std::string& button,
                  std::vector<WindowOperator::Story> stories);
  void Close();

  /// True where the dialog, or the sheet's page in front, shows a control with that label.
  bool Shows(const std::string& label);
  /// Puts a value into the first of the option's fields that is shown. False where none is.
  bool Fill(const FieldOption& option, const std::string& value);
  /// Puts in all that was given; refused where one has no field here. `what` is named then: "a Wave File service".
  void FillAll(const FieldValues& values, const std::string& what);

  /// Chooses an item by its text, in either case and with or without the colon at its end.
  void Choose(const std::string& label, const std::string& item);
  /// Chooses the item in that place.
  void ChooseAt(const std::string& label, std::size_t place);
  void ClickRow(const std::string& label, std::size_t row);
  /// The control with that label, for looking at. Refused where there is none.
  template <class Kind>
  Kind& Find(const std::string& label) {
    return dynamic_cast<Kind&>(Control(label));
  }

 private:
  bool IsSheet() const;
  platform::ui::Form& Front();
  platform::ui::Control& Control(const std::string& label);
  platform::ui::Control& Reachable(const std::string& label);
  void Type(const FieldOption& option, const std::string& label, const std::string& text);
  void ChooseOption(const std::string& label, const std::string& text);

  WindowOperator& desktop_;
  platform::ui::Modal& modal_;
  desktops::Person& person_;
};

}  // namespace console_operator
