// SPDX-License-Identifier: MIT
#include "alerting/services/types.h"

#include <memory>
#include <new>
#include <string>

#include "alerting/frame/strings.h"
#include "platform/base/utf8.h"

namespace alerting {
namespace {

constexpr char kFallbackName[] = " ";
constexpr std::uint32_t kLastOfferedCode = 13;

std::unique_ptr<CServiceTypeNameTable>& Table() {
  static std::unique_ptr<CServiceTypeNameTable> table;
  return table;
}

void LoadName(char (&slot)[256], std::uint32_t code) {
  const std::string& name = Text(kIdsTypeName0 + static_cast<int>(code));
  const std::size_t length = platform::Utf8Prefix(name, sizeof(slot) - 1);
  name.copy(slot, length);
  slot[length] = '\0';
}

}  // namespace

void BuildServiceTypeNames() {
  Table().reset(new (std::nothrow) CServiceTypeNameTable{});
  CServiceTypeNameTable* table = Table().get();
  if (table == nullptr) return;
  table->loaded = 1;
  table->fallback[0] = kFallbackName[0];
  for (const ServiceType& type : kServiceTypes) LoadName(table->names[type.code], type.code);
  LoadName(table->names[15], kTypeScript);
}

void FreeServiceTypeNames() { Table().reset(); }

const char* GetServiceTypeName(std::uint32_t code) {
  const CServiceTypeNameTable* table = Table().get();
  if (table == nullptr || table->loaded == 0) return kFallbackName;
  return code <= kLastOfferedCode ? table->names[code] : table->fallback;
}

}  // namespace alerting
