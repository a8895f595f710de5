// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace site {

/// How many records of each kind were added.
struct Added {
  std::size_t managers = 0;
  std::size_t computers = 0;
  std::size_t locations = 0;
  std::size_t modem_types = 0;
  std::size_t paging_providers = 0;
  std::size_t services = 0;
  std::size_t test_responses = 0;

  bool Any() const {
    return managers + computers + locations + modem_types + paging_providers + services + test_responses > 0;
  }
};

/// Adds what a first start needs, from the starter data among the resource files: this machine as alert
/// manager, a location, modem types, examples of paging providers, and a service of each type that the site has
/// none of, enabled on this machine, with its test response. A site that knows no computer gets this machine as
/// its first. What is there is left alone. A service is added last of what belongs to it, so that a run that was
/// cut short is completed by the next one, and a site that has all services gets nothing back that was removed
/// from it. Throws a Failure.
Added AddStarterData();

}  // namespace site
