// SPDX-License-Identifier: MIT
#include "console/window/screenshots.h"

#include <QDir>
#include <cstdio>

#include "companions/agentui/results_dialog.h"
#include "companions/ctxhelp/resource_directory.h"
#include "companions/dbconfig/service_types.h"
#include "console/window/laboratory_window.h"
#include "console/window/library.h"
#include "console/window/main_window.h"
#include "console/window/tour.h"

namespace alertconsole {
namespace {

constexpr std::size_t kPathBuffer = 4096;

QString NameOf(std::uint32_t record_type) {
  const dbconfig::ServiceType* type = dbconfig::FindServiceType(record_type);
  return type != nullptr ? QString(type->key) : QString();
}

/// The pictures of a tour, as files in a folder.
class Pictures {
 public:
  explicit Pictures(const QString& folder) : folder_(folder) {
    if (!QDir().mkpath(folder)) Fail("cannot make the folder " + folder);
  }

  void Take(QWidget& window, const QString& name) {
    const QString path = folder_.filePath(name + ".png");
    if (!window.grab().save(path)) return Fail("cannot write " + path);
    std::printf("%s\n", qPrintable(path));
  }
  void Fail(const QString& what) {
    failed = true;
    std::fprintf(stderr, "alertconsole: %s\n", qPrintable(what));
  }

  bool failed = false;

 private:
  QDir folder_;
};

/// The first service of each type; false when there is none.
bool VisitSheets(const site::Overview& site, MainWindow& window, Tour& tour) {
  std::set<QString> visited;
  for (const site::Service& service : site.services) {
    const QString name = NameOf(service.record_type);
    if (!name.isEmpty() && visited.insert(name).second)
      tour.Visit(name, [&] { window.OpenSheet(service.id); });
  }
  return !visited.empty();
}

/// Each view, and the windows that its commands open.
void VisitCommands(MainWindow& window, Tour& tour) {
  QString last;
  window.VisitCommands([&](const QString& page, QAction& command) {
    if (page != std::exchange(last, page) && page != "Tools")
      tour.Look(window, "console-" + page.toLower().replace(' ', '-'));
    const QString text = QString(command.text()).remove('&');
    if (!text.endsWith("...") || text == "Properties...") return;
    tour.Visit(text.chopped(3).toLower().replace(' ', '-'), [&] { command.trigger(); });
  });
}

/// What a pager that nobody answers comes to, and the window that "Correct..." then opens.
void VisitResults(MainWindow& window, Tour& tour) {
  constexpr std::uint32_t kNumericPager = 12;
  const auto& services = window.Site().services;
  const auto pager = std::ranges::find(services, kNumericPager, &site::Service::record_type);
  if (pager == services.end()) return;
  agentui::Report report;
  report.verdict = agentui::Report::Verdict::kNotReached;
  report.explanation = "The modem does not answer. Is it switched on, and attached to this port?";
  report.manager = "OFFICE";
  report.steps = {{"Find the recipient", "done", 0, "Night Operator: 5550177"},
                  {"Open the port", "done", 3, "/dev/ttyS0"},
                  {"Initialize the modem", "failed", 3004, "", "modems.comPort", pager->modem}};
  report.transcript = "> AT\\x0D\n> AT\\x0D\n";
  report.field = "modems.comPort";
  const agentui::TestSubject subject{pager->id, {}};
  tour.Visit("test-results", [&] { agentui::ShowTestResults(nullptr, report, subject); });
  tour.Visit("test-results-corrected", [&] { window.Open({report.field, pager->modem, subject}); });
}

/// The dialogs that no sheet opens. Icons are shown of the library's own icon file.
void VisitDialogs(AlertingLibrary& library, Tour& tour) {
  char path[kPathBuffer] = "";
  std::uint32_t icon = 0;
  tour.Visit("select-program", [&] { library.SelectProgFileDialog(nullptr, path); });
  tour.Visit("select-sound", [&] { library.SelectWAVFileDialog(nullptr, path); });
  (ctxhelp::ResourceDirectory() + "/icons/mail.ico").copy(path, sizeof(path) - 1);
  tour.Visit("select-icon", [&] { library.SelectIconFileDialog(nullptr, path, &icon); });
}

}  // namespace

int WriteScreenshots(AlertingLibrary& library, const QString& folder) {
  Pictures pictures(folder);
  Tour tour([&](QWidget& shown, const QString& name) { pictures.Take(shown, name); });
  MainWindow window(library);
  window.show();
  window.ReadSite();
  tour.Look(window, "console");
  if (!VisitSheets(site::Overview(window.Site()), window, tour))
    pictures.Fail("there are no services; run \"alertctl init\"");
  VisitCommands(window, tour);
  tour.Look(window.ShowLaboratory(), "laboratory");
  VisitResults(window, tour);
  VisitDialogs(library, tour);
  return pictures.failed ? 1 : 0;
}

}  // namespace alertconsole
