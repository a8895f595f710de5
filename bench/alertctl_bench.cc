// SPDX-License-Identifier: MIT
// How the command line grows with the site: a copy of a service after 200 others against the first ones, and a list of 10,000
// users against a program that reads and prints the same records straight from SQLite. Whole processes are timed.
//
//   alertctl_bench [repetitions]
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "bench/measure.h"
#include "companions/alertstore/console_users.h"

using namespace bench;  // NOLINT

namespace {

constexpr int kCopies = 200, kUsers = 10000;
constexpr double kCopyAim = 1.5, kListAim = 2;

void Run(const std::string& command) {
  Require(std::system((command + " > /dev/null").c_str()) == 0, command.c_str());
}

std::string Alertctl(const std::string& verb) { return std::string("'") + ALERTCTL + "' " + verb; }

double TimeOf(const std::string& command) {
  return Milliseconds([&] { Run(command); });
}

/// The reference: what a program does that knows where the names stand in the records.
void PrintUsers(const std::string& directory) {
  RawConnection raw(directory);
  sqlite3_stmt* rows = raw.Prepare("SELECT record FROM \"ConsoleUsers.dat\"");
  while (sqlite3_step(rows) == SQLITE_ROW) {
    const auto* record = static_cast<const char*>(sqlite3_column_blob(rows, 0));
    platform::GUID id{};
    std::memcpy(&id, record, sizeof id);
    std::printf("%s  %s\n", record + sizeof id, id.ToString().c_str());
  }
}

void Report(const char* work, double ours, double reference, double aim) {
  std::printf("%-40s %8.1f ms %8.1f ms  %5.2f  (aim %.1f) %s\n", work, ours, reference, ours / reference, aim,
              ours / reference <= aim ? "" : "MISSED");
}

void CopyMany() {
  std::vector<double> times;
  for (int i = 0; i < kCopies; ++i)
    times.push_back(TimeOf(Alertctl("service copy \"Internet Mail\" copy" + std::to_string(i))));
  const auto early = Summarise({times.begin(), times.begin() + 20}),
             late = Summarise({times.end() - 20, times.end()});
  Report("copy a service, the last 20 of 200", late.median, early.median, kCopyAim);
}

void ListMany(const std::string& program, int repetitions) {
  for (int i = 0; i < kUsers; ++i)
    Require(alertstore::AddConsoleUser(platform::GUID::Generate(), "Operator " + std::to_string(i)) ==
                alertstore::kOk,
            "cannot add a user");
  std::vector<double> ours, raw;
  for (int i = 0; i < repetitions; ++i) {
    ours.push_back(TimeOf(Alertctl("user list")));
    raw.push_back(TimeOf("'" + program + "' --raw"));
  }
  Report("list 10,000 users", Summarise(ours).median, Summarise(raw).median, kListAim);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2 && std::string(argv[1]) == "--raw") {
    PrintUsers(std::getenv("ALERTING_DATA"));
    return 0;
  }
  char directory[] = "/tmp/alertctl-bench-XXXXXX";
  Require(mkdtemp(directory) != nullptr, "cannot make a directory");
  setenv("ALERTING_DATA", directory, 1);
  Run(Alertctl("init"));
  std::printf("%-40s %11s %11s  ratio\n", "", "ours", "reference");
  CopyMany();
  ListMany(std::filesystem::read_symlink("/proc/self/exe"), argc > 1 ? std::atoi(argv[1]) : 9);
  std::filesystem::remove_all(directory);
}
