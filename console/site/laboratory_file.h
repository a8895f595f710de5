// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/base/guid.h"

// What a laboratory changes in a site, and the file in the data directory that remembers it: `laboratory.json`. It is written
// before anything is changed and goes when everything is back, so that whoever finds it can put back what a console that was
// ended early could not.

namespace site {

/// A field as its record holds it, byte by byte.
struct ChangedField {
  std::string name;
  std::string before, during;
};

/// Fields of one record that belong together: where the first is not as the laboratory left it, somebody chose anew, and the
/// others are that one's too.
struct ChangedRecord {
  std::string what;   ///< for people: "the mail server of "Internet Mail""
  std::string store;  ///< see laboratory_stores.h
  platform::GUID id;
  std::vector<ChangedField> fields;
};

/// A record that is there with the laboratory alone.
struct AddedRecord {
  std::string what;
  std::string store;
  std::string bytes;
};

/// The alert server's settings, `alertserver.json`.
struct ChangedSettings {
  std::optional<std::string> before;  ///< nothing where there was no file
  unsigned mode = 0600;
  std::string during;
};

struct LaboratoryChanges {
  std::vector<AddedRecord> added;
  std::vector<ChangedRecord> changed;
  ChangedSettings settings;
};

/// Whether there is such a file, and with it values of a laboratory in the site.
bool LaboratoryIsRemembered();
/// Throws a Failure when the file cannot be written.
void RememberLaboratory(const LaboratoryChanges& changes);
/// Nothing where there is no file. Throws a Failure when it cannot be read.
std::optional<LaboratoryChanges> RememberedLaboratory();
/// Throws a Failure when the file cannot be removed.
void ForgetLaboratory();

}  // namespace site
