// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace dbconfig {

/// Knows where the console keeps its data, and turns the stored alert configuration into the file that the
/// alert managers read.
class DbConfig {
 public:
  virtual ~DbConfig() = default;

  /// Fills `buffer` with the console's data directory, zero-terminated. A path longer than the buffer is cut
  /// on a character boundary; a buffer of no bytes is left alone.
  virtual void GetQEVDataDirectory(char* buffer, std::size_t size) = 0;

  /// Rewrites the alert managers' configuration file from the current stores. `zero` is reserved. 0 when the
  /// file was written; else one of the failures below. All but kNotFlushed leave a file of before in place.
  virtual std::uint32_t CreateAlertServerConfigFile(std::uint32_t zero) = 0;

  /// Non-zero while no conversion is under way in this process.
  virtual std::uint32_t IsConversionComplete() = 0;
};

/// The real component: the file is `alert-managers.json` in the data directory (docs/configuration-file.md).
std::unique_ptr<DbConfig> MakeDbConfig();

/// The name of the configuration file within the data directory.
inline constexpr char kConfigFileName[] = "alert-managers.json";

// What CreateAlertServerConfigFile answers when it fails.

/// A store cannot be opened or read, or there is not enough memory.
inline constexpr std::uint32_t kStoresUnreadable = 1;
/// The directory, the lock file or the file itself cannot be made or replaced.
inline constexpr std::uint32_t kFileUnwritable = 2;
/// Another console was writing the file for longer than a caller may wait (five seconds).
inline constexpr std::uint32_t kFileLocked = 3;
/// The new file is in place, but may not outlast a power cut.
inline constexpr std::uint32_t kNotFlushed = 4;

/// Why the last CreateAlertServerConfigFile of this thread failed, in words that can follow "because".
std::string LastFailureText();

/// While one lives, CreateAlertServerConfigFile of this process answers success and writes nothing: for a program whose
/// changes set off many writes and which tells the alert managers once, when it is done, or not at all.
class HeldBack {
 public:
  HeldBack();
  ~HeldBack();
  HeldBack(const HeldBack&) = delete;
  HeldBack& operator=(const HeldBack&) = delete;

  /// Writes the file now. "" or why that failed, as LastFailureText.
  std::string Write();
};

}  // namespace dbconfig
