// SPDX-License-Identifier: MIT
#include "console/alertconsole_screenshots.h"

#include "companions/dbconfig/service_types.h"
#include "console/alertconsole_tour.h"
#include "console/alertconsole_window.h"

namespace alertconsole {
namespace {

QString NameOf(std::uint32_t record_type) {
  const dbconfig::ServiceType* type = dbconfig::FindServiceType(record_type);
  return type != nullptr ? QString(type->key) : QString();
}

/// The first service of each type.
void VisitSheets(AlertingLibrary& library, MainWindow& window, Tour& tour) {
  std::set<QString> visited;
  for (int index = 0; index < library.GetCount(); ++index) {
    const QString name = NameOf(library.GetInfo(index)->recordType);
    if (name.isEmpty() || !visited.insert(name).second) continue;
    tour.Visit(name, [&] { window.OpenSheet(index); });
  }
  if (visited.empty()) tour.Fail("there are no services; run \"alertctl init\"");
}

}  // namespace

int WriteScreenshots(AlertingLibrary& library, const QString& folder) {
  Tour tour(folder);
  MainWindow window(library);
  window.show();
  window.ShowServices();
  tour.Take(window, "console");
  VisitSheets(library, window, tour);
  return tour.Failed() ? 1 : 0;
}

}  // namespace alertconsole
