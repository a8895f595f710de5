// SPDX-License-Identifier: MIT
// The alert server: takes tests from the spool, sends them for real, and reports every step.

#include <CLI/CLI.hpp>
#include <cstdio>
#include <filesystem>

#include "platform/base/host_name.h"
#include "platform/base/paths.h"
#include "platform/base/presence.h"
#include "server/log.h"
#include "server/server.h"
#include "server/watch.h"

namespace {

using alertserver::Handling;
using alertserver::Log;
using alertserver::Server;

/// What the program ends with; docs/alert-server.md.
enum ExitCode { kDone = 0, kUsage = 2, kNothingDone = 3, kJobRefused = 4, kCannotServe = 5 };

struct Options {
  std::string data = platform::DataDirectory();
  std::string manager = platform::HostName();
  std::uint32_t once = 0;
  bool list = false;
};

int ListJobs(const Server& server) {
  for (const std::uint32_t job : server.TheSpool().Jobs()) std::printf("%u\n", job);
  return kDone;
}

/// The manager to which a job was handed on may not come; then there is nobody else to answer it.
int AwaitReport(Server& server, std::uint32_t job) {
  alertserver::Watch watch(server.TheSpool().Directory());
  while (!server.TheSpool().HasReport(job) && server.TheSpool().HasJob(job) && !watch.IsAskedToStop()) {
    watch.Wait(std::chrono::seconds(1));
    server.Handle(job);
  }
  return kDone;
}

int HandleOne(Server& server, std::uint32_t job) {
  switch (server.Handle(job)) {
    case Handling::kAnswered:
      return AwaitReport(server, job);
    case Handling::kRefused:
      return kJobRefused;
    case Handling::kNothing:
      break;
  }
  Log("there is no job " + std::to_string(job) + " for this alert manager to take");
  return kNothingDone;
}

int Serve(Server& server, const std::string& manager) {
  alertserver::Watch watch(server.TheSpool().Directory());
  Log("serving the alert manager " + manager + " from " + server.TheSpool().Directory());
  while (!watch.IsAskedToStop()) {
    server.Look();
    watch.Wait(std::chrono::seconds(1));
  }
  Log("asked to stop");
  return kDone;
}

int Fail(const platform::FileError& error) {
  Log(error.text);
  return kCannotServe;
}

int Run(const Options& options) {
  platform::FileError error;
  Server server(options.data, options.manager);
  if (options.list) return ListJobs(server);
  const std::string& spool = server.TheSpool().Directory();
  for (const std::string& directory : {options.data, spool})
    if (!platform::PreparePrivateDirectory(directory, error)) return Fail(error);
  alertserver::HoldSignals();
  if (options.once != 0) return HandleOne(server, options.once);
  const platform::Presence presence(server.TheSpool().LockPath(), options.manager);
  return presence.IsShown() ? Serve(server, options.manager) : Fail(presence.Error());
}

void Describe(CLI::App& app, Options& options) {
  app.add_option("--data", options.data, "The data directory, in place of that of ALERTING_DATA")
      ->type_name("DIR");
  app.add_option("--manager", options.manager, "The alert manager to serve, in place of this machine's name")
      ->type_name("NAME");
  app.add_option("--once", options.once, "Take this job alone, and end")
      ->type_name("JOB")
      ->check(CLI::Range(1U, 0x7FFFFFFFU));
  app.add_flag("--list", options.list, "Print the numbers of the jobs in the spool, and end");
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Takes tests of alert services from the spool, sends them, and reports every step.",
               "alertserver");
  Options options;
  Describe(app, options);
  try {
    app.parse(argc, argv);
    options.data = std::filesystem::absolute(options.data).lexically_normal().string();
    return Run(options);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? kDone : kUsage;
  } catch (const std::exception& error) {
    Log(error.what());
    return kCannotServe;
  }
}
