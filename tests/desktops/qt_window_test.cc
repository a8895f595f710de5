// SPDX-License-Identifier: MIT
#include "tests/desktops/qt_window_test.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>
#include <deque>
#include <new>

#include "desktops/qt/canvas_adapter.h"
#include "desktops/qt/cut_controls.h"
#include "desktops/qt/guard.h"
#include "desktops/qt/help_popup.h"
#include "platform/ui/edit.h"
#include "platform/ui/file_dialog.h"
#include "platform/ui/lists.h"
#include "platform/ui/property_sheet.h"
#include "platform/ui/spin.h"

namespace desktops::qt {
namespace {

using namespace platform::ui;

/// One control of every kind that a value can be changed in.
class FullDialog : public ReportingDialog {
 public:
  FullDialog() {
    list.SetOnDoubleClick([] { throw std::bad_alloc(); });
    seconds.SetDigitsOnly(true);
    SetLayout(Column({Row({Over(name), Over(note)}), Row({Field(seconds), Bare(spin)}), Field(box),
                      Field(mode), Field(combo), Over(list), Over(report)}));
  }

  Edit name{*this, 1, "&Name:"};
  Edit note{*this, 2, "N&ote:"};
  Edit seconds{*this, 3, "&Seconds:"};
  Spin spin{*this, 4, seconds, true};
  CheckBox box{*this, 5, "&Box"};
  RadioGroup mode{*this, 6, "Mode", {"A", "B"}};
  ComboBox combo{*this, 7, "&Combo:", false, true};
  ListBox list{*this, 8, "&List:", false, true};
  ListView report{*this, 9, "&Report:"};

  void Fill() {
    name.SetText("Ann");
    seconds.SetText("60");
    box.SetChecked(true);
    mode.SetIndex(1);
    for (ItemList* items : {static_cast<ItemList*>(&combo), static_cast<ItemList*>(&list)}) {
      for (int i = 0; i < 50; ++i) items->Add("item\t" + std::to_string(i));
      items->Select(7);
    }
    report.AddColumn("Name", 20);
    for (int i = 0; i < 50; ++i) report.AddRow({"row"});
    report.SelectRow(3);
    report.FocusRow(3);
  }

 private:
  void OnInitDialog() override {
    spin.SetRange(0, 60);
    Fill();
  }
};

QLabel* LabelOf(const QWidget& widget) {
  for (auto* label : widget.window()->findChildren<QLabel*>()) {
    if (label->buddy() == &widget) return label;
  }
  return nullptr;
}

TEST_F(QtWindowTest, ShowingAndFillingReportNothing) {
  FullDialog dialog;
  Show(dialog, [&](Person& person) {
    dialog.Fill();
    Settle();
    EXPECT_EQ(person.Items("&List:").size(), 100u);
    EXPECT_EQ(person.Rows("&Report:").size(), 100u);
    EXPECT_EQ(person.Text("&List:"), "item\t7") << "tab stops make columns, which still read as one text";
    EXPECT_EQ(person.SelectedRow("&Report:"), 3);
  });
  EXPECT_EQ(dialog.changes, 0);
}

TEST_F(QtWindowTest, WhatIsCutIsFound) {
  FullDialog dialog;
  Show(dialog, [&](Person&) {
    EXPECT_THAT(Desk().CutControls(), testing::IsEmpty());
    Widget<QCheckBox>().setFixedWidth(20);
    Widget<QComboBox>().setFixedWidth(30);
    Settle();
    Widget<QLineEdit>().move(-5, 0);
    EXPECT_THAT(CutControls(*QApplication::activeModalWidget()),
                testing::UnorderedElementsAre("\"Box\" is too small", "\"Combo:\" has its text cut",
                                              "\"Name:\" stands outside"));
  });
}

TEST_F(QtWindowTest, FieldsAndButtonsHaveTheWidthsAskedFor) {
  class : public ReportingDialog {
   public:
    Edit code{*this, 1, "&Code:"};
    Button add{*this, 2, "Add"}, remove{*this, 3, "Remove every one of them"};
    void Arrange() {
      SetLayout(Column({Note("Room for a wide field."), Characters(5, Field(code)),
                        ButtonRow({Stretch(), Bare(add), Bare(remove)})}));
    }
  } dialog;
  dialog.Arrange();
  Show(dialog, [&](Person&) {
    const int character = Widget<QLineEdit>().fontMetrics().averageCharWidth();
    EXPECT_GE(Widget<QLineEdit>().width(), 5 * character);
    EXPECT_LT(Widget<QLineEdit>().width(), 10 * character);
    const auto buttons = QApplication::activeModalWidget()->findChildren<QPushButton*>();
    EXPECT_EQ(buttons[0]->width(), buttons[1]->width());
  });
}

TEST_F(QtWindowTest, AListBoxWithRoomIsNotScrolled) {
  for (const std::vector<int>& stops : {std::vector<int>{}, std::vector<int>{9, 40}}) {
    ReportingDialog dialog;
    ListBox list(dialog, 1, "&List:");
    if (!stops.empty()) list.SetTabStops(stops);
    list.Add(stops.empty() ? "one" : "one\ttwo\tthe last of three");
    Show(dialog, [&](Person&) {
      const auto& widget = Widget<QTreeWidget>();
      EXPECT_EQ(widget.horizontalScrollBar()->maximum(), 0);
      if (stops.empty()) return;
      EXPECT_EQ(widget.columnViewportPosition(2), 40 * widget.fontMetrics().averageCharWidth());
    });
  }
}

TEST_F(QtWindowTest, AListBoxShowsItsTextsUncut) {
  for (const char* text : {"AVAVAVAV. To Ty WAWAWA", "iiiiiiiiiiiiiiiii", "Größe", "Приёмник на складе",
                           "مودم الطابق الأول", "電話の取次ぎ", "📟📟📟📟"}) {
    ReportingDialog dialog;
    ListBox list(dialog, 1, "&List:", false, true);
    for (const std::string row : {"-", text, "-"}) list.Add(row + "\t" + row);
    Show(dialog, [&](Person&) {
      auto& widget = Widget<QTreeWidget>();
      for (int column : {0, 1}) {
        const int wanted = widget.sizeHintForIndex(widget.model()->index(1, column)).width();
        EXPECT_GE(widget.columnWidth(column), wanted) << text;
      }
    });
  }
}

TEST_F(QtWindowTest, ALabelIsHiddenAndDisabledWithItsControl) {
  FullDialog dialog;
  Show(dialog, [&](Person&) {
    QLabel* label = LabelOf(Widget<QLineEdit>());
    ASSERT_NE(label, nullptr);
    dialog.name.Enable(false);
    EXPECT_FALSE(label->isEnabled());
    dialog.name.Show(false);
    EXPECT_FALSE(label->isVisible());
    dialog.name.Show(true);
    EXPECT_TRUE(label->isVisible());
  });
}

TEST_F(QtWindowTest, AHiddenControlLeavesItsRoomToItsNeighbour) {
  FullDialog dialog;
  Show(dialog, [&](Person&) {
    const int shared = Widget<QLineEdit>().width();
    dialog.note.Show(false);
    Settle();
    EXPECT_GT(Widget<QLineEdit>().width(), shared * 3 / 2);
  });
}

TEST_F(QtWindowTest, AHandlerThatFailsEndsItsActionOnly) {
  FullDialog dialog;
  std::vector<std::string> reports;
  SetFailedHandlerReport([&](const char* what) { reports.emplace_back(what); });
  Show(dialog, [&](Person& person) {
    person.DoubleClickItem("&List:", "item\t1");
    EXPECT_EQ(person.Text("&List:"), "item\t1") << "the window is still there";
  });
  EXPECT_THAT(reports, testing::ElementsAre(std::bad_alloc().what()));
}

TEST_F(QtWindowTest, ArrowKeysInTheFieldStepItsSpin) {
  FullDialog dialog;
  Show(dialog, [&](Person& person) {
    person.Focus("&Seconds:");
    person.Press(Key::kUp);
    EXPECT_EQ(dialog.seconds.Text(), "0") << "it wraps";
    person.Press(Key::kDown);
    person.Press(Key::kDown);
    EXPECT_EQ(person.Text("&Seconds:"), "59");
  });
  EXPECT_EQ(dialog.changes, 3);
}

TEST_F(QtWindowTest, HelpIsAskedByAClickToo) {
  FullDialog dialog;
  Show(dialog, [&](Person&) {
    QWidget& field = Widget<QLineEdit>();
    QHelpEvent click(QEvent::WhatsThis, QPoint(2, 2), field.mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(&field, &click);
  });
  ASSERT_EQ(dialog.help.size(), 1u);
  EXPECT_EQ(dialog.help[0].kind, HelpEvent::Kind::kContextMenu);
  EXPECT_EQ(dialog.help[0].control, &dialog.name);
}

/// Scrolls by whole steps, whatever the bar does.
class StepCanvas : public Canvas {
 public:
  using Canvas::Canvas;
  void OnPaint(Painter& painter) override { painter.Fill({0, 0, 10, 10}, SystemColor::kHighlight); }
  void OnScroll(Scroll what, int) override {
    scrolls.push_back(what);
    if (!stays) SetScroll(ScrollPosition() + 2, 9, 4);
  }
  bool stays = false;
  std::vector<Scroll> scrolls;
};

TEST_F(QtWindowTest, ACanvasPaintsAndDecidesItsScrolling) {
  ReportingDialog dialog;
  StepCanvas canvas(dialog, 1, "Strip");
  canvas.SetScroll(0, 9, 4);
  Show(dialog, [&](Person&) {
    auto& widget = Widget<CanvasWidget>();
    const QImage picture = widget.viewport()->grab().toImage();
    EXPECT_EQ(picture.pixelColor(5, 5), widget.palette().color(QPalette::Highlight));
    EXPECT_EQ(picture.pixelColor(20, 5), widget.palette().color(QPalette::Base));
    EXPECT_EQ(canvas.Width(), widget.viewport()->width());
    QScrollBar* bar = widget.horizontalScrollBar();
    EXPECT_EQ(bar->maximum(), 6) << "ten steps, four of them in view";
    bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_EQ(bar->value(), 2) << "where the canvas said, not one step on";
    bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(bar->value(), 4);
    canvas.stays = true;
    bar->triggerAction(QAbstractSlider::SliderPageStepSub);
    EXPECT_EQ(bar->value(), 4);
  });
  EXPECT_THAT(canvas.scrolls, testing::ElementsAre(Canvas::Scroll::kLineRight, Canvas::Scroll::kPageRight,
                                                   Canvas::Scroll::kPageLeft));
}

TEST_F(QtWindowTest, AReportKnowsWhichRowsAreInView) {
  ReportingDialog dialog;
  ListView report(dialog, 1, "&Report:");
  report.AddColumn("Name", 20);
  Show(dialog, [&](Person&) {
    report.AddRow({"one row, which needs no scroll bar"});
    Settle();
    EXPECT_GT(report.RowsPerPage(), 2);
    EXPECT_LT(report.RowsPerPage(), 50);
    for (int i = 1; i < 50; ++i) report.AddRow({"row"});
    Settle();
    report.FocusRow(49);
    EXPECT_EQ(report.FirstVisibleRow(), 50 - report.RowsPerPage());
  });
}

/// Sees which tab is in front while it is asked to let go.
class HoldingPage : public PropertyPage {
 public:
  HoldingPage() : PropertyPage("Held") {}
  bool OnKillActive() override {
    in_front = QApplication::activeModalWidget()->findChild<QTabWidget*>()->currentIndex();
    return false;
  }
  Edit field{*this, 1, "&Field:"};
  int in_front = -1;
};

TEST_F(QtWindowTest, ATabStaysInFrontWhileItsPageDecides) {
  HoldingPage held;
  PropertyPage other("Other");
  PropertySheet sheet("Sheet", nullptr);
  sheet.AddPage(held);
  sheet.AddPage(other);
  Desk().script.ExpectWindow("Sheet", [&](Person& person) {
    person.SelectTab("Other");
    EXPECT_EQ(Widget<QTabWidget>().currentIndex(), 0);
    person.Press("Cancel");
  });
  sheet.RunModal();
  EXPECT_EQ(held.in_front, 0);
}

TEST_F(QtWindowTest, AWizardShowsWhatEnterPresses) {
  PropertyPage page("Page");
  PropertySheet wizard("Wizard", nullptr);
  wizard.AddPage(page);
  wizard.SetWizardMode();
  const auto shown_default = [] {
    for (auto* button : QApplication::activeModalWidget()->findChildren<QPushButton*>()) {
      if (button->isDefault() && button->isVisible()) return button->text().toStdString();
    }
    return std::string();
  };
  Desk().script.ExpectWindow("Wizard", [&](Person& person) {
    EXPECT_EQ(shown_default(), "&Next >");
    wizard.SetWizardButtons(kWizardBack | kWizardFinish);
    EXPECT_EQ(shown_default(), "Finish");
    for (auto* button : QApplication::activeModalWidget()->findChildren<QPushButton*>())
      if (button->text() == "Cancel") button->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(shown_default(), "Cancel") << "the one with the focus is what Enter presses";
    person.Press("Cancel");
  });
  wizard.RunModal();
}

TEST_F(QtWindowTest, ALetterFindsAnItemWhoseNameStandsInBrackets) {
  ReportingDialog dialog;
  platform::ui::ListBox list(dialog, 1, "&Fields:");
  for (const char* text : {"<Alert Time>", "<Severity>", "<User Name>"}) list.Add(text);
  Show(dialog, [&](Person&) {
    QTest::keyClick(&Widget<QTreeWidget>(), Qt::Key_U);
    EXPECT_EQ(list.Current(), 2);
    QTest::keyClick(&Widget<QTreeWidget>(), Qt::Key_X);
    EXPECT_EQ(list.Current(), 2) << "nothing begins so";
  });
}

TEST_F(QtWindowTest, ALetterFindsTheNextRowThatBeginsWithIt) {
  ReportingDialog dialog;
  platform::ui::ListView rows(dialog, 1, "&Rows:");
  rows.AddColumn("Name", 40);
  for (const char* name : {"Alpha", "beta", "Bravo"}) rows.AddRow({name});
  Show(dialog, [&](Person&) {
    for (const int expected : {1, 2, 1}) {
      QTest::keyClick(&Widget<QTreeWidget>(), Qt::Key_B);
      EXPECT_EQ(rows.SelectedRow(), expected);
    }
  });
  EXPECT_EQ(dialog.changes, 3);
}

class TallDialog : public ReportingDialog {
 public:
  TallDialog() {
    LayoutNode column = Column({});
    for (int i = 0; i < 60; ++i)
      column.children.push_back(Field(fields.emplace_back(*this, i + 1, "Field " + std::to_string(i))));
    SetLayout(column);
  }
  std::deque<platform::ui::Edit> fields;
};

TEST_F(QtWindowTest, AWindowLargerThanTheScreenScrollsToWhereTheKeyboardIs) {
  TallDialog dialog;
  Show(dialog, [&](Person& person) {
    const QWidget& window = *QApplication::activeModalWidget();
    EXPECT_LE(window.height(), window.screen()->availableSize().height());
    person.Focus("Field 59");
    const QWidget& field = *QApplication::focusWidget();
    EXPECT_TRUE(window.rect().contains(field.mapTo(&window, field.rect().center())));
    person.Type("Field 59", "reached");
  });
  EXPECT_EQ(dialog.fields.back().Text(), "reached");
}

TEST_F(QtWindowTest, HelpStandsWholeOnTheScreenUntilAKeyIsPressed) {
  ReportingDialog dialog;
  Show(dialog, [&](Person&) {
    const QRect screen = QApplication::primaryScreen()->availableGeometry();
    const QString text = QString("outgoing ").repeated(60);
    auto* popup = new HelpPopup(text, QApplication::activeModalWidget());
    popup->ShowBeside(QRect(screen.bottomRight() - QPoint(5, 5), QSize(4, 4)));
    constexpr int kFrame = 2;  // which the offscreen screen puts around every window
    EXPECT_TRUE(screen.adjusted(0, 0, kFrame, kFrame).contains(popup->geometry()));
    const QRect needed = popup->fontMetrics().boundingRect(popup->contentsRect(), Qt::TextWordWrap, text);
    EXPECT_LE(needed.height(), popup->height());
    QPointer<HelpPopup> shown(popup);
    QTest::keyClick(popup, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(shown.isNull());
  });
}

/// Keeps the names it hears of.
class ListeningFileDialog : public FileDialog {
 public:
  ListeningFileDialog() : FileDialog(nullptr) { title = "Open"; }
  void OnFileHighlighted(const std::string& path) override { heard.push_back(path); }
  void OnLayout(const Rect& whole) override { width = whole.width; }
  std::vector<std::string> heard;
  int width = 0;
};

TEST_F(QtWindowTest, AFileThatIsClickedIsHighlightedAndASizeIsTold) {
  QTemporaryDir folder;
  const QString path = folder.filePath("sound.wav");
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  ListeningFileDialog dialog;
  dialog.initial_directory = folder.path().toStdString();
  Desk().script.ExpectFileDialog("Open", "", [&](Person&) {
    auto& list = *QApplication::activeModalWidget()->findChild<QListView*>("listView");
    ASSERT_TRUE(QTest::qWaitFor([&] { return list.model()->rowCount(list.rootIndex()) == 1; }));
    list.setCurrentIndex(list.model()->index(0, 0, list.rootIndex()));
    QApplication::activeModalWidget()->resize(901, 500);
    Settle();
    EXPECT_EQ(dialog.width, 901);
  });
  EXPECT_EQ(dialog.RunModal(), kCancel);
  EXPECT_THAT(dialog.heard, testing::ElementsAre(path.toStdString()));
}

TEST_F(QtWindowTest, SleepingRunsWhatWasPosted) {
  QtDesktop awake;
  bool ran = false;
  awake.Post([&] { ran = true; });
  QElapsedTimer clock;
  clock.start();
  awake.Sleep(30);
  EXPECT_TRUE(ran);
  EXPECT_GE(clock.elapsed(), 30);
}

TEST_F(QtWindowTest, SmallPicturesAreIconsAndLargeOnesAreNot) {
  const QString path =
      QDir::temp().filePath(QString("picture-%1.png").arg(QCoreApplication::applicationPid()));
  for (const auto& [size, count] : {std::pair{256, 1u}, std::pair{257, 0u}}) {
    QImage image(size, 32, QImage::Format_ARGB32);
    image.fill(0x80FF0000u);
    ASSERT_TRUE(image.save(path));
    const std::vector<Bitmap> icons = Desk().ExtractIcons(path.toStdString(), 10);
    ASSERT_EQ(icons.size(), count) << size;
    for (const Bitmap& icon : icons) EXPECT_EQ(icon.Pixel(255, 31), 0x80FF0000u);
  }
  EXPECT_TRUE(Desk().ExtractIcons(path.toStdString() + ".missing", 10).empty());
  QFile::remove(path);
}

}  // namespace
}  // namespace desktops::qt
