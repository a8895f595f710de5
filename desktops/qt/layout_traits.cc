// SPDX-License-Identifier: MIT
#include "desktops/qt/layout_traits.h"

#include <algorithm>

#include "platform/ui/canvas.h"
#include "platform/ui/edit.h"
#include "platform/ui/form.h"
#include "platform/ui/lists.h"
#include "platform/ui/spin.h"

namespace desktops::qt {

using namespace platform::ui;
using Kind = LayoutNode::Kind;

namespace {

template <typename T>
bool Is(const Control& control) {
  return dynamic_cast<const T*>(&control) != nullptr;
}

bool IsWideControl(const Control& control) {
  if (const auto* edit = dynamic_cast<const Edit*>(&control)) return !edit->DigitsOnly();
  return !Is<Button>(control) && !Is<CheckBox>(control) && !Is<Spin>(control);
}

bool IsTallControl(const Control& control) {
  if (const auto* edit = dynamic_cast<const Edit*>(&control)) return edit->MultiLine();
  return Is<ListBox>(control) || Is<ListView>(control) || Is<Canvas>(control);
}

}  // namespace

bool CarriesLabel(const Control& control) {
  if (const auto* group = dynamic_cast<const RadioGroup*>(&control))
    return group->GetArrangement() != RadioGroup::Arrangement::kLabelLeft;
  return Is<Button>(control) || Is<CheckBox>(control) || Is<StaticText>(control) || Is<Spin>(control);
}

bool HasLabelOnLeft(const LayoutNode& node) {
  return node.kind == Kind::kField && !CarriesLabel(*node.control) && !node.control->Label().empty();
}

bool IsButton(const LayoutNode& node) { return node.control != nullptr && Is<Button>(*node.control); }

bool IsWide(const LayoutNode& node) {
  if (node.control != nullptr) return node.characters == 0 && IsWideControl(*node.control);
  if (node.kind == Kind::kNote || node.kind == Kind::kGroup) return true;
  return std::any_of(node.children.begin(), node.children.end(), IsWide);
}

bool IsTall(const LayoutNode& node) {
  if (node.control != nullptr) return IsTallControl(*node.control);
  const bool downwards =
      node.kind == Kind::kColumn || node.kind == Kind::kGroup || node.kind == Kind::kButtonColumn;
  return std::any_of(node.children.begin(), node.children.end(), [&](const LayoutNode& child) {
    return IsTall(child) || (downwards && child.kind == Kind::kStretch);
  });
}

Spin* SpinOf(const Control& control) {
  for (Control* other : control.OwnerForm().Controls()) {
    auto* spin = dynamic_cast<Spin*>(other);
    if (spin != nullptr && &spin->Buddy() == &control) return spin;
  }
  return nullptr;
}

LayoutNode DefaultLayout(const Form& form) {
  LayoutNode column = Column({}), buttons = Row({Stretch()});
  for (Control* control : form.Controls()) {
    (Is<Button>(*control) ? buttons : column).children.push_back(Field(*control));
  }
  column.children.push_back(std::move(buttons));
  return column;
}

}  // namespace desktops::qt
