// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "console/alertctl/fields.h"
#include "console/alertctl/library.h"
#include "console/alertctl/listing.h"

namespace alertctl {

/// A kind of record that people know by a name, such as modems: what "list" and "show" need to know of it.
struct RecordKind {
  struct Column {
    const char* heading;
    const char* member;
  };
  const char* noun;     ///< as it stands on the command line: "modem-type"
  const char* called;   ///< in sentences: "modem type"
  const char* nothing;  ///< what is said where there is none
  const char* name;     ///< the member that bears the name
  std::vector<Column> columns;
  Json (*load)();  ///< all of them, secrets masked
  alertstore::Status (*remove)(const platform::GUID& id) = nullptr;
};

/// Deletes a record that the console has no window for deleting quietly.
template <class Store>
alertstore::Status RemoveFrom(Store&& store, const platform::GUID& id) {
  const alertstore::Status status = store.DBOpen();
  return status == alertstore::kOk ? store.DBAlertRecDelete(id) : status;
}

/// The verbs "list" and "show".
void AddLookVerbs(Verbs& verbs, CLI::App& noun, const RecordKind& kind, const std::string& list_examples,
                  const std::string& show_examples);

/// What a verb that changes a record was given.
struct RecordArguments {
  std::string name;
  GivenFields fields;
};

/// A verb that changes a record, or adds one.
struct RecordVerb {
  const char* name;
  const char* description;
  const char* examples;
  Result (*run)(const RecordArguments& arguments);
  std::vector<FieldOptions> options;
};
CLI::App& AddChangeVerb(Verbs& verbs, CLI::App& noun, const RecordKind& kind, const RecordVerb& verb);

/// Runs what adds a record, and throws when it does. A record that was made and then refused its settings is taken away
/// again: half of it is not what was asked for. Answers the identity of the new one.
std::string AddWhole(const RecordKind& kind, const std::string& name, const std::function<void()>& add);
/// Fills in the name of a new record and what else its first window asks for, and presses OK.
Library::Story FillNew(const RecordArguments& arguments, const std::string& name_label,
                       const std::string& page);

/// The record of that name, in either case, or identity. Throws a Failure as FindOne does.
Json FindRecord(const RecordKind& kind, const std::string& name);
/// "the modem "Rack"".
std::string Quoted(const RecordKind& kind, const Json& record);
/// What a verb answers that changed the record: the record as it is now, and "Changed the modem "Rack".".
Result Told(const RecordKind& kind, const std::string& done, const std::string& id);
/// The same for one that is gone.
Result ToldGone(const RecordKind& kind, const Json& record);

}  // namespace alertctl
