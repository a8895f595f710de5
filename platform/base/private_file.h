// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/base/descriptor.h"

// The data directory holds passwords and decides whom alerts reach. Nobody but its owner may write to it, and what
// others may have laid there before (links, files of their own) is refused, not followed.

namespace platform {

/// Why something in the file system cannot be used.
struct FileError {
  /// The system's error number; 0 where nothing failed and the file itself is refused.
  int number = 0;
  /// What failed, and for a refusal what to do: "/data/alerting.lock is a symbolic link: remove it".
  std::string text;
};

/// "cannot open /data/file: No space left on device", from the system's present error number.
FileError SystemError(const std::string& doing, const std::string& path);

/// True when the directory is there, belongs to this account or this account is the system administrator's, and
/// nobody else can write to it.
bool CheckPrivateDirectory(const std::string& path, FileError& error);
/// Makes the directory with its parents where it is missing, then checks it.
bool PreparePrivateDirectory(const std::string& path, FileError& error);
/// True when the directory is fit for use, or is missing and could be made.
bool CouldPreparePrivateDirectory(const std::string& path, FileError& error);

/// True when there is no such file, or it is a regular one with a single name that belongs to its directory's owner.
bool CheckPrivateFile(const std::string& path, FileError& error);
/// Makes an empty file, mode 0600, where there is none, without opening it; then checks it. Made by the system
/// administrator's account it is given to its directory's owner, who could not use it otherwise.
bool MakePrivateFile(const std::string& path, FileError& error);
/// Opens the file for reading and writing. Not open when it is refused or cannot be opened.
Descriptor OpenExistingPrivateFile(const std::string& path, FileError& error);
/// The same, made as MakePrivateFile does where it is missing.
Descriptor OpenPrivateFile(const std::string& path, FileError& error);
/// Gives a new file of the system administrator's account to the owner of the directory that `path` names it in. True
/// when there was nothing to do, too.
bool GiveToDirectoryOwner(int file, const std::string& path);

/// True when the name still stands for the open file.
bool IsFileAt(const std::string& path, int file);

/// The directory that a path names its last part in; "." where it has one part.
std::string ParentOf(const std::string& path);
/// Makes what was done to the names in a directory last. False when it may not last; file systems that cannot flush a
/// directory keep it anyway.
bool FlushDirectory(const std::string& path);

}  // namespace platform
