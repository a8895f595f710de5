// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "console/alertctl/verbs.h"
#include "console/operator/field_option.h"

// Options that stand for fields of a window.

namespace alertctl {

using console_operator::FieldKind;
using console_operator::FieldOption;
using console_operator::FieldValues;
using FieldOptions = std::span<const FieldOption>;

/// What a command line gives of them.
class GivenFields {
 public:
  /// Adds the options to a verb. They stay where they are for as long as the program runs.
  void AddTo(CLI::App& verb, FieldOptions options);

  bool Any() const;
  /// Throws a Failure (kUsage) when there is nothing to change.
  void RequireAny() const;
  /// In the order of the options. Reads the files of secrets: throws a Failure when one cannot be read.
  FieldValues Values() const;
  /// Those of one page of a sheet.
  FieldValues ValuesOn(const std::string& page) const;
  const std::string* Find(const std::string& option) const;

 private:
  struct Given {
    const FieldOption* option;
    std::optional<std::string> value;
  };
  std::vector<std::unique_ptr<Given>> given_;
};

/// The secret in a file of one line; "-" is standard input. Throws a Failure (kInvalid) for what holds no secret, and
/// kNothingMatched or kStoreFailure where it cannot be read. Nothing of it is in the message.
std::string ReadSecret(const std::string& file);

}  // namespace alertctl
