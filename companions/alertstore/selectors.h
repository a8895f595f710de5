// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace alertstore {

/// What the identity is found by in the stores of services, responses, alert managers and service-specific
/// records.
inline constexpr std::uint32_t kByIdentity = 1;
/// Alert managers by `managerName`.
inline constexpr std::uint32_t kManagerByName = 2;

inline constexpr std::uint32_t kModemByIdentity = 51;
inline constexpr std::uint32_t kModemByName = 52;  ///< unique
inline constexpr std::uint32_t kLocationByIdentity = 70;
inline constexpr std::uint32_t kLocationByName = 71;  ///< unique
inline constexpr std::uint32_t kProviderByIdentity = 73;
inline constexpr std::uint32_t kSnmpManagerByIdentity = 20;

inline constexpr std::uint32_t kEnabledServiceByIdentity = 65;
inline constexpr std::uint32_t kEnabledServiceByService = 66;
inline constexpr std::uint32_t kEnabledServiceByManager = 68;

inline constexpr std::uint32_t kLinkByIdentity = 73;
inline constexpr std::uint32_t kLinkByUser = 74;
inline constexpr std::uint32_t kLinkByUserRecord = 75;
/// The identity of the service, then that of the user: a user may have thousands of links.
inline constexpr std::uint32_t kLinkByServiceAndUser = 76;

/// The selectors of a user store.
struct UserSelectors {
  std::uint32_t by_id;
  std::uint32_t by_user;
  std::uint32_t scan;  ///< what a scan of all its records is begun with
};

}  // namespace alertstore
