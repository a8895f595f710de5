// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

/// A laboratory of its own for a test, in a hurry. It ends with its object.
class LaboratoryProcess {
 public:
  explicit LaboratoryProcess(std::vector<std::string> arguments = {});
  ~LaboratoryProcess();
  LaboratoryProcess(const LaboratoryProcess&) = delete;
  LaboratoryProcess& operator=(const LaboratoryProcess&) = delete;

  /// Where the devices are, as the ready file tells it; null when the laboratory did not open.
  const nlohmann::json& Places() const { return places_; }
  std::string PathOf(const char* device) const { return places_.at(device).at("path"); }
  int PortOf(const char* device) const { return places_.at(device).at("port"); }

  /// What a device received, once there are at least `count` such arrivals or seconds have gone by.
  std::vector<nlohmann::json> Arrivals(const std::string& device, const std::string& what,
                                       std::size_t count) const;
  /// What it has shown.
  std::string Said() const;
  /// A line for the control.
  void Tell(const std::string& line) const;
  /// Sends it SIGTERM; its exit code, -1 where a signal ended it.
  int Stop();

 private:
  void Start(const std::vector<std::string>& arguments);
  void WaitUntilReady();

  std::filesystem::path folder_;
  nlohmann::json places_;
  pid_t process_ = -1;
  int control_ = -1;
};
