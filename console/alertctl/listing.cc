// SPDX-License-Identifier: MIT
#include "console/alertctl/listing.h"

#include <algorithm>
#include <cctype>
#include <memory>

#include "console/alertctl/text.h"
#include "platform/base/utf8.h"

namespace alertctl {
namespace {

/// What the options of a list ask for.
struct Wanted {
  std::vector<std::string> where;
  std::string sort;
  bool reverse = false, quiet = false;
};

/// As it is written in an option: "DELIVERED BY" is "delivered-by".
std::string FieldName(std::string heading) {
  std::ranges::transform(heading, heading.begin(),
                         [](unsigned char c) { return c == ' ' ? '-' : static_cast<char>(std::tolower(c)); });
  return heading;
}

std::size_t ColumnOf(const Listing& listing, const std::string& field) {
  std::string fields;
  for (std::size_t i = 0; i < listing.headings.size(); ++i) {
    if (FieldName(listing.headings[i]) == FieldName(field)) return i;
    fields += (i == 0 ? "" : ", ") + FieldName(listing.headings[i]);
  }
  throw Failure(kUsage, "the list has no field \"" + field + "\": it has " + fields);
}

bool Holds(const std::string& text, const std::string& part) {
  const auto same = [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); };
  return !std::ranges::search(text, part, same).empty() || part.empty();
}

void Narrow(const std::string& where, Listing& listing) {
  const std::size_t equals = where.find('=');
  if (equals == std::string::npos)
    throw Failure(kUsage,
                  "--where wants FIELD=TEXT, such as --where name=mail; \"" + where + "\" has no \"=\"");
  const std::size_t column = ColumnOf(listing, where.substr(0, equals));
  const std::string part = where.substr(equals + 1);
  std::erase_if(listing.rows, [&](const Listing::Row& row) { return !Holds(row.cells[column], part); });
}

bool IsNumber(const std::string& text) {
  return !text.empty() && std::ranges::all_of(text, [](unsigned char c) { return std::isdigit(c) != 0; });
}

/// Numbers by their value, and before texts.
bool IsLess(const std::string& a, const std::string& b) {
  if (!IsNumber(a) || !IsNumber(b)) return platform::LessIgnoringCase(a, b);
  return a.size() != b.size() ? a.size() < b.size() : a < b;
}

void Sort(const Wanted& wanted, Listing& listing) {
  if (!wanted.sort.empty()) {
    const std::size_t column = ColumnOf(listing, wanted.sort);
    std::ranges::stable_sort(listing.rows, [column](const Listing::Row& a, const Listing::Row& b) {
      return IsLess(a.cells[column], b.cells[column]);
    });
  }
  if (wanted.reverse) std::ranges::reverse(listing.rows);
}

Result Identities(const Listing& listing) {
  Result result{Json::array(), ""};
  for (const Listing::Row& row : listing.rows) {
    result.json.push_back(row.identity);
    result.text += row.identity + "\n";
  }
  return result;
}

Json Items(const Listing& listing) {
  Json items = Json::array();
  for (const Listing::Row& row : listing.rows) items.push_back(row.item());
  return items;
}

std::string Table(Listing& listing, bool there_is_something) {
  if (listing.rows.empty()) return there_is_something ? "Nothing in the list matches.\n" : listing.nothing;
  TextTable table(listing.headings);
  for (Listing::Row& row : listing.rows) table.Add(std::move(row.cells));
  return table.Text();
}

/// Of text and JSON only what is printed is made.
Result Print(Listing listing, const Wanted& wanted, bool json) {
  const bool there_is_something = !listing.rows.empty();
  for (const std::string& where : wanted.where) Narrow(where, listing);
  Sort(wanted, listing);
  if (wanted.quiet) return Identities(listing);
  return json ? Result{Items(listing), ""} : Result{Json(), Table(listing, there_is_something)};
}

}  // namespace

CLI::App& AddListVerb(Verbs& verbs, CLI::App& noun, const std::string& description,
                      const std::string& examples, std::function<Listing()> list) {
  const auto wanted = std::make_shared<Wanted>();
  CLI::App& verb = verbs.AddVerb(
      noun, "list", Access::kRead, description, examples,
      [wanted, &verbs, list = std::move(list)] { return Print(list(), *wanted, verbs.PrintsJson()); });
  verb.add_option("--where", wanted->where,
                  "List only what has TEXT in the column FIELD, in either case; several narrow further")
      ->type_name("FIELD=TEXT")
      ->take_all()
      ->allow_extra_args(false);
  verb.add_option("--sort", wanted->sort, "Order by the column FIELD")->type_name("FIELD")->check(kNotEmpty);
  verb.add_flag("--reverse", wanted->reverse, "The other way round");
  verb.add_flag("-q,--quiet", wanted->quiet, "Print identities alone, one a line");
  return verb;
}

}  // namespace alertctl
