// SPDX-License-Identifier: MIT
#include "server/child_process.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <sstream>
#include <thread>

#include "platform/base/descriptor.h"

namespace alertserver {
namespace {

using Clock = std::chrono::steady_clock;
using platform::Descriptor;

/// "First output lines": as much as a person reads in a report.
constexpr std::size_t kMaxOutput = 4096;

/// What programs of a person's session need. Everything else may be a secret.
constexpr const char* kPassedOn[] = {"PATH",
                                     "HOME",
                                     "USER",
                                     "LOGNAME",
                                     "LANG",
                                     "LC_ALL",
                                     "LC_CTYPE",
                                     "TZ",
                                     "DISPLAY",
                                     "WAYLAND_DISPLAY",
                                     "XDG_RUNTIME_DIR",
                                     "DBUS_SESSION_BUS_ADDRESS",
                                     "PULSE_SERVER"};

std::vector<std::string> Environment() {
  std::vector<std::string> entries;
  for (const char* name : kPassedOn)
    if (const char* value = std::getenv(name)) entries.push_back(std::string(name) + '=' + value);
  return entries;
}

std::vector<char*> Pointers(const std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  for (const std::string& text : texts) pointers.push_back(const_cast<char*>(text.c_str()));
  pointers.push_back(nullptr);
  return pointers;
}

/// A file without a name that holds what the program reads: a program that reads nothing keeps nobody waiting.
Descriptor InputFile(const std::string& input) {
  Descriptor file(memfd_create("input", MFD_CLOEXEC));
  if (file.IsOpen() && !input.empty()) {
    [[maybe_unused]] const ssize_t written = write(file.Get(), input.data(), input.size());
    lseek(file.Get(), 0, SEEK_SET);
  }
  return file;
}

/// The attributes and actions of a start.
class Spawn {
 public:
  Spawn(int input, int output) {
    posix_spawn_file_actions_init(&actions_);
    posix_spawn_file_actions_adddup2(&actions_, input, 0);
    posix_spawn_file_actions_adddup2(&actions_, output, 1);
    posix_spawn_file_actions_adddup2(&actions_, output, 2);
    posix_spawn_file_actions_addclosefrom_np(&actions_, 3);
    posix_spawn_file_actions_addchdir_np(&actions_, "/");
    posix_spawnattr_init(&attributes_);
    posix_spawnattr_setflags(&attributes_,
                             POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    posix_spawnattr_setpgroup(&attributes_, 0);
    sigset_t none, all;
    sigemptyset(&none);
    sigfillset(&all);
    posix_spawnattr_setsigmask(&attributes_, &none);
    posix_spawnattr_setsigdefault(&attributes_, &all);
  }
  ~Spawn() {
    posix_spawn_file_actions_destroy(&actions_);
    posix_spawnattr_destroy(&attributes_);
  }
  Spawn(const Spawn&) = delete;
  Spawn& operator=(const Spawn&) = delete;

  /// 0, or the error number.
  int Start(const std::vector<std::string>& arguments, pid_t& child) const {
    const std::vector<std::string> environment = Environment();
    return posix_spawn(&child, arguments.front().c_str(), &actions_, &attributes_, Pointers(arguments).data(),
                       Pointers(environment).data());
  }

 private:
  posix_spawn_file_actions_t actions_;
  posix_spawnattr_t attributes_;
};

/// Reads what is there within a moment; what goes beyond the limit is thrown away.
void ReadOutput(int pipe, std::string& output) {
  pollfd ready{pipe, POLLIN, 0};
  if (poll(&ready, 1, 20) <= 0) return;
  char block[4096];
  const ssize_t count = read(pipe, block, sizeof block);
  if (count > 0) {
    output.append(block, std::min(static_cast<std::size_t>(count), kMaxOutput - output.size()));
  } else if (count == 0) {  // it closed its output, and runs on
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
}

ChildResult::End EndOf(int status, bool was_stopped) {
  if (was_stopped) return ChildResult::End::kStopped;
  return WIFEXITED(status) ? ChildResult::End::kExited : ChildResult::End::kKilled;
}

/// Waits for the program, reading its output meanwhile. The group goes before the program is taken note of: its number
/// is nobody else's until then.
void WaitFor(pid_t child, int pipe, Clock::time_point deadline, ChildResult& result) {
  bool was_stopped = false;
  siginfo_t info{};
  for (;;) {
    ReadOutput(pipe, result.output);
    info.si_pid = 0;
    waitid(P_PID, static_cast<id_t>(child), &info, WEXITED | WNOHANG | WNOWAIT);
    was_stopped = info.si_pid == 0 && Clock::now() >= deadline;
    if (info.si_pid != 0 || was_stopped) break;
  }
  if (was_stopped) kill(-child, SIGKILL);
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  ReadOutput(pipe, result.output);
  result.end = EndOf(status, was_stopped);
  result.status = WIFEXITED(status) ? WEXITSTATUS(status) : WTERMSIG(status);
}

std::string Ending(const ChildResult& result, const std::string& what) {
  switch (result.end) {
    case ChildResult::End::kExited:
      return "The " + what + " ended with exit status " + std::to_string(result.status) + ".";
    case ChildResult::End::kKilled:
      return "The " + what + " was ended by signal " + std::to_string(result.status) + ".";
    case ChildResult::End::kStopped:
      return "The " + what + " had not ended when the time was over, and was stopped.";
    case ChildResult::End::kNotStarted:
      break;
  }
  return "The " + what + " could not be started: " + std::strerror(result.status) + ".";
}

}  // namespace

ChildResult RunChild(const std::vector<std::string>& arguments, const std::string& input,
                     std::chrono::milliseconds limit) {
  ChildResult result;
  const auto deadline = Clock::now() + limit;
  int ends[2];
  if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) {
    result.status = errno;
    return result;
  }
  const Descriptor reading(ends[0]);
  Descriptor writing(ends[1]);
  fcntl(writing.Get(), F_SETFL, 0);  // a program may not expect a pipe that does not wait
  const Descriptor file = InputFile(input);
  pid_t child = 0;
  result.status = Spawn(file.Get(), writing.Get()).Start(arguments, child);
  writing.Close();
  if (result.status == 0) WaitFor(child, reading.Get(), deadline, result);
  return result;
}

std::string FindProgram(const std::string& name) {
  const char* const path = std::getenv("PATH");
  std::istringstream directories(path != nullptr ? path : "/usr/local/bin:/usr/bin:/bin");
  for (std::string directory; std::getline(directories, directory, ':');)
    if (const std::string found = directory + '/' + name;
        directory.starts_with('/') && access(found.c_str(), X_OK) == 0)
      return found;
  return {};
}

void NoteOutput(const ChildResult& result, Transcript& transcript) {
  std::istringstream lines(result.output);
  for (std::string line; std::getline(lines, line);) transcript.Received(line);
}

StepOutcome ChildFailure(const ChildResult& result, const std::string& what, Field field) {
  const std::string first_line = result.output.substr(0, result.output.find('\n'));
  return StepOutcome::Failed(Verdict::kRefused, first_line, Ending(result, what), field);
}

}  // namespace alertserver
