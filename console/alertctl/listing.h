// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "console/alertctl/verbs.h"

namespace alertctl {

/// What a list verb lists, before it is narrowed, put in order and printed.
struct Listing {
  struct Row {
    std::vector<std::string> cells;
    Json item;             ///< what --json prints
    std::string identity;  ///< what --quiet prints
  };
  std::vector<std::string> headings;
  std::string nothing;  ///< what is said where there is nothing to list
  std::vector<Row> rows;
};

/// A verb "list" of `noun`, with the options that all of them have.
CLI::App& AddListVerb(Verbs& verbs, CLI::App& noun, const std::string& description,
                      const std::string& examples, std::function<Listing()> list);

}  // namespace alertctl
