// SPDX-License-Identifier: MIT
#include "server/keywords.h"

#include <algorithm>
#include <ctime>

namespace alertserver {
namespace {

std::string LocalTime(const KeywordSources& sources, const char* format) {
  const std::time_t seconds = std::chrono::system_clock::to_time_t(sources.now);
  std::tm fields{};
  localtime_r(&seconds, &fields);
  char text[64];
  return {text, std::strftime(text, sizeof text, format, &fields)};
}

using Sources = const KeywordSources&;

/// What a test has no value of its own for says that it is one.
constexpr KeywordRow kRows[] = {
    {1, "<User Name>", "%s", [](Sources sources) { return sources.user_name; }},
    {2, "<Workstation>", "%s", [](Sources sources) { return sources.workstation; }},
    {3, "<Site Name>", "%s", [](Sources sources) { return sources.site_name; }},
    {4, "<Event Name>", "%s", [](Sources) { return std::string("Test"); }},
    {5, "<Time>", "%s", [](Sources sources) { return LocalTime(sources, "%H:%M:%S"); }},
    {6, "<Date>", "%s", [](Sources sources) { return LocalTime(sources, "%Y-%m-%d"); }},
    {7, "<Date/Time>", "%s", [](Sources sources) { return LocalTime(sources, "%Y-%m-%d %H:%M:%S"); }},
    {8, "<Severity>", "%s", [](Sources) { return std::string("Test"); }},
    {9, "<Source Address>", "%s", [](Sources sources) { return sources.address; }},
    {10, "<Product Name>", "%s", [](Sources) { return std::string("Alerting"); }},
    {11, "<Event ID>", "%ld", [](Sources) { return std::string("0"); }},
    {12, "<Event Text>", "%s", [](Sources) { return std::string("This is a test."); }},
    {13, "<Text Param>", "%s", [](Sources) { return std::string("Test"); }}};

/// The row that the text's beginning stands for, where that keyword comes next; else null.
const KeywordRow* PlaceholderAt(std::string_view text, std::uint8_t id) {
  const auto row = std::ranges::find(kRows, id, &KeywordRow::id);
  return row != std::end(kRows) && text.starts_with(row->placeholder) ? row : nullptr;
}

}  // namespace

std::span<const KeywordRow> KeywordRows() { return kRows; }

std::string KeywordFiller::Fill(std::string_view text) {
  std::string filled;
  for (std::size_t at = 0; at < text.size();) {
    const KeywordRow* row = next_ < ids_.size() ? PlaceholderAt(text.substr(at), ids_[next_]) : nullptr;
    filled += row != nullptr ? row->value(sources_) : std::string(1, text[at]);
    at += row != nullptr ? row->placeholder.size() : 1;
    next_ += row != nullptr ? 1 : 0;
  }
  return filled;
}

std::string FillKeywords(const StoredText& text, const KeywordSources& sources) {
  return KeywordFiller(text.keywords, sources).Fill(text.text);
}

}  // namespace alertserver
