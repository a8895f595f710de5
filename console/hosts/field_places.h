// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "console/hosts/record_windows.h"

// Where the windows have what a test's report says is to be corrected.

namespace hosts {

/// A place in a window. All but the last of a way are buttons that open the next window.
struct FieldStop {
  const char* page;  ///< of a sheet that has several; "" elsewhere
  std::array<const char*, 4>
      labels;  ///< windows of one family may call the control differently; the first that is shown
  const char* list = nullptr;  ///< in whose row with the record the button acts
  bool is_choice = false;      ///< clicking a row there would choose it for the service
};

struct FieldPlace {
  enum class Start { kService, kModem, kBackup, kEntry, kTest, kNowhere };

  std::string_view field;  ///< as reports name it
  Start start;  ///< kModem: the service's properties, or those of its backup modem where that has the field
  std::array<FieldStop, 3> way;

  std::span<const FieldStop> Way() const;
};

/// One for each field that alert servers report.
std::span<const FieldPlace> FieldPlaces();
/// Null for a field that is not known.
const FieldPlace* FindFieldPlace(std::string_view field);

}  // namespace hosts
