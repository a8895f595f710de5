// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "companions/dbconfig/site.h"

namespace dbconfig {

/// The alert managers' configuration as one JSON document, passwords included (docs/configuration-file.md).
/// The same site gives the same bytes. Bytes of texts that are not UTF-8 are replaced by U+FFFD.
std::string WriteDocument(const Site& site);

}  // namespace dbconfig
