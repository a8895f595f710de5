// SPDX-License-Identifier: MIT
// How fast the library's windows open and its longest lists fill on the Qt desktop, against a bare toolkit window or list
// with the same contents in the same run.
//
//   window_bench [repetitions]
#include <QtWidgets>

#include "alerting/api/load.h"
#include "alerting/frame/app.h"
#include "alerting/services/service_list.h"
#include "bench/measure.h"
#include "companions/alertstore/stores.h"
#include "desktops/qt/qt_desktop.h"
#include "platform/ui/dialog.h"
#include "platform/ui/lists.h"

using namespace alerting;  // NOLINT
using namespace bench;     // NOLINT

namespace {

int repetitions = 15;

/// A site with one service of each type, in a directory of its own.
class Site {
 public:
  Site() : directory_((std::filesystem::temp_directory_path() / "window-bench-XXXXXX").string()) {
    Require(mkdtemp(directory_.data()) != nullptr, "cannot make a directory");
    setenv("ALERTING_DATA", directory_.c_str(), 1);
    const std::string init = std::string(ALERTCTL) + " init >/dev/null";
    Require(std::system(init.c_str()) == 0, "cannot set the site up");
    Require(Load() && TheApp().OpenStores() == kStoresOpened, "cannot open the stores");
    TheApp().EnsureStoresOpen();
    Require(TheServices().Read(), "cannot read the services");
  }
  ~Site() {
    TheApp().CloseStores();
    Unload();
    std::filesystem::remove_all(directory_);
  }

 private:
  std::string directory_;
};

/// What a window shows, so that it can be built again from plain widgets.
struct Recipe {
  QByteArray kind;
  QString text;
  QRect place;
  std::vector<QStringList> rows;
  std::vector<Recipe> parts;
};

template <class Widget>
bool Is(const QWidget& widget) {
  return qobject_cast<const Widget*>(&widget) != nullptr;
}

Recipe RecipeOf(const QWidget& widget) {
  Recipe recipe{"widget", {}, widget.geometry(), {}, {}};
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
    recipe.kind = Is<QCheckBox>(widget) ? "check" : Is<QRadioButton>(widget) ? "radio" : "button";
    recipe.text = button->text();
  } else if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    recipe.kind = "label";
    recipe.text = label->text();
  } else if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
    recipe.kind = "line";
    recipe.text = line->text();
  } else if (Is<QPlainTextEdit>(widget)) {
    recipe.kind = "text";
  } else if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
    recipe.kind = "combo";
    for (int i = 0; i < combo->count(); ++i) recipe.rows.push_back({combo->itemText(i)});
  } else if (const auto* tree = qobject_cast<const QTreeWidget*>(&widget)) {
    recipe.kind = "tree";
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
      QStringList cells;
      for (int column = 0; column < tree->columnCount(); ++column)
        cells << tree->topLevelItem(i)->text(column);
      recipe.rows.push_back(cells);
    }
  } else if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) {
    recipe.kind = "group";
    recipe.text = group->title();
  }
  const bool has_own_parts = recipe.kind == "widget" || recipe.kind == "group";
  for (const QObject* child : widget.children()) {
    const auto* part = qobject_cast<const QWidget*>(child);
    if (has_own_parts && part != nullptr && part->isVisibleTo(&widget))
      recipe.parts.push_back(RecipeOf(*part));
  }
  return recipe;
}

QWidget* Make(const Recipe& recipe, QWidget* parent) {
  if (recipe.kind == "check") return new QCheckBox(recipe.text, parent);
  if (recipe.kind == "radio") return new QRadioButton(recipe.text, parent);
  if (recipe.kind == "button") return new QPushButton(recipe.text, parent);
  if (recipe.kind == "label") return new QLabel(recipe.text, parent);
  if (recipe.kind == "line") return new QLineEdit(recipe.text, parent);
  if (recipe.kind == "text") return new QPlainTextEdit(parent);
  if (recipe.kind == "group") return new QGroupBox(recipe.text, parent);
  if (recipe.kind == "combo") {
    auto* combo = new QComboBox(parent);
    for (const QStringList& row : recipe.rows) combo->addItem(row.first());
    return combo;
  }
  if (recipe.kind == "tree") {
    auto* tree = new QTreeWidget(parent);
    for (const QStringList& row : recipe.rows) new QTreeWidgetItem(tree, row);
    return tree;
  }
  return new QWidget(parent);
}

void Build(const Recipe& recipe, QWidget* parent) {
  QWidget* widget = Make(recipe, parent);
  widget->setGeometry(recipe.place);
  for (const Recipe& part : recipe.parts) Build(part, widget);
}

/// Shows a plain window as the recipe says, and takes it down.
void ShowBare(const Recipe& recipe) {
  QDialog window;
  window.resize(recipe.place.size());
  for (const Recipe& part : recipe.parts) Build(part, &window);
  QTimer::singleShot(0, &window, &QDialog::reject);
  window.exec();
}

/// Opens a service's sheet as the console does and cancels it as soon as it stands there.
void ShowSheet(CNtfyService& service, Recipe* recipe) {
  const QObject while_open;
  QTimer::singleShot(0, &while_open, [recipe] {
    QWidget* front = QApplication::activeModalWidget();
    if (front == nullptr) return;
    if (recipe != nullptr) *recipe = RecipeOf(*front);
    front->close();
  });
  service.PropertySheet(nullptr);
}

void Report(const std::string& title, const std::function<void()>& ours, const std::function<void()>& bare) {
  std::vector<double> times[2];
  ours();
  bare();
  for (int i = 0; i < repetitions; ++i) {
    times[0].push_back(Milliseconds(ours));
    times[1].push_back(Milliseconds(bare));
  }
  const Timing our_time = Summarise(times[0]), bare_time = Summarise(times[1]);
  std::printf("%-44s %9.2f %9.2f %8.2f\n", title.c_str(), our_time.median, bare_time.median,
              our_time.median / bare_time.median);
}

void CompareSheets() {
  for (int i = 0; i < TheServices().GetCount(); ++i) {
    CNtfyService& service = *TheServices().GetAt(i);
    Recipe recipe;
    ShowSheet(service, &recipe);
    if (recipe.parts.empty()) continue;
    Report(
        "sheet of " + service.Name(), [&] { ShowSheet(service, nullptr); }, [&] { ShowBare(recipe); });
  }
}

struct ListDialog : platform::ui::Dialog {
  ListDialog() : Dialog(nullptr, "List") {}
  platform::ui::ListBox box{*this, 1, "&List:"};
};

/// Fills a list in a window that is shown; `fill` reads the records through the library.
void FillShown(const std::function<void(ListDialog&)>& fill) {
  ListDialog dialog;
  QTimer::singleShot(0, [&] {
    fill(dialog);
    dialog.EndDialog(platform::ui::kCancel);
  });
  dialog.RunModal();
}

void FillBare(const QStringList& texts) {
  QDialog window;
  auto* list = new QListWidget(&window);
  QTimer::singleShot(0, &window, [&] {
    for (const QString& text : texts) list->addItem(text);
    window.reject();
  });
  window.exec();
}

void CompareList(const std::string& title, const std::function<void(ListDialog&)>& fill) {
  QStringList texts;
  FillShown([&](ListDialog& dialog) {
    fill(dialog);
    for (int i = 0; i < dialog.box.Count(); ++i) texts << QString::fromStdString(dialog.box.ItemText(i));
  });
  Report(
      std::to_string(texts.size()) + " " + title, [&] { FillShown(fill); }, [&] { FillBare(texts); });
}

CNtfyService& ServiceOf(std::uint32_t code) {
  for (int i = 0; i < TheServices().GetCount(); ++i)
    if (TheServices().GetAt(i)->Code() == code) return *TheServices().GetAt(i);
  Require(false, "a service is missing");
  std::abort();
}

void AddUsers(CNtfyService& service, int count) {
  for (int i = 0; i < count; ++i) {
    ALRTUSRINSTSERV link{};
    ALRTUSR_SMTPSERVICEREC user{};
    user.userId = link.userId = GUID::Generate();
    link.serviceId = service.ServiceId();
    user.userName.Assign("User " + std::to_string(i));
    GUID id{}, user_id{};
    Require(UserLinkStore().DBAlertRecAdd(link, id, user, user_id) == kOk, "cannot add a user");
  }
}

void CompareLists() {
  CNtfyService& mail = ServiceOf(kTypeSmtp);
  AddUsers(mail, 10000);
  CompareList("users of a service", [&](ListDialog& dialog) { mail.FillUserList(dialog.box); });
}

}  // namespace

int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  QApplication application(argc, argv);
  if (argc > 1) repetitions = std::atoi(argv[1]);
  Require(repetitions > 0, "usage: window_bench [repetitions]");
  desktops::QtDesktop desktop;
  const Site site;
  std::printf("%-44s %9s %9s %8s\n", "milliseconds, median", "library", "bare", "ratio");
  CompareSheets();
  CompareLists();
}
