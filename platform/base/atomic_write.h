// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/base/private_file.h"

namespace platform {

enum class WriteOutcome {
  kWritten,
  kNotFlushed,  ///< the new file is in place, but may not outlast a power cut
  kFailed       ///< what was there before is still there
};

/// Writes `bytes` to the file "`path`.tmp", flushes it to the disk and renames it into place, so that a reader sees
/// either the old file or the whole new one. The file is a new one, with `mode` before it gets the bytes, and belongs to
/// the directory's owner; nothing that stood under the temporary name is written to. Writers of the same file take
/// turns. What a killed writer left behind bears the one temporary name and is replaced by the next writer, so that
/// files with secrets do not pile up. `error`, where given, says what failed.
WriteOutcome ReplaceFile(const std::string& path, const std::string& bytes, unsigned mode,
                         FileError* error = nullptr);

/// True when ReplaceFile wrote and flushed the file.
inline bool WriteFileAtomically(const std::string& path, const std::string& bytes, unsigned mode) {
  return ReplaceFile(path, bytes, mode) == WriteOutcome::kWritten;
}

}  // namespace platform
