// SPDX-License-Identifier: MIT
#include "desktops/scripted/control_search.h"

#include <algorithm>

namespace desktops {

using platform::ui::Button;
using platform::ui::Control;
using platform::ui::Form;
using platform::ui::LayoutNode;
using platform::ui::PlainLabel;
using platform::ui::SheetButton;
using platform::ui::Spin;

namespace {

// The nodes from `node` down to the one of `control`; empty where it is not below.
std::vector<const LayoutNode*> PathTo(const LayoutNode& node, const Control& control) {
  if (node.control == &control) return {&node};
  for (const LayoutNode& child : node.children) {
    std::vector<const LayoutNode*> path = PathTo(child, control);
    if (path.empty()) continue;
    path.insert(path.begin(), &node);
    return path;
  }
  return {};
}

Button* ButtonIn(const LayoutNode& node, const std::string& label) {
  auto* button = dynamic_cast<Button*>(node.control);
  if (button != nullptr && button->Label() == label) return button;
  for (const LayoutNode& child : node.children) {
    if (Button* found = ButtonIn(child, label)) return found;
  }
  return nullptr;
}

}  // namespace

Control* FindControl(const Form& form, const std::string& label) {
  Control* hidden = nullptr;
  for (Control* control : form.Controls()) {
    if (control->Label() != label) continue;
    if (control->Visible()) return control;
    if (hidden == nullptr) hidden = control;
  }
  return hidden;
}

Button* FindButtonBeside(const Form& form, const Control& control, const std::string& button) {
  const std::vector<const LayoutNode*> path = PathTo(form.Layout(), control);
  for (auto node = path.rbegin(); node != path.rend(); ++node) {
    if ((*node)->kind != LayoutNode::Kind::kRow) continue;
    if (Button* found = ButtonIn(**node, button)) return found;
  }
  return nullptr;
}

Spin* FindSpin(const Form& form, const std::string& buddy_label) {
  for (Control* control : form.Controls()) {
    auto* spin = dynamic_cast<Spin*>(control);
    if (spin != nullptr && spin->Buddy().Label() == buddy_label) return spin;
  }
  return nullptr;
}

bool HasText(const LayoutNode& layout, const std::string& text) {
  if (!layout.text.empty() && layout.text == text) return true;
  return std::ranges::any_of(layout.children, [&](const LayoutNode& child) { return HasText(child, text); });
}

const std::vector<NamedSheetButton>& SheetButtons() {
  static const std::vector<NamedSheetButton> buttons = {
      {SheetButton::kBack, "< &Back"}, {SheetButton::kNext, "&Next >"},  {SheetButton::kFinish, "Finish"},
      {SheetButton::kOk, "OK"},        {SheetButton::kCancel, "Cancel"}, {SheetButton::kApply, "&Apply"}};
  return buttons;
}

std::optional<SheetButton> FindSheetButton(const std::string& label) {
  for (const NamedSheetButton& named : SheetButtons()) {
    if (PlainLabel(named.label) == PlainLabel(label)) return named.button;
  }
  return std::nullopt;
}

}  // namespace desktops
