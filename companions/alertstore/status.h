// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace alertstore {

/// The answer of every store operation: 0 is success, anything else a failure of one family, 0x20000 + code.
using Status = std::uint32_t;

inline constexpr Status kOk = 0;
/// No record has the key or the identity asked for.
inline constexpr Status kNotFound = 0x200C8;
/// The scan has no further record, or none was begun.
inline constexpr Status kEndOfScan = 0x200C9;
/// The store is not open.
inline constexpr Status kStoreClosed = 0x200CB;
/// A selector that the store does not have, a key without bytes, a file name or a name that cannot be kept.
inline constexpr Status kInvalidArgument = 0x200CC;
/// The unique name, or the identity, is taken by another record.
inline constexpr Status kNotUnique = 0x200CE;
/// Another console, or another store object, kept the lock or the database longer than a caller may wait.
inline constexpr Status kLockTimeout = 0x200CF;
/// This store object holds its file lock already.
inline constexpr Status kAlreadyLocked = 0x200D0;
/// This store object holds no file lock.
inline constexpr Status kNotLocked = 0x200D1;
/// The data directory or a file in it cannot be made, read or written, for another cause than those below.
inline constexpr Status kIoError = 0x200D2;
/// The disk is full.
inline constexpr Status kDiskFull = 0x200D3;
/// The file is no database of these stores, or the record asked for has not the size of a record.
inline constexpr Status kCorrupt = 0x200D4;
/// A write was asked for inside a consistent read (Engine::BeginRead).
inline constexpr Status kInsideRead = 0x200D5;
/// Out of memory.
inline constexpr Status kNoMemory = 0x200D6;
/// This account may not read or write the data directory or a file in it.
inline constexpr Status kNoPermission = 0x200D7;
/// The data can be read but not written: the file system is mounted read-only.
inline constexpr Status kReadOnly = 0x200D8;
/// The data directory, or a file in it, is not safe from other accounts and therefore not used.
inline constexpr Status kUnsafe = 0x200D9;
/// The path of the data directory is too long for its database.
inline constexpr Status kPathTooLong = 0x200DA;

}  // namespace alertstore
