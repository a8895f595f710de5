// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <nlohmann/json.hpp>
#include <string>

namespace lab {

/// Something that a device received, or that happened to it.
struct Arrival {
  std::string device;              ///< "mail"
  std::string what;                ///< "message"
  nlohmann::ordered_json details;  ///< an object of texts, numbers and lists of them
};

using ArrivalSink = std::function<void(Arrival)>;

/// One object in one line, `time` first. Bytes that are no UTF-8 become U+FFFD.
std::string ToJsonLine(const Arrival& arrival, const std::string& time);
/// For people: a line, and the lines of longer texts indented below it. Holds nothing that a terminal would act on.
std::string ToText(const Arrival& arrival, const std::string& time);

}  // namespace lab
