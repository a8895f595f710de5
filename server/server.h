// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "server/delivery.h"
#include "server/role.h"
#include "server/spool.h"

namespace alertserver {

/// What became of one job at one look.
enum class Handling {
  kNothing,   ///< there is none, another server has it, or it is not this manager's, or not yet
  kAnswered,  ///< its report is there, or it was handed on
  kRefused    ///< it is no job that can be read
};

/// Serves one alert manager: takes its jobs from the spool, delivers them, and writes their reports.
class Server {
 public:
  /// `data`: the data directory. `manager`: the alert manager's name.
  Server(std::string data, std::string manager);
  /// Waits for the jobs that are being delivered.
  ~Server();
  Server(const Server&) = delete;
  Server& operator=(const Server&) = delete;

  const Spool& TheSpool() const { return spool_; }

  /// Looks through the spool once and begins with every job that is this manager's, each on a thread of its own, so that
  /// a pager's does not keep mails waiting.
  void Look();
  /// Handles one job, and is done with it when this returns.
  Handling Handle(std::uint32_t number);

 private:
  /// A job that is this server's to do.
  struct Work {
    std::uint32_t number;
    Claim claim;
    Job job;
    Role role;
    std::optional<Configuration> configuration;
    std::string problem;  ///< with the configuration
  };
  struct Running {
    std::uint32_t number;
    std::thread thread;
    bool is_over;
  };

  /// Claims a job. Nothing where there is nothing to do, or nothing more; `handling` then says which.
  std::optional<Work> Take(std::uint32_t number, Handling& handling);
  std::optional<Work> Read(std::uint32_t number, Claim claim, Handling& handling);
  bool Refuse(std::uint32_t number, const Claim& claim, const std::string& problem);
  void Finish(Work work);
  void DeliverAndReport(Work& work);
  bool HandOn(const Work& work, const Report& report);
  void Answer(const Work& work, const Report& report);

  void Start(Work work);
  void JoinThoseThatAreOver();
  bool IsRunning(std::uint32_t number);

  const std::string data_;
  const std::string manager_;
  const Spool spool_;

  std::mutex mutex_;
  std::vector<Running> running_;
  /// Names that were refused and could not be removed.
  std::set<std::uint32_t> refused_;
};

}  // namespace alertserver
