// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace alertconsole {

/// A copy of the site in a directory of its own, which goes with the object, filled with examples where the site has
/// nothing yet: what pictures show must not come from, or go into, the site itself. While it lives it is the data
/// directory of this process. Throws a StartFailure when it cannot be made.
class SampleSite {
 public:
  SampleSite();
  ~SampleSite();
  SampleSite(const SampleSite&) = delete;
  SampleSite& operator=(const SampleSite&) = delete;

 private:
  void CopySite();

  std::string directory_;
};

}  // namespace alertconsole
