// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "lab/arrival.h"
#include "platform/base/descriptor.h"

namespace lab {

/// Shows what arrives on standard output, and keeps it in a file where asked: there always as JSON, so that programs can
/// read it. Messages may be somebody's, so the file is its owner's alone.
class Log {
 public:
  explicit Log(bool as_json) : as_json_(as_json) {}

  /// False when the file cannot be opened for appending; errno says why.
  bool KeepIn(const std::string& path);
  void Show(const Arrival& arrival);

 private:
  const bool as_json_;
  platform::Descriptor file_;
};

/// False when not all of it could be written.
bool WriteAll(int file, std::string_view bytes);

}  // namespace lab
