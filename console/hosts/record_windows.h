// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "console/hosts/host_dialog.h"
#include "console/site/library_calls.h"

namespace hosts {

/// A window of the library's, and the records that it is about.
struct RecordWindow {
  enum class Kind {
    kService,  ///< a service's properties
    kBackup,   ///< its backup modem
    kEntry,    ///< a user's entry on it
    kTest      ///< a test of it with a user
  };

  Kind kind;
  platform::GUID service{};
  platform::GUID user{};  ///< of an entry or a test; else null

  bool operator==(const RecordWindow&) const = default;
};

/// Opens the library's windows, and knows which are open: two over one record would each undo what the other stored.
class RecordWindows {
 public:
  explicit RecordWindows(const site::LibraryCalls& calls) : calls_(calls) {}

  /// Comes back when the window was closed. False, after saying why, where it did not open; so too where another console has
  /// a service's properties open and the person leaves it at that.
  bool Open(ui::Window* parent, const RecordWindow& wanted);
  bool IsOpen(const RecordWindow& window) const;
  /// The one that was opened last, or null.
  const RecordWindow* Last() const { return open_.empty() ? nullptr : &open_.back(); }

 private:
  bool HasMarked(const platform::GUID& service) const;
  void Run(ui::Window* parent, const RecordWindow& wanted, int index) const;

  const site::LibraryCalls& calls_;
  std::vector<RecordWindow> open_;
};

}  // namespace hosts
