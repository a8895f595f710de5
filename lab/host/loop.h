// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <vector>

#include "lab/host/source.h"

namespace lab {

Millis Now();

/// Waits on all sources in one thread, until it is stopped.
class Loop {
 public:
  /// Sources may be added while the loop runs.
  void Add(std::unique_ptr<Source> source) { added_.push_back(std::move(source)); }
  void Run();
  void Stop() { stopped_ = true; }

 private:
  void TakeAdded();
  void DropFinished();
  int Timeout() const;
  void Wait();

  std::vector<std::unique_ptr<Source>> sources_, added_;
  bool stopped_ = false;
};

}  // namespace lab
