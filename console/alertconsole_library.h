// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>

#include "alerting/alerting.h"
#include "platform/base/module.h"

namespace alertconsole {

/// Why the stores cannot be opened, as it was just found, and what to do.
std::string StoresCannotBeOpened();
/// What the services shown lack because it could not be read; "" when nothing does.
std::string LeftOutNote();

/// What keeps the console from starting, in words for the person in front of it.
class StartFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The functions of the alerting library that the console calls, found by name in the loaded library.
class AlertingLibrary {
 public:
  /// Loads the library and opens its stores. Throws a StartFailure when either fails.
  explicit AlertingLibrary(const std::string& path);
  ~AlertingLibrary();

  /// The library that is meant: `given`, else the environment's ALERTING_LIBRARY, else the one installed or
  /// built beside this program, else wherever the loader finds it.
  static std::string PathOf(const std::string& given);

  /// Drops what the library has read, so that it sees what others have changed.
  bool Reopen();

 private:
  template <typename Function>
  Function* Find(const char* decorated_name) const;

  /// Loaded before the functions are looked up in it.
  struct Loaded : platform::DynamicLibrary {
    explicit Loaded(const std::string& path);
  };
  Loaded library_;

 public:
  decltype(::OpenDBs)* const OpenDBs;
  decltype(::CloseDBs)* const CloseDBs;
  decltype(::DomainServiceGetCount)* const GetCount;
  decltype(::DomainServiceGetInfo)* const GetInfo;
  decltype(::DomainServiceGetIconOffset)* const GetIconOffset;
  decltype(::DomainServicePropertySheet)* const PropertySheet;
  decltype(::DomainServiceIsFirstOfType)* const IsFirstOfType;
  decltype(::DomainServiceCopyService)* const CopyService;
  decltype(::DomainServiceDeleteService)* const DeleteService;
  decltype(::RulesDialog)* const DialingRules;
  decltype(::SelectProgFileDialog)* const SelectProgram;
  decltype(::SelectWAVFileDialog)* const SelectSound;
  decltype(::SelectIconFileDialog)* const SelectIcon;
  decltype(::GetIconBitmapObject)* const NewIconStrip;
  decltype(::DeleteIconBitmapObject)* const DeleteIconStrip;
};

}  // namespace alertconsole
