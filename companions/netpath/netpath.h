// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace netpath {

/// The size of every path buffer here, terminating zero included.
inline constexpr std::uint32_t kPathBufferSize = 261;

/// Resolves file paths and brings them into universal network form (`\\server\share\...`). Callers know three
/// of the operations by number only, and so do their names. `zero` is reserved in all of them. A buffer is
/// written only where the answer is 0.
class NetPath {
 public:
  virtual ~NetPath() = default;

  /// The low 16 bits are 4 where no path needs converting at all.
  virtual std::uint32_t Operation13(std::uint32_t zero) = 0;

  /// Resolves `path` to a full path. 0, and the path in `buffer`, when it can be resolved.
  virtual std::uint32_t Operation43(std::uint32_t zero, const char* path, char* buffer,
                                    std::uint32_t size) = 0;

  /// Translates a resolved path into its universal form. 0, and the path in `buffer`, when it has one.
  virtual std::uint32_t Operation159(std::uint32_t zero, const char* resolved, char* buffer,
                                     std::uint32_t size) = 0;

  /// 0, and the tree in `buffer`, when the path runs through a directory tree instead of a share.
  virtual std::uint32_t NetTreeFromPath(std::uint32_t zero, const char* universal, char* buffer,
                                        std::uint32_t size) = 0;
};

/// What Operation13 answers where no path needs converting.
inline constexpr std::uint32_t kNoConversion = 4;

/// The real component. `mount_table` says which shares of other machines are mounted where.
std::unique_ptr<NetPath> MakeNetPath(std::string mount_table = "/proc/self/mounts");

}  // namespace netpath
