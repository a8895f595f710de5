// SPDX-License-Identifier: MIT
#include "console/alertconsole_library.h"

#include <cstdlib>
#include <filesystem>

#include "companions/alertstore/left_out.h"
#include "companions/alertstore/problem.h"

namespace alertconsole {

namespace fs = std::filesystem;

namespace {

constexpr std::uint32_t kWereOpen = 1;

}  // namespace

std::string StoresCannotBeOpened() {
  return "The record stores cannot be opened: " + alertstore::LastProblem().text +
         ".\n\nMend that, or name another data directory with --data.";
}

std::string LeftOutNote() {
  const std::string left_out = alertstore::DescribeLeftOut(alertstore::LeftOutRecords());
  return left_out.empty() ? left_out : left_out + ": restore a backup";
}

std::string AlertingLibrary::PathOf(const std::string& given) {
  if (!given.empty()) return given;
  if (const char* named = std::getenv("ALERTING_LIBRARY"); named != nullptr && *named != '\0') return named;
  std::error_code ignored;
  const fs::path program = fs::read_symlink("/proc/self/exe", ignored);
  const fs::path beside = program.parent_path() / "../lib/libalerting.so";
  return fs::exists(beside, ignored) ? beside.lexically_normal().string() : "libalerting.so";
}

AlertingLibrary::Loaded::Loaded(const std::string& path) {
  if (Load(path)) return;
  throw StartFailure("The alerting library cannot be loaded: " + Error() +
                     ". Install it beside this console, or name it with --library.");
}

template <typename Function>
Function* AlertingLibrary::Find(const char* decorated_name) const {
  if (void* function = library_.Find(decorated_name)) return reinterpret_cast<Function*>(function);
  throw StartFailure(std::string("The alerting library has no function ") + decorated_name +
                     ". Install the library that belongs to this console.");
}

AlertingLibrary::AlertingLibrary(const std::string& path)
    : library_(path),
      OpenDBs(Find<decltype(::OpenDBs)>("OpenDBs")),
      CloseDBs(Find<decltype(::CloseDBs)>("CloseDBs")),
      GetCount(Find<decltype(::DomainServiceGetCount)>("_DomainServiceGetCount@0")),
      GetInfo(Find<decltype(::DomainServiceGetInfo)>("_DomainServiceGetInfo@4")),
      GetIconOffset(Find<decltype(::DomainServiceGetIconOffset)>("_DomainServiceGetIconOffset@4")),
      PropertySheet(Find<decltype(::DomainServicePropertySheet)>("_DomainServicePropertySheet@8")),
      IsFirstOfType(Find<decltype(::DomainServiceIsFirstOfType)>("_DomainServiceIsFirstOfType@4")),
      CopyService(Find<decltype(::DomainServiceCopyService)>("_DomainServiceCopyService@8")),
      DeleteService(Find<decltype(::DomainServiceDeleteService)>("_DomainServiceDeleteService@20")),
      DialingRules(Find<decltype(::RulesDialog)>("_RulesDialog@16")),
      SelectProgram(Find<decltype(::SelectProgFileDialog)>("_SelectProgFileDialog@8")),
      SelectSound(Find<decltype(::SelectWAVFileDialog)>("_SelectWAVFileDialog@8")),
      SelectIcon(Find<decltype(::SelectIconFileDialog)>("_SelectIconFileDialog@12")),
      NewIconStrip(Find<decltype(::GetIconBitmapObject)>("_GetIconBitmapObject@0")),
      DeleteIconStrip(Find<decltype(::DeleteIconBitmapObject)>("_DeleteIconBitmapObject@4")) {
  if (OpenDBs() > kWereOpen) throw StartFailure(StoresCannotBeOpened());
}

AlertingLibrary::~AlertingLibrary() { CloseDBs(); }

bool AlertingLibrary::Reopen() {
  CloseDBs();
  return OpenDBs() <= kWereOpen;
}

}  // namespace alertconsole
