// SPDX-License-Identifier: MIT
#include <QClipboard>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QTest>

#include "desktops/qt/edit_view.h"
#include "platform/ui/edit.h"
#include "tests/desktops/qt_window_test.h"

namespace desktops::qt {
namespace {

using platform::ui::Edit;

/// Refuses the letter x, and keeps what came as a paste.
class PickyEdit : public Edit {
 public:
  using Edit::Edit;
  void OnChar(char32_t c) override {
    if (c != U'x') Edit::OnChar(c);
  }
  void OnPaste(std::string_view text) override {
    pasted.emplace_back(text);
    Edit::OnPaste(text);
  }
  std::vector<std::string> pasted;
};

class EditDialog : public ReportingDialog {
 public:
  explicit EditDialog(bool multi_line) { edit.SetMultiLine(multi_line); }
  PickyEdit edit{*this, 1, "&Text:"};
};

/// Each way in is tried on the one-line and on the multi-line widget.
class QtEditTest : public QtWindowTest, public testing::WithParamInterface<bool> {
 protected:
  void ShowWith(const char* text, const std::function<void(QWidget&)>& look) {
    dialog_.edit.SetText(text);
    Show(dialog_, [&](Person& person) {
      person.Focus("&Text:");
      dialog_.edit.SetSelection(0, 0);
      look(*QApplication::focusWidget());
    });
  }
  static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }

  EditDialog dialog_{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Lines, QtEditTest, testing::Values(false, true),
                         [](const auto& info) { return info.param ? "Multi" : "Single"; });

TEST_P(QtEditTest, AComposedTextPassesTheFilter) {
  ShowWith("", [&](QWidget& widget) {
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("ax\u00e9"));
    QApplication::sendEvent(&widget, &event);
    EXPECT_EQ(dialog_.edit.Text(), "a\u00e9");
    EXPECT_EQ(dynamic_cast<EditView&>(widget).Shown(), QStringLiteral("a\u00e9"));
  });
}

TEST_P(QtEditTest, ACompositionLeavesTheSelectedTextAlone) {
  ShowWith("kept", [&](QWidget& widget) {
    dialog_.edit.SetSelection(0, 4);
    QInputMethodEvent event(QStringLiteral("ni"), {});
    QApplication::sendEvent(&widget, &event);
    EXPECT_EQ(dynamic_cast<EditView&>(widget).Shown(), QStringLiteral("kept"));
  });
}

TEST_P(QtEditTest, ADropIsAPasteWhereItFalls) {
  ShowWith("ab", [&](QWidget& widget) {
    QMimeData data;
    data.setText(QStringLiteral("dropped"));
    auto* area = qobject_cast<QAbstractScrollArea*>(&widget);
    QWidget* target = area != nullptr ? area->viewport() : &widget;
    const QPoint place(target->width() - 5, 10);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &drop);
    EXPECT_EQ(dialog_.edit.Text(), "abdropped");
  });
  EXPECT_THAT(dialog_.edit.pasted, testing::ElementsAre("dropped"));
  EXPECT_EQ(dialog_.changes, 1);
}

TEST_P(QtEditTest, TheMenuActsThroughTheModel) {
  ShowWith("abc", [&](QWidget& widget) {
    dialog_.edit.SetSelection(1, 2);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1), widget.mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(&widget, &event);
    auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    QStringList captions;
    for (QAction* action : menu->actions()) captions << action->text();
    ASSERT_TRUE(captions.contains("&Delete")) << captions.join('|').toStdString();
    menu->actions().at(captions.indexOf("&Delete"))->trigger();
    menu->close();
    EXPECT_EQ(dialog_.edit.Text(), "ac");
  });
}

TEST_P(QtEditTest, AWordIsDeletedAsASelection) {
  ShowWith("one two", [&](QWidget&) {
    dialog_.edit.SetSelection(7, 7);
    Key(Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(dialog_.edit.Text(), "one ");
  });
  EXPECT_EQ(dialog_.changes, 1);
}

TEST_P(QtEditTest, KeysThatTheWidgetKnowsMoreOfDoNothing) {
  ShowWith("one two", [&](QWidget& widget) {
    Key(Qt::Key_K, Qt::ControlModifier);
    Key(Qt::Key_Y, Qt::ControlModifier);
    Key(Qt::Key_Q, Qt::AltModifier);
    EXPECT_EQ(dialog_.edit.Text(), "one two");
    EXPECT_EQ(dynamic_cast<EditView&>(widget).Shown(), QStringLiteral("one two"));
  });
  EXPECT_EQ(dialog_.changes, 0);
}

TEST_P(QtEditTest, ShiftAndArrowSelectWithTheCaretAhead) {
  ShowWith("abc", [&](QWidget&) {
    dialog_.edit.SetSelection(2, 2);
    Key(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(dialog_.edit.Selection(), (std::pair<std::size_t, std::size_t>{1, 2}));
    EXPECT_TRUE(dialog_.edit.CaretAtStart());
  });
}

TEST_P(QtEditTest, WhatTheWidgetDoesByItselfIsTakenBack) {
  ShowWith("kept", [&](QWidget& widget) {
    dynamic_cast<EditView&>(widget).Show("changed behind the model");
    Settle();
    EXPECT_EQ(dynamic_cast<EditView&>(widget).Shown(), QStringLiteral("kept"));
  });
  EXPECT_EQ(dialog_.edit.Text(), "kept");
}

}  // namespace
}  // namespace desktops::qt
