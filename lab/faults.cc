// SPDX-License-Identifier: MIT
#include "lab/faults.h"

#include <algorithm>
#include <charconv>

namespace lab {
namespace {

const KnownFault* Find(std::string_view device, std::string_view name) {
  const auto& all = KnownFaults();
  const auto found = std::find_if(all.begin(), all.end(),
                                  [&](const auto& x) { return device == x.device && name == x.name; });
  return found == all.end() ? nullptr : &*found;
}

std::string NameOf(std::string_view device, Fault fault) {
  for (const KnownFault& known : KnownFaults())
    if (device == known.device && fault == known.fault) return known.name;
  return "";
}

/// 0 for "", -1 for what is no number of times.
int ParseTimes(std::string_view text) {
  if (text.empty()) return 0;
  int times = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), times);
  return error == std::errc{} && end == text.data() + text.size() && times > 0 ? times : -1;
}

}  // namespace

bool DeviceFaults::Use(Fault fault) {
  const auto found = left_.find(fault);
  if (found == left_.end()) return false;
  if (found->second > 0 && --found->second == 0) left_.erase(found);
  return true;
}

bool DeviceFaults::Set(std::string_view text) {
  const std::size_t colon = std::min(text.find(':'), text.size());
  const KnownFault* known = Find(device_, text.substr(0, colon));
  const int times = colon + 1 == text.size() ? -1 : ParseTimes(text.substr(std::min(colon + 1, text.size())));
  if (known == nullptr || times < 0) return false;
  left_[known->fault] = times;
  return true;
}

std::string DeviceFaults::Text() const {
  std::string text;
  for (const auto& [fault, times] : left_) {
    text += (text.empty() ? "" : ", ") + NameOf(device_, fault);
    if (times > 0) text += ":" + std::to_string(times);
  }
  return text.empty() ? "none" : text;
}

FaultBoard::FaultBoard() {
  for (const KnownFault& known : KnownFaults()) devices_.try_emplace(known.device, known.device);
}

DeviceFaults& FaultBoard::Of(std::string_view device) { return devices_.find(device)->second; }

std::string FaultBoard::Set(std::string_view text) {
  const std::size_t equal = std::min(text.find('='), text.size());
  const auto device = devices_.find(text.substr(0, equal));
  if (device == devices_.end()) return "there is no device " + std::string(text.substr(0, equal));
  const std::string_view fault = text.substr(std::min(equal + 1, text.size()));
  return device->second.Set(fault) ? ""
                                   : "the " + device->first + " has no fault \"" + std::string(fault) + "\"";
}

bool FaultBoard::Clear(std::string_view device) {
  if (!device.empty() && !devices_.contains(device)) return false;
  for (auto& [name, faults] : devices_)
    if (device.empty() || device == name) faults.Clear();
  return true;
}

std::string FaultBoard::Text() const {
  std::string text;
  for (const auto& [name, faults] : devices_) text += name + ": " + faults.Text() + "\n";
  return text;
}

}  // namespace lab
