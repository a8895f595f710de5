// SPDX-License-Identifier: MIT
// Loads and unloads the library with its shared object.
#include "alerting/api/load.h"

namespace {

struct LibraryLife {
  LibraryLife() { alerting::Load(); }
  ~LibraryLife() { alerting::Unload(); }
};

const LibraryLife life;

}  // namespace
