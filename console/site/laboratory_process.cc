// SPDX-License-Identifier: MIT
#include "console/site/laboratory_process.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <thread>

#include "console/site/failure.h"
#include "platform/base/sibling_program.h"

namespace site {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds kAnswerLimit(2000), kEndLimit(3000), kLook(10);

Failure CannotStart(const std::string& program, int error) {
  if (error == ENOENT || error == ENOTDIR)
    return Failure(kInvalid,
                   "the laboratory is not installed: \"" + program +
                       "\" is not there. Install alertlab beside this console or in PATH, or name it "
                       "in ALERTING_LABORATORY");
  return Failure(kInvalid, "the laboratory \"" + program + "\" cannot be started: " + std::strerror(error));
}

/// One line, without the blanks around it.
std::string OneLine(std::string text) {
  while (!text.empty() && text.back() == '\n') text.pop_back();
  for (char& c : text)
    if (c == '\n') c = ' ';
  return text;
}

/// Appends all that is there to read. False at the end of the file.
bool ReadAvailable(const platform::Descriptor& file, std::string& bytes) {
  char piece[16 * 1024];
  for (;;) {
    const ssize_t count = read(file.Get(), piece, sizeof piece);
    if (count > 0) bytes.append(piece, static_cast<std::size_t>(count));
    if (count == 0) return false;
    if (count < 0 && errno != EINTR) return errno == EAGAIN;
  }
}

/// Until there is something to read or `deadline` has come.
void WaitFor(const platform::Descriptor& file, steady_clock::time_point deadline) {
  const auto left = std::chrono::duration_cast<milliseconds>(deadline - steady_clock::now());
  pollfd wanted{file.Get(), POLLIN, 0};
  poll(&wanted, 1, static_cast<int>(std::max<milliseconds::rep>(left.count(), 0)));
}

struct Pipe {
  platform::Descriptor reading, writing;
};

void Open(Pipe& pipe) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) throw CannotStart("alertlab", errno);
  pipe = {platform::Descriptor(ends[0]), platform::Descriptor(ends[1])};
  fcntl(ends[0], F_SETFL, O_NONBLOCK);
}

}  // namespace

LaboratoryProcess::LaboratoryProcess(milliseconds limit) {
  Start();
  try {
    WaitUntilReady(limit);
  } catch (...) {
    End();
    throw;
  }
}

LaboratoryProcess::~LaboratoryProcess() { End(); }

// The control is a socket, since writing to one whose other end is gone need not end this program by a signal. A session of its
// own keeps keys that are pressed in a terminal from ending the laboratory before its console.
void LaboratoryProcess::Start() {
  std::string program = platform::SiblingProgram("alertlab", "ALERTING_LABORATORY");
  int control[2];
  Pipe output, errors;
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, control) != 0) throw CannotStart(program, errno);
  control_ = platform::Descriptor(control[0]);
  const platform::Descriptor input(control[1]);
  Open(output);
  Open(errors);
  char json[] = "--json", hurry[] = "--hurry", end[] = "--end-with-input";
  char* arguments[] = {program.data(), json, hurry, end, nullptr};
  posix_spawn_file_actions_t actions;
  posix_spawnattr_t attributes;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, input.Get(), STDIN_FILENO);
  posix_spawn_file_actions_adddup2(&actions, output.writing.Get(), STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&actions, errors.writing.Get(), STDERR_FILENO);
  posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
  posix_spawnattr_init(&attributes);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
  const int error = posix_spawnp(&process_, program.c_str(), &actions, &attributes, arguments, environ);
  posix_spawn_file_actions_destroy(&actions);
  posix_spawnattr_destroy(&attributes);
  output_ = std::move(output.reading);
  errors_ = std::move(errors.reading);
  if (error == 0) return;
  process_ = -1;
  throw CannotStart(program, error);
}

// The first line that it shows tells its places, once all devices are open.
void LaboratoryProcess::WaitUntilReady(milliseconds limit) {
  const auto deadline = steady_clock::now() + limit;
  std::vector<Json> arrivals;
  while (arrivals.empty() && !has_ended_ && steady_clock::now() < deadline) {
    WaitFor(output_, deadline);
    arrivals = TakeArrivals();
  }
  if (!arrivals.empty() && arrivals.front().value("what", "") == "ready") {
    places_ = std::move(arrivals.front());
    return;
  }
  std::string said;
  ReadAvailable(errors_, said);
  if (!said.empty()) said = ": " + OneLine(said);
  throw Failure(kInvalid, has_ended_ ? "the laboratory ended at once" + said
                                     : "the laboratory did not open its devices within " +
                                           std::to_string(limit.count() / 1000) + " seconds" + said);
}

std::vector<Json> LaboratoryProcess::TakeArrivals() {
  has_ended_ = !ReadAvailable(output_, line_) || has_ended_;
  std::vector<Json> arrivals;
  for (std::size_t end; (end = line_.find('\n')) != line_.npos; line_.erase(0, end + 1))
    if (Json arrival = Json::parse(line_.substr(0, end), nullptr, false); arrival.is_object())
      arrivals.push_back(std::move(arrival));
  return arrivals;
}

std::string LaboratoryProcess::Ask(const std::string& line) {
  std::string answer;
  ReadAvailable(errors_, answer);
  answer.clear();
  const std::string text = line + "\n";
  if (send(control_.Get(), text.data(), text.size(), MSG_NOSIGNAL) < 0) return answer;
  WaitFor(errors_, steady_clock::now() + kAnswerLimit);
  ReadAvailable(errors_, answer);
  return answer;
}

void LaboratoryProcess::End() {
  control_.Close();
  output_.Close();
  errors_.Close();
  if (process_ < 0) return;
  const auto deadline = steady_clock::now() + kEndLimit;
  while (waitpid(process_, nullptr, WNOHANG) == 0) {
    if (steady_clock::now() > deadline) kill(process_, SIGKILL);
    std::this_thread::sleep_for(kLook);
  }
  process_ = -1;
}

}  // namespace site
