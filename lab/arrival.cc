// SPDX-License-Identifier: MIT
#include "lab/arrival.h"

namespace lab {
namespace {

using Json = nlohmann::ordered_json;

std::string Dump(const Json& value) { return value.dump(-1, ' ', false, Json::error_handler_t::replace); }

std::string Indented(std::string text) {
  for (std::size_t at = 0; (at = text.find('\n', at)) != text.npos; at += 5) text.insert(at + 1, "    ");
  return "\n    " + text;
}

/// Long and many-lined texts stand below the line, other values in it. What is there for programs is left out.
std::string ValueText(const std::string& name, const Json& value) {
  if (name == "raw") return "";
  const std::string text = value.is_string() ? value.get<std::string>() : Dump(value);
  if (text.find('\n') != text.npos) return "\n  " + name + ":" + Indented(text);
  return "  " + name + "=" + (value.is_string() ? "\"" + text + "\"" : text);
}

/// Control characters of one byte, and those of two bytes in UTF-8 (U+0080 to U+009F).
bool IsControl(std::string_view text, std::size_t at) {
  const auto byte = static_cast<unsigned char>(text[at]);
  const auto before = static_cast<unsigned char>(at == 0 ? 0 : text[at - 1]);
  return (byte < 0x20 && byte != '\n' && byte != '\t') || byte == 0x7F ||
         (before == 0xC2 && byte >= 0x80 && byte <= 0x9F);
}

/// A terminal acts on control characters, and what arrives here comes from anywhere.
std::string Harmless(std::string text) {
  std::erase(text, '\r');
  for (std::size_t at = 0; at < text.size(); ++at)
    if (IsControl(text, at)) text[at] = '?';
  return text;
}

}  // namespace

std::string ToJsonLine(const Arrival& arrival, const std::string& time) {
  Json line = {{"time", time}, {"device", arrival.device}, {"what", arrival.what}};
  line.update(arrival.details);
  return Dump(line) + "\n";
}

std::string ToText(const Arrival& arrival, const std::string& time) {
  std::string text = time + "  " + arrival.device + "  " + arrival.what;
  for (const auto& [name, value] : arrival.details.items()) text += ValueText(name, value);
  return Harmless(std::move(text)) + "\n";
}

}  // namespace lab
