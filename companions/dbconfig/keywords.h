// SPDX-License-Identifier: MIT
#pragma once

#include "companions/alertrecords/keyword_table.h"

namespace dbconfig {

/// The keywords under their names in the console's strings.
const alertrecords::KeywordTable& Keywords();

}  // namespace dbconfig
