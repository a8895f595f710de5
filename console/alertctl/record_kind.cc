// SPDX-License-Identifier: MIT
#include "console/alertctl/record_kind.h"

#include <algorithm>
#include <memory>
#include <set>

#include "console/alertctl/site.h"
#include "console/alertctl/text.h"

namespace alertctl {
namespace {

std::string Cell(const Json& record, const RecordKind::Column& column) {
  const Json& value = record[column.member];
  if (value.is_boolean()) return YesNo(value);
  return value.is_string() ? value.get<std::string>() : value.is_null() ? "" : value.dump();
}

Listing List(const RecordKind& kind) {
  Listing listing{{}, kind.nothing, {}};
  for (const auto& column : kind.columns) listing.headings.push_back(column.heading);
  listing.headings.push_back("IDENTITY");
  for (const Json& record : kind.load()) {
    Listing::Row row{{}, Made(record), record["id"]};
    for (const auto& column : kind.columns) row.cells.push_back(Cell(record, column));
    row.cells.push_back(record["id"]);
    listing.rows.push_back(std::move(row));
  }
  return listing;
}

}  // namespace

Json FindRecord(const RecordKind& kind, const std::string& name) {
  Json objects = Json::array();
  const Json records = kind.load();
  for (const Json& record : records) objects.push_back({{"id", record["id"]}, {"name", record[kind.name]}});
  const Json id = FindOne(objects, name, kind.called, std::string("alertctl ") + kind.noun + " list")["id"];
  return *std::ranges::find_if(records, [&](const Json& record) { return record["id"] == id; });
}

std::string Quoted(const RecordKind& kind, const Json& record) {
  return std::string("the ") + kind.called + " \"" + record[kind.name].get<std::string>() + "\"";
}

Result Told(const RecordKind& kind, const std::string& done, const std::string& id) {
  const Json record = FindRecord(kind, id);
  return {record, done + " " + Quoted(kind, record) + ".\n"};
}

Result ToldGone(const RecordKind& kind, const Json& record) {
  return {record, "Removed " + Quoted(kind, record) + ".\n"};
}

CLI::App& AddChangeVerb(Verbs& verbs, CLI::App& noun, const RecordKind& kind, const RecordVerb& verb) {
  const auto arguments = std::make_shared<RecordArguments>();
  CLI::App& added = verbs.AddVerb(noun, verb.name, Access::kChange, verb.description, verb.examples,
                                  [run = verb.run, arguments] { return run(*arguments); });
  added.add_option(kind.noun, arguments->name, "Name, or identity of one that is there")->required();
  for (const FieldOptions options : verb.options) arguments->fields.AddTo(added, options);
  return added;
}

namespace {

/// The record of that name that was not there before, whatever others changed meanwhile; null for none.
Json NewRecord(const RecordKind& kind, const Json& before, const std::string& name) {
  const auto identities = [](const Json& records) {
    std::set<std::string> ids;
    for (const Json& record : records) ids.insert(record["id"]);
    return ids;
  };
  const std::set<std::string> known = identities(before);
  for (const Json& record : kind.load())
    if (record[kind.name] == name && !known.contains(record["id"])) return record;
  return {};
}

/// Takes a record away that was refused its settings. Says so where that fails.
std::string Discard(const RecordKind& kind, const Json& record) {
  if (record.is_null() || kind.remove(IdOf(record)) == alertstore::kOk) return {};
  return "; " + Quoted(kind, record) + " is there all the same, without its settings: remove it, or set them";
}

}  // namespace

std::string AddWhole(const RecordKind& kind, const std::string& name, const std::function<void()>& add) {
  const Json before = kind.load();
  try {
    add();
  } catch (const Failure& failure) {
    const std::string left = Discard(kind, NewRecord(kind, before, name));
    if (left.empty()) throw;
    throw Failure(failure.Code(), failure.what() + left);
  }
  const Json added = NewRecord(kind, before, name);
  if (added.is_null())
    throw Failure(kStoreFailure,
                  std::string("the ") + kind.called + " is gone again: another console has removed it");
  return added["id"];
}

Library::Story FillNew(const RecordArguments& arguments, const std::string& name_label,
                       const std::string& page) {
  return [&arguments, name_label, page](console_operator::OperatedWindow& dialog) {
    dialog.FillAll(arguments.fields.ValuesOn(page), dialog.Caption());
    const FieldOption name = {"the name", FieldKind::kText, "", {name_label}};
    dialog.Fill(name, arguments.name);
    dialog.Finish();
  };
}

void AddLookVerbs(Verbs& verbs, CLI::App& noun, const RecordKind& kind, const std::string& list_examples,
                  const std::string& show_examples) {
  const std::string called = kind.called;
  AddListVerb(verbs, noun, "Lists the " + called + "s.", list_examples, [&kind] { return List(kind); });
  const auto name = std::make_shared<std::string>();
  verbs
      .AddVerb(noun, "show", Access::kRead, "Shows one " + called + " whole.", show_examples,
               [&kind, name] {
                 const Json record = FindRecord(kind, *name);
                 return Result{record, Described(record, 0)};
               })
      .add_option(kind.noun, *name, "Name or identity")
      ->required();
}

}  // namespace alertctl
