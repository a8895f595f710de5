// SPDX-License-Identifier: MIT
#include "companions/alertstore/status_text.h"

namespace alertstore {

const char* StatusText(Status status) {
  switch (status) {
    case kOk:
      return "nothing failed";
    case kNotFound:
    case kEndOfScan:
      return "the record is not there";
    case kStoreClosed:
      return "the store is not open";
    case kInvalidArgument:
      return "the store cannot keep such a value";
    case kNotUnique:
      return "the name or identity is taken";
    case kLockTimeout:
      return "another console keeps the store locked";
    case kAlreadyLocked:
    case kNotLocked:
      return "the store's lock was taken or given back twice";
    case kIoError:
      return "the data directory or a file in it cannot be made, read or written";
    case kDiskFull:
      return "the disk is full";
    case kCorrupt:
      return "alerting.db in the data directory is damaged or no database";
    case kInsideRead:
      return "the store was written to while it was being read";
    case kNoMemory:
      return "there is not enough memory";
    case kNoPermission:
      return "this account may not read or write the data directory or a file in it";
    case kReadOnly:
      return "the data can be read but not written";
    case kUnsafe:
      return "the data directory or a file in it is not safe from other accounts";
    case kPathTooLong:
      return "the path of the data directory is too long";
    default:
      return "an unknown failure of the store";
  }
}

}  // namespace alertstore
