// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>

#include "companions/alertstore/sqlite_statement.h"

namespace alertstore {

class Connection;

/// Notices that the records of the data directory changed, whoever changed them. While nothing changed a look reads no
/// record.
class ChangeWatch {
 public:
  ChangeWatch();
  ~ChangeWatch();

  /// True once after each change since the last call, and when the database was made, replaced or went.
  bool Changed();

 private:
  bool Connect();

  std::unique_ptr<Connection> connection_;
  Statement version_{"PRAGMA data_version"};
  std::int64_t last_ = 0;
};

}  // namespace alertstore
