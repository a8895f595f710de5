// SPDX-License-Identifier: MIT
#pragma once

#include <nlohmann/json.hpp>

#include "companions/dbconfig/site.h"

namespace dbconfig {

/// The document that WriteDocument writes, for programs that look at it. Texts have the bytes of the records, also those that
/// are not UTF-8.
nlohmann::ordered_json MakeDocument(const Site& site);

}  // namespace dbconfig
