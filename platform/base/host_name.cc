// SPDX-License-Identifier: MIT
#include "platform/base/host_name.h"

#include <unistd.h>

namespace platform {

std::string HostName() {
  char name[256] = "";
  gethostname(name, sizeof name - 1);
  return name;
}

}  // namespace platform
