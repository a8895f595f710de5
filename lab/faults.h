// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace lab {

/// What can be wrong with a device. Which device can have which: KnownFaults.
enum class Fault {
  kBusy,
  kNoCarrier,
  kNoAnswer,
  kNoDialTone,
  kError,
  kSilent,
  kSlow,
  kGreetingMissing,
  kWrongPassword,
  kRecipientRefused,
  kRejected,
  kChecksum,
  kTlsBroken
};

struct KnownFault {
  const char* device;
  const char* name;
  Fault fault;
  const char* meaning;
};
const std::vector<KnownFault>& KnownFaults();

/// The faults that one device has now.
class DeviceFaults {
 public:
  explicit DeviceFaults(std::string device) : device_(std::move(device)) {}
  const std::string& Device() const { return device_; }

  bool Has(Fault fault) const { return left_.contains(fault); }
  /// True when the device has the fault; one that was set for a number of times then has one time less.
  bool Use(Fault fault);
  /// "busy", or "checksum:2" for the next two times only. False when the device cannot have such a fault.
  bool Set(std::string_view text);
  void Clear() { left_.clear(); }
  /// "busy, checksum:2", or "none".
  std::string Text() const;

 private:
  const std::string device_;
  std::map<Fault, int> left_;  ///< the times that are left; 0 for always
};

/// All devices, by name.
class FaultBoard {
 public:
  FaultBoard();
  FaultBoard(const FaultBoard&) = delete;
  FaultBoard& operator=(const FaultBoard&) = delete;

  /// The device must be one of KnownFaults.
  DeviceFaults& Of(std::string_view device);
  /// "pager=rejected"; "" or what is wrong with it.
  std::string Set(std::string_view text);
  /// Of one device, or of all for "". False when there is no such device.
  bool Clear(std::string_view device);
  /// A line for each device.
  std::string Text() const;

 private:
  std::map<std::string, DeviceFaults, std::less<>> devices_;
};

}  // namespace lab
