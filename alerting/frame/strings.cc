// SPDX-License-Identifier: MIT
#include "alerting/frame/strings.h"

#include "alerting/frame/embedded_resources.h"

namespace alerting {
namespace {

platform::Module MakeModule() {
  platform::Module module("");
#define ALERTING_STRING(name, id, text) module.AddString(id, text);
#include "resources/strings.def"
#undef ALERTING_STRING
#define ALERTING_COUNTRY(id, name, code, has_area_codes) module.AddString(id, name);
#include "resources/countries.def"
#undef ALERTING_COUNTRY
  module.SetTitle(module.String(kIdsTitle));
  AddEmbeddedResources(module);
  return module;
}

}  // namespace

platform::Module& TheModule() {
  static platform::Module module = MakeModule();
  return module;
}

const std::string& Text(int id) { return TheModule().String(id); }

}  // namespace alerting
