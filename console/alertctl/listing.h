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
    std::function<Json()> item;  ///< makes what --json prints
    std::string identity;        ///< what --quiet prints
  };
  std::vector<std::string> headings;
  std::string nothing;  ///< what is said where there is nothing to list
  std::vector<Row> rows;
};

/// An item that is there already.
inline std::function<Json()> Made(Json item) {
  return [item = std::move(item)] { return item; };
}

/// A verb "list" of `noun`, with the options that all of them have.
CLI::App& AddListVerb(Verbs& verbs, CLI::App& noun, const std::string& description,
                      const std::string& examples, std::function<Listing()> list);

}  // namespace alertctl
