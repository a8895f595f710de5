// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/base/guid.h"
#include "platform/base/process_lock.h"

namespace site {

/// Tells other consoles that this one has something open, such as a service's properties, for as long as it lives. The mark
/// is a lock, so it dies with its process.
class OpenMark {
 public:
  struct Holder {
    std::string who;    ///< login name and machine
    std::string since;  ///< "2026-03-01 12:30 UTC"
  };

  explicit OpenMark(const platform::GUID& service) : OpenMark(service.ToString()) {}
  explicit OpenMark(const std::string& name);
  ~OpenMark();

  /// Who else has it open; nobody where this console is the first, or where marks cannot be made.
  const std::optional<Holder>& Other() const { return other_; }
  /// Why the mark cannot be made; "" where it is this console's or another's.
  const std::string& Problem() const { return problem_.text; }

 private:
  Holder ReadHolder() const;
  void WriteHolder() const;

  platform::FileError problem_;
  const std::string path_;
  std::unique_ptr<platform::ProcessLock> lock_;
  std::optional<Holder> other_;
};

}  // namespace site
