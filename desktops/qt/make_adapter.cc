// SPDX-License-Identifier: MIT
#include <stdexcept>

#include "desktops/qt/button_adapters.h"
#include "desktops/qt/canvas_adapter.h"
#include "desktops/qt/combo_adapter.h"
#include "desktops/qt/edit_adapter.h"
#include "desktops/qt/list_box_adapter.h"
#include "desktops/qt/list_view_adapter.h"
#include "desktops/qt/spin_adapter.h"

namespace desktops::qt {
namespace {

/// An `Adapter` when the control is a `Model`, else null.
template <typename Model, typename Adapter>
std::unique_ptr<ControlAdapter> Try(platform::ui::Control& control, QWidget* parent) {
  auto* model = dynamic_cast<Model*>(&control);
  return model != nullptr ? std::make_unique<Adapter>(*model, parent) : nullptr;
}

}  // namespace

std::unique_ptr<ControlAdapter> MakeAdapter(platform::ui::Control& control, QWidget* parent) {
  using namespace platform::ui;
  for (const auto make :
       {Try<Edit, EditAdapter>, Try<Button, ButtonAdapter>, Try<CheckBox, CheckBoxAdapter>,
        Try<StaticText, StaticTextAdapter>, Try<ComboBox, ComboAdapter>, Try<ListBox, ListBoxAdapter>,
        Try<ListView, ListViewAdapter>, Try<RadioGroup, RadioGroupAdapter>, Try<Spin, SpinAdapter>,
        Try<Canvas, CanvasAdapter>}) {
    if (auto adapter = make(control, parent)) return adapter;
  }
  throw std::logic_error("a kind of control that no adapter shows");
}

}  // namespace desktops::qt
