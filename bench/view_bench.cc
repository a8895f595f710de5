// SPDX-License-Identifier: MIT
// How the console's views grow with their rows, each against a bare view of the toolkit with the same rows in the same run;
// and how long a service takes to be copied where there are few and where there are many.
//
// The bare view is what a program would write straight against the toolkit: a table of items, its own filter and sorting. Shown:
// from rows in memory to the first picture. Filtered: a text that one row in ten holds. Sorted: by the first column.
//
//   view_bench [repetitions]
#include <QApplication>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QStandardItemModel>
#include <filesystem>

#include "alerting/alerting.h"
#include "alerting/api/load.h"
#include "alerting/frame/app.h"
#include "alerting/services/service_list.h"
#include "bench/measure.h"
#include "companions/alertstore/console_users.h"
#include "companions/alertstore/stores.h"
#include "console/site/managers_file.h"
#include "console/site/starter.h"
#include "console/window/main_window.h"
#include "console/window/record_view.h"

using namespace bench;  // NOLINT
using alertconsole::RecordView;
using alertconsole::Row;

namespace {

constexpr double kViewAim = 2;

int repetitions = 5;

std::vector<Row> MakeRows(int count) {
  std::vector<Row> rows;
  for (int i = 0; i < count; ++i)
    rows.push_back({{platform::GUID::Generate(), {}},
                    {QString("Operator %1").arg((i * 7919) % count), QString::number(i % 10),
                     QString("group %1").arg(i % 10)}});
  return rows;
}

void Picture(QWidget& view) {
  view.resize(900, 600);
  view.show();
  view.grab();
}

/// The console's view.
class OurView {
 public:
  explicit OurView(const std::vector<Row>& rows)
      : view_("Rows", {{"User"}, {"Entries"}, {"Group"}}, nullptr) {
    view_.SetRows(rows);
    Picture(view_);
  }
  void Filter() { view_.Filter().setText("group 3"), view_.grab(); }
  void Sort() { view_.Table().sortByColumn(0, Qt::AscendingOrder), view_.grab(); }

 private:
  RecordView view_;
};

/// A view of the toolkit's own parts.
class BareView {
 public:
  explicit BareView(const std::vector<Row>& rows) {
    model_.setHorizontalHeaderLabels({"User", "Entries", "Group"});
    for (const Row& row : rows) {
      QList<QStandardItem*> items;
      for (const QString& cell : row.cells) items << new QStandardItem(cell);
      model_.appendRow(items);
    }
    shown_.setSourceModel(&model_);
    shown_.setFilterKeyColumn(-1);
    shown_.setSortCaseSensitivity(Qt::CaseInsensitive);
    table_.setModel(&shown_);
    table_.setRootIsDecorated(false);
    table_.setUniformRowHeights(true);
    Picture(table_);
  }
  void Filter() { shown_.setFilterFixedString("group 3"), table_.grab(); }
  void Sort() { shown_.sort(0), table_.grab(); }

 private:
  QStandardItemModel model_;
  QSortFilterProxyModel shown_;
  QTreeView table_;
};

struct Times {
  double shown, filtered, sorted;
};

template <class View>
Times Measure(const std::vector<Row>& rows) {
  std::vector<double> shown, filtered, sorted;
  for (int i = 0; i < repetitions; ++i) {
    std::unique_ptr<View> view;
    shown.push_back(Milliseconds([&] { view = std::make_unique<View>(rows); }));
    sorted.push_back(Milliseconds([&] { view->Sort(); }));
    filtered.push_back(Milliseconds([&] { view->Filter(); }));
  }
  return {Summarise(shown).median, Summarise(filtered).median, Summarise(sorted).median};
}

void Line(const char* what, std::size_t rows, double ours, double bare) {
  std::printf("%-9s %7zu rows  %9.2f ms  %6.2f us a row  %5.2f x bare  %s\n", what, rows, ours,
              1000 * ours / static_cast<double>(rows), ours / bare, ours / bare <= kViewAim ? "" : "MISSED");
}

void CompareViews() {
  for (const int count : {1'000, 10'000, 100'000}) {
    const std::vector<Row> rows = MakeRows(count);
    const Times ours = Measure<OurView>(rows), bare = Measure<BareView>(rows);
    Line("shown", rows.size(), ours.shown, bare.shown);
    Line("sorted", rows.size(), ours.sorted, bare.sorted);
    Line("filtered", rows.size(), ours.filtered, bare.filtered);
  }
}

double MedianCopy() {
  std::vector<double> times;
  for (int i = 0; i < 11; ++i) {
    const std::string name = "Copy " + std::to_string(DomainServiceGetCount());
    times.push_back(Milliseconds(
        [&] { Require(DomainServiceCopyService(0, name.c_str()) == 1, "cannot copy a service"); }));
  }
  return Summarise(times).median;
}

/// A set-up site in a directory of its own, with the library loaded on it.
class Site {
 public:
  Site() : directory_((std::filesystem::temp_directory_path() / "view-bench-XXXXXX").string()) {
    Require(mkdtemp(directory_.data()) != nullptr, "cannot make a directory");
    setenv("ALERTING_DATA", directory_.c_str(), 1);
    site::AddStarterData();
    Require(alerting::Load() && OpenDBs() <= site::kStoresWereOpen, "cannot open the stores");
  }
  ~Site() {
    CloseDBs();
    alerting::Unload();
    std::filesystem::remove_all(directory_);
  }

 private:
  std::string directory_;
};

void CompareCopies() {
  const Site site;
  const double few = MedianCopy();
  const int first = DomainServiceGetCount();
  while (DomainServiceGetCount() < 2'400)
    Require(DomainServiceCopyService(0, ("S" + std::to_string(DomainServiceGetCount())).c_str()) == 1,
            "cannot copy");
  std::printf("copy      %d services: %.2f ms, 2400 services: %.2f x that\n", first, few, MedianCopy() / few);
}

/// Adds services and users until there are that many of each.
void Fill(int count) {
  alertstore::CAlertNtfyServDB services;
  Require(services.DBOpen() == alertstore::kOk, "cannot open the services");
  site::Overview now;
  site::ReadOverview(now);
  for (auto i = static_cast<int>(now.services.size()); i < count; ++i) {
    alertstore::ALRTNTFYSERV service{};
    alertstore::ALRTSMTPSERVICEREC record{};
    platform::GUID id{}, record_id{};
    service.recordType = 5;
    service.name.Assign("Mail " + std::to_string(i));
    Require(services.DBAlertRecAdd(service, id, record, record_id) == alertstore::kOk,
            "cannot add a service");
  }
  for (auto i = static_cast<int>(now.users.size()); i < count; ++i)
    Require(alertstore::AddConsoleUser(platform::GUID::Generate(), "User " + std::to_string(i)) ==
                alertstore::kOk,
            "cannot add a user");
}

/// What the window does when somebody changed the site: the library reads its services again, the stores are read for the
/// views, and the views show them; then the alert managers' file is compared.
void MeasureRefresh() {
  const Site site;
  site::LibraryCalls calls;
#define ALERTING_EXPORT(result, name, arguments, bytes) calls.name = &::name;
#define ALERTING_PLAIN_EXPORT(result, name, arguments) calls.name = &::name;
#include "alerting/exports.def"
#undef ALERTING_EXPORT
#undef ALERTING_PLAIN_EXPORT
  alertconsole::MainWindow window(calls);
  window.show();
  for (const int count : {1'000, 10'000}) {
    Fill(count);
    std::vector<double> refreshed, compared;
    site::ManagersFile file;
    for (int i = 0; i < repetitions; ++i) {
      refreshed.push_back(Milliseconds([&] { window.ReadSite(), window.grab(); }));
      compared.push_back(Milliseconds([&] { file.Look(); }));
    }
    std::printf("refresh   %7d services and users  %9.2f ms, comparing the managers' file %9.2f ms\n", count,
                Summarise(refreshed).median, Summarise(compared).median);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc > 1) repetitions = std::max(1, std::atoi(argv[1]));
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  QApplication application(argc, argv);
  QLoggingCategory::setFilterRules("qt.qpa.*=false");
  CompareViews();
  CompareCopies();
  MeasureRefresh();
}
