// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <cstdio>
#include <map>
#include <string>

namespace powercut {

/// What writers told of: by kind and identity the last version, 0 for the configuration file.
using Acknowledged = std::map<std::string, std::map<std::string, std::uint32_t>>;

/// A process that runs powercut_writer; its lines are read as they come.
class WriterProcess {
 public:
  explicit WriterProcess(const std::string& arguments)
      : lines_(popen(("exec '" POWERCUT_WRITER "' " + arguments).c_str(), "r")) {}
  ~WriterProcess() { End(); }
  WriterProcess(const WriterProcess&) = delete;
  WriterProcess& operator=(const WriterProcess&) = delete;

  /// Reads one line; false when there will be none.
  bool Read(Acknowledged& acknowledged) {
    char kind[20], id[64];
    unsigned version = 0;
    if (std::fscanf(lines_, "%19s %63s %u", kind, id, &version) != 3) return false;
    acknowledged[kind][id] = version;
    return true;
  }

  /// Waits for the process to end and answers its status, as waitpid gives it.
  int End() {
    const int status = lines_ == nullptr ? -1 : pclose(lines_);
    lines_ = nullptr;
    return status;
  }

 private:
  std::FILE* lines_;
};

}  // namespace powercut
