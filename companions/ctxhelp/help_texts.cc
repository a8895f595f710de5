// SPDX-License-Identifier: MIT
#include "companions/ctxhelp/help_texts.h"

#include <nlohmann/json.hpp>

#include "companions/ctxhelp/help_pages.h"
#include "companions/ctxhelp/resource_directory.h"
#include "platform/base/paths.h"

namespace ctxhelp {
namespace {

using Json = nlohmann::json;

constexpr int kMostSteps = 4;  // a file that is like itself must not be followed for ever

/// The texts are read at each request: help is asked for rarely, and a corrected text shows at once.
Json ReadPage(const std::string& file) {
  std::string bytes;
  if (!platform::ReadWholeFile(ResourceDirectory() + "/help/" + file + ".json", bytes)) return {};
  return Json::parse(bytes, nullptr, false);
}

std::string TextIn(const Json& object, const std::string& member) {
  const auto found = object.is_object() ? object.find(member) : object.end();
  return found != object.end() && found->is_string() ? found->get<std::string>() : "";
}

std::string OwnText(const Json& page, int control) {
  if (control == 0) return TextIn(page, "page");
  return page.is_object() && page.contains("controls") ? TextIn(page["controls"], std::to_string(control))
                                                       : "";
}

}  // namespace

const char* HelpFileOf(int page) {
  switch (page) {
#define HELP_PAGE(name, number, file) \
  case name:                          \
    return file;
#include "companions/ctxhelp/help_pages.def"
#undef HELP_PAGE
    default:
      return "";
  }
}

std::string HelpText(int topic) {
  const int control = topic % kTopicsPerPage;
  std::string file = HelpFileOf(topic - control);
  for (int step = 0; step < kMostSteps && !file.empty(); ++step) {
    const Json page = ReadPage(file);
    if (std::string text = OwnText(page, control); !text.empty()) return text;
    file = TextIn(page, "like");
  }
  return {};
}

}  // namespace ctxhelp
