// SPDX-License-Identifier: MIT
#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QPushButton>

#include "desktops/qt/control_adapter.h"

namespace desktops::qt {

class StaticTextAdapter : public ControlAdapter {
 public:
  StaticTextAdapter(platform::ui::StaticText& model, QWidget* parent);

 private:
  void Refresh(platform::ui::Change) override {}
  void RefreshLabel() override;

  QLabel* text_;
};

class ButtonAdapter : public ControlAdapter {
 public:
  ButtonAdapter(platform::ui::Button& model, QWidget* parent);

 private:
  void Refresh(platform::ui::Change change) override;
  void RefreshLabel() override;
  void ShowPicture();

  platform::ui::Button& model_;
  QPushButton* button_;
};

class CheckBoxAdapter : public ControlAdapter {
 public:
  CheckBoxAdapter(platform::ui::CheckBox& model, QWidget* parent);

 private:
  void Refresh(platform::ui::Change change) override;
  void RefreshLabel() override;

  platform::ui::CheckBox& model_;
  QCheckBox* box_;
};

/// A framed box with the label as its caption around the options; the options alone where there is no label or
/// it stands on their left.
class RadioGroupAdapter : public ControlAdapter {
 public:
  RadioGroupAdapter(platform::ui::RadioGroup& model, QWidget* parent);

  QWidget* FirstFocus() const override;
  QWidget* LastFocus() const override;
  QWidget* LabelBuddy() const override;

 private:
  void Refresh(platform::ui::Change change) override;
  void RefreshLabel() override;
  void ShowChoice();

  platform::ui::RadioGroup& model_;
  QButtonGroup* buttons_;
};

}  // namespace desktops::qt
