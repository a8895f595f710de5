// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "platform/base/private_file.h"

namespace platform {

/// Shows to other processes that somebody of that name is there, for as long as the object lives; it ends with the
/// process, however that ends. Any number may bear one name. Names are told apart without regard to case. `path` is a
/// file that all of them share; it is made where it is missing, and stays.
class Presence {
 public:
  Presence(const std::string& path, std::string_view name);

  bool IsShown() const { return file_.IsOpen(); }
  /// Why it is not shown.
  const FileError& Error() const { return error_; }

 private:
  FileError error_;
  Descriptor file_;
};

/// True while somebody of that name is there. Makes nothing.
bool IsPresent(const std::string& path, std::string_view name);

}  // namespace platform
