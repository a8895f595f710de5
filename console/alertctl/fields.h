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
  /// Adds the options to a verb. They stay where they are for as long as the program runs. Secrets are read while the
  /// command line is, before anything is locked: parsing throws a Failure when one cannot be.
  void AddTo(CLI::App& verb, FieldOptions options);

  bool Any() const;
  /// Throws a Failure (kUsage) when there is nothing to change.
  void RequireAny() const;
  /// In the order of the options, with secrets in place of their files.
  FieldValues Values() const;
  /// Those of one page of a sheet.
  FieldValues ValuesOn(const std::string& page) const;
  const std::string* Find(const std::string& option) const;

 private:
  struct Given {
    const FieldOption* option;
    std::optional<std::string> value;
  };
  void ReadSecrets();

  std::vector<std::unique_ptr<Given>> given_;
};

/// The secret in a file of one line; "-" is standard input. Throws a Failure: kNothingMatched where there is no such file,
/// kStoreFailure where it cannot be read, kInvalid for what holds no secret. An empty file is none, as the output of a
/// program that failed is, but for /dev/null: that stands for no secret. Nothing of it is in the message.
std::string ReadSecret(const std::string& file);

}  // namespace alertctl
