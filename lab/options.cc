// SPDX-License-Identifier: MIT
#include "lab/options.h"

#include <CLI/CLI.hpp>

namespace lab {
namespace {

void AddMailAndTraps(CLI::App& app, Options& options) {
  app.add_option("--mail-port", options.mail_port, "Port of the mail server (0: a free one)")
      ->check(CLI::Range(0, 65535));
  app.add_option("--mail-login", options.mail.login,
                 "The login that senders of mail must know (none: any will do)");
  app.add_option("--mail-password", options.mail.password,
                 "Its password; visible to all, so not one that is in use");
  app.add_option("--trap-port", options.trap_port, "Port of the trap receiver (0: a free one)")
      ->check(CLI::Range(0, 65535));
  app.add_option("--community", options.traps.community,
                 "The community that traps must name (none: any will do)");
}

void AddTelephony(CLI::App& app, Options& options) {
  app.add_option("--numeric", options.book.numeric,
                 "A number with a numeric pager terminal (may be repeated)");
  app.add_option("--alphanumeric", options.book.alphanumeric,
                 "One with an alphanumeric pager terminal (may be repeated)");
  app.add_option("--pager-password", options.pager.password,
                 "What senders of pages must log in with (none: anything)");
  app.add_option("--longest-page", options.pager.longest, "The most characters of a page")
      ->check(CLI::Range(1, 4000));
  app.add_flag("--hurry", options.hurry, "No waiting for rings, pauses and silence");
}

void AddOutput(CLI::App& app, Options& options) {
  app.add_option("--fault", options.faults, "DEVICE=FAULT[:TIMES] from the start (may be repeated)");
  app.add_option("--slow", options.mail.slow, "How long a slow device thinks, in milliseconds")
      ->check(CLI::Range(0, 60000));
  app.add_flag("--json", options.json, "Show what arrives as JSON, an object a line");
  app.add_option("--keep", options.keep, "Append what arrives to a file, as JSON");
  app.add_option("--ready-file", options.ready_file,
                 "Write ports and paths there, as JSON, when all are open");
  app.add_flag("--end-with-input", options.end_with_input, "End when standard input ends");
}

void Settle(Options& options) {
  options.traps.slow = options.pager.slow = options.times.slow = options.mail.slow;
  if (options.hurry) options.times.ring = options.times.comma = options.times.guard = 0;
}

}  // namespace

bool ParseOptions(int argc, char** argv, Options& options, int& exit_code) {
  CLI::App app(
      "Pretends to be what alerts are sent to: a mail server, a trap receiver, modems, pagers, a printer.",
      "alertlab");
  app.footer(
      "Everything is reached from this machine alone. Lines on standard input change faults: type help.");
  AddMailAndTraps(app, options);
  AddTelephony(app, options);
  AddOutput(app, options);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    exit_code = app.exit(error) == 0 ? 0 : 2;
    return false;
  }
  Settle(options);
  return true;
}

}  // namespace lab
