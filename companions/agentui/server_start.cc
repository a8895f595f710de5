// SPDX-License-Identifier: MIT
#include "companions/agentui/server_start.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>

#include "platform/base/host_name.h"
#include "platform/base/presence.h"
#include "platform/base/private_file.h"
#include "platform/base/sibling_program.h"
#include "platform/base/utf8.h"

namespace agentui {
namespace {

/// The name that this machine has among the managers; "" where it is none of them.
std::string OwnNameIn(const std::vector<std::string>& managers) {
  const std::string host = platform::HostName();
  const auto own = std::ranges::find_if(
      managers, [&](const std::string& name) { return platform::EqualIgnoringCase(name, host); });
  return own != managers.end() ? *own : "";
}

/// What the server reads, says and holds open is not this program's, nor is it a key press that ends this program.
pid_t Spawn(std::vector<std::string> words) {
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawnattr_t attributes;
  posix_spawn_file_actions_init(&actions);
  for (const int fd : {0, 1, 2}) posix_spawn_file_actions_addopen(&actions, fd, "/dev/null", O_RDWR, 0);
  posix_spawn_file_actions_addclosefrom_np(&actions, 3);
  posix_spawnattr_init(&attributes);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
  pid_t child = 0;
  if (posix_spawnp(&child, words.front().c_str(), &actions, &attributes, arguments.data(), environ) != 0)
    child = 0;
  posix_spawn_file_actions_destroy(&actions);
  posix_spawnattr_destroy(&attributes);
  return child;
}

}  // namespace

void StartedServers::StartWhereNeeded(const std::string& spool, const Job& job) {
  const std::string manager = OwnNameIn(job.managers);
  if (manager.empty() || platform::IsPresent(spool + "/server.lock", manager)) return;
  const pid_t child =
      Spawn({platform::SiblingProgram("alertserver", "ALERTING_SERVER"), "--data", platform::ParentOf(spool),
             "--manager", manager, "--once", std::to_string(job.number)});
  if (child > 0) running_.push_back(child);
}

void StartedServers::TakeNote() {
  std::erase_if(running_, [](pid_t child) { return waitpid(child, nullptr, WNOHANG) != 0; });
}

}  // namespace agentui
