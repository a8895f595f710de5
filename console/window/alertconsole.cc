// SPDX-License-Identifier: MIT
// The alerting console: a window on the site's notification services.
#include <CLI/CLI.hpp>
#include <QApplication>
#include <QMessageBox>
#include <cstdio>
#include <cstdlib>
#include <optional>

#include "console/window/library.h"
#include "console/window/main_window.h"
#include "console/window/samples.h"
#include "console/window/screenshots.h"
#include "desktops/qt/offscreen.h"
#include "desktops/qt/qt_desktop.h"

namespace {

constexpr int kNoDisplay = 1, kWrongUsage = 2;  // the latter as alertctl answers it

struct Options {
  std::string data, library_path, screenshots;
};

bool IsSet(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr && *value != '\0';
}

// Pictures need no display to be shown on.
bool HasDisplay() { return IsSet("DISPLAY") || IsSet("WAYLAND_DISPLAY"); }

// The toolkit ends the program by a signal where it cannot open the display that was named.
void EndOnFatal(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type == QtDebugMsg || type == QtInfoMsg) return;
  std::fprintf(stderr, "alertconsole: %s\n", qPrintable(text));
  if (type == QtFatalMsg) std::_Exit(kNoDisplay);
}

int Run(const Options& options) {
  std::optional<alertconsole::SampleSite> samples;
  if (!options.screenshots.empty()) samples.emplace();
  alertconsole::AlertingLibrary library(site::LibraryPath(options.library_path));
  if (!options.screenshots.empty()) {
    return alertconsole::WriteScreenshots(library, QString::fromStdString(options.screenshots));
  }
  alertconsole::MainWindow window(library);
  window.show();
  window.ReadSite();
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  CLI::App command("Shows and edits the notification services of this site.", "alertconsole");
  command.add_option("--data", options.data, "Data directory (else ALERTING_DATA, else the user's own)");
  command.add_option("--library", options.library_path,
                     "The alerting library (else ALERTING_LIBRARY, else beside the console)");
  command.add_option("--screenshot-dir", options.screenshots,
                     "Write pictures of all windows there, on a copy of the site with examples, and exit");
  try {
    command.parse(argc, argv);
  } catch (const CLI::ParseError& wrong) {
    return command.exit(wrong) == 0 ? 0 : kWrongUsage;
  }
  if (!options.data.empty()) setenv("ALERTING_DATA", options.data.c_str(), 1);
  if (!options.screenshots.empty() && !HasDisplay()) setenv("QT_QPA_PLATFORM", "offscreen", 0);

  if (!HasDisplay() && !IsSet("QT_QPA_PLATFORM")) {
    std::fputs(
        "alertconsole: there is no display to show the window on (DISPLAY and WAYLAND_DISPLAY are not set). "
        "\"alertctl\" does the same work on a command line.\n",
        stderr);
    return kNoDisplay;
  }
  qInstallMessageHandler(EndOnFatal);
  QCoreApplication::setOrganizationName("alerting");
  QCoreApplication::setApplicationName("console");
  // Both find the icon that is installed for the desktop file: window managers by the name, others by the picture.
  QGuiApplication::setDesktopFileName("alertconsole");
  std::optional<desktops::qt::OffscreenScreen> screen(std::in_place);
  QApplication application(argc, argv);
  QApplication::setWindowIcon(QIcon::fromTheme("alertconsole"));
  screen.reset();
  desktops::QtDesktop desktop;
  const platform::Module console("Alerting Console");
  const platform::ModuleScope own_title(console);
  try {
    return Run(options);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "alertconsole: %s\n", failure.what());
    if (options.screenshots.empty()) QMessageBox::critical(nullptr, "Alerting Console", failure.what());
    return 1;
  }
}
