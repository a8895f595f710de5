// SPDX-License-Identifier: MIT
#include "console/site/csv.h"

#include <csv.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace site {
namespace {

/// Fed line by line, since libcsv does not count lines.
class Parser {
 public:
  explicit Parser(const std::function<void(const CsvRow&)>& take) : take_(take) {
    if (csv_init(&parser_, CSV_STRICT | CSV_STRICT_FINI) != 0) throw std::runtime_error("cannot read CSV");
  }
  ~Parser() { csv_free(&parser_); }
  Parser(const Parser&) = delete;
  Parser& operator=(const Parser&) = delete;

  bool Feed(std::string_view line);
  bool Finish() { return csv_fini(&parser_, OnField, OnRow, this) == 0; }
  std::size_t RowLine() const { return row_.line; }

 private:
  static void OnField(void* bytes, std::size_t size, void* self);
  static void OnRow(int end, void* self);

  csv_parser parser_;
  const std::function<void(const CsvRow&)>& take_;
  CsvRow row_{1, {}};
  std::size_t line_ = 1;
  bool between_rows_ = true;
};

bool Parser::Feed(std::string_view line) {
  if (std::exchange(between_rows_, line.find_first_not_of("\r\n \t") == line.npos && between_rows_))
    row_.line = line_;
  ++line_;
  return csv_parse(&parser_, line.data(), line.size(), OnField, OnRow, this) == line.size();
}

void Parser::OnField(void* bytes, std::size_t size, void* self) {
  static_cast<Parser*>(self)->row_.fields.emplace_back(static_cast<const char*>(bytes), size);
}

void Parser::OnRow(int, void* self) {
  auto& parser = *static_cast<Parser*>(self);
  parser.take_(parser.row_);
  parser.row_.fields.clear();
  parser.between_rows_ = true;
}

/// The first line of the text with its end: LF, CR LF, or CR alone.
std::string_view FirstLine(std::string_view text) {
  std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
  if (text.substr(end).starts_with("\r\n")) ++end;
  return text.substr(0, end + 1);
}

}  // namespace

std::size_t ReadCsv(std::string_view text, const std::function<void(const CsvRow&)>& take) {
  Parser parser(take);
  while (!text.empty()) {
    const std::string_view line = FirstLine(text);
    if (!parser.Feed(line)) return parser.RowLine();
    text.remove_prefix(line.size());
  }
  return parser.Finish() ? 0 : parser.RowLine();
}

}  // namespace site
