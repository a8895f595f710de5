// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "server/transport.h"

namespace alertserver {

/// A type of service, as the configuration file names it, and who sends its messages.
struct TransportRow {
  std::string_view type;
  std::uint32_t record_type;  ///< the type as records hold it
  TransportPtr (*make)();
  bool has_settings;  ///< a service without them is missing its own record
  bool dials;         ///< is tried over the backup modem when the first one fails
};

/// Null for a type that is not known.
const TransportRow* FindTransport(std::string_view type);

}  // namespace alertserver
