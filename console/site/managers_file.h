// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace site {

/// The file that tells the alert managers what to do (docs/configuration-file.md), from a console's point of view.
class ManagersFile {
 public:
  /// Writes it anew from the stores. False, with the reason in Problem(), when that failed.
  bool Write();
  /// Compares it with the stores, which others may have changed without writing it.
  void Look();

  /// False while the alert managers have not been told of what the stores hold.
  bool Told() const { return told_; }
  /// Why the last Write failed, or "".
  const std::string& Problem() const { return problem_; }

 private:
  bool told_ = true;
  std::string problem_;
};

}  // namespace site
