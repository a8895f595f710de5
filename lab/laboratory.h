// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "lab/faults.h"
#include "lab/host/log.h"
#include "lab/host/loop.h"
#include "lab/options.h"

namespace lab {

/// All devices, open.
class Laboratory {
 public:
  explicit Laboratory(const Options& options);

  /// Opens everything; "" or what could not be had.
  std::string Open();
  /// Until a signal or "quit" ends it.
  void Run() { loop_.Run(); }

 private:
  std::string SetFaults();
  std::string OpenMail();
  std::string OpenTraps();
  std::string OpenModem(const std::string& device);
  std::string OpenPort(const std::string& device, std::unique_ptr<Session> session);
  std::string TellReady();
  void AddControl();

  const Options options_;
  FaultBoard faults_;
  Log log_;
  const ArrivalSink sink_;
  Loop loop_;
  nlohmann::ordered_json places_;  ///< where each device is
};

}  // namespace lab
