// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

namespace alerting {

/// Service type codes. Records store the code plus 1.
enum TypeCode : std::uint32_t {
  kTypeMhs = 0,
  kTypeSnmp = 1,
  kTypeMci = 2,
  kTypeCompuServe = 3,
  kTypeSmtp = 4,
  kTypeMapi = 5,
  kTypeVim = 6,
  kTypeWave = 7,
  kTypeTts = 8,
  kTypePhone = 9,
  kTypeAlpha = 10,
  kTypeNumeric = 11,
  kTypeGeneric = 12,
  kTypeProgram = 13,
  kTypeScript = 14,
  /// Any stored value that is no type's.
  kTypeUnknown = 15
};

constexpr std::uint32_t RecordTypeOf(std::uint32_t code) { return code + 1; }

/// What a type answers about itself; the one table that the service classes, the list and the exports read.
struct ServiceType {
  TypeCode code;
  bool is_user, is_device, uses_extension_agent, is_modem;
  std::uint16_t response_type;
  int icon_offset;      ///< index into the service icon strip
  const char* icon;     ///< resource name of the type's own icon, or null
  int add_user_panels;  ///< 1 for the types that a user has an entry on
  int max_message, max_subject, max_password, max_login, max_address;  ///< bytes
  int line_width;  ///< columns after which messages are wrapped; 0: never
};

constexpr const char* kMailIcon = "icons/mail.ico";
constexpr const char* kPagerIcon = "icons/pager.ico";
constexpr const char* kNumericPagerIcon = "icons/numeric_pager.ico";

// clang-format off
constexpr std::array<ServiceType, 15> kServiceTypes{{
  //                user   device agent  modem  resp icon own icon           panels message subj pass login addr width
  {kTypeMhs,        true,  false, false, false,  1,  8, kMailIcon,            1,    1024,   256,  48,  48,  260,  0},
  {kTypeSnmp,       false, true,  false, false, 16,  7, kMailIcon,            0,     255,   256,  48,  48,  260,  0},
  {kTypeMci,        true,  false, false, true,   1, 13, nullptr,              1,    1024,   256,  48,  48,  260, 80},
  {kTypeCompuServe, true,  false, false, true,   1, 13, nullptr,              1,    1024,    40,  48,  48,  260,  0},
  {kTypeSmtp,       true,  false, false, false,  1, 14, nullptr,              1,    1024,   256,  48,  48,  260,  0},
  {kTypeMapi,       true,  false, true,  false,  1,  8, nullptr,              1,    1024,   256,   8, 255,   30,  0},
  {kTypeVim,        true,  false, true,  false,  1,  8, nullptr,              1,    1024,    60,  48,  48,  260,  0},
  {kTypeWave,       false, false, false, false, 16, 12, nullptr,              0,    1024,   256,  48,  48,  260,  0},
  {kTypeTts,        false, false, false, false, 16,  5, nullptr,              0,     510,   256,  48,  48,  260,  0},
  {kTypePhone,      false, false, false, false,  1,  8, nullptr,              0,    1024,   256,  48,  48,  260,  0},
  {kTypeAlpha,      true,  false, false, true,   1,  4, kPagerIcon,           1,    1024,   256,  48,  48,  260,  0},
  {kTypeNumeric,    true,  false, false, true,   1, 10, kNumericPagerIcon,    1,    1024,   256,  48,  48,  260,  0},
  {kTypeGeneric,    false, true,  false, true,  16, 11, nullptr,              0,    1024,   256,  48,  48,  260,  0},
  {kTypeProgram,    false, false, false, false,  4,  6, nullptr,              0,    1024,   256,  48,  48,  260,  0},
  {kTypeScript,     false, false, false, false,  1,  8, nullptr,              0,    1024,   256,  48,  48,  260,  0},
}};
// clang-format on

/// From a stored value to a type code: 1 to 14 onto 0 to 13, everything else onto kTypeUnknown. (The script
/// service, stored as 15, is not configured here.)
constexpr std::uint32_t ServiceTypeFromRecordType(std::uint32_t stored) {
  return stored >= 1 && stored <= 14 ? stored - 1 : kTypeUnknown;
}

/// Display names, loaded once from the module's strings.
struct CServiceTypeNameTable {
  std::uint32_t loaded;
  char fallback[2];
  char names[16][256];  ///< the last slot holds the name of code 14 again
};

/// Builds the name table; a load step. Where memory is short there is no table.
void BuildServiceTypeNames();
void FreeServiceTypeNames();

/// The display name of a code from 0 to 13; " " while there is no table, and for any other code.
const char* GetServiceTypeName(std::uint32_t code);

}  // namespace alerting
