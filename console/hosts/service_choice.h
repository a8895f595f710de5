// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "console/hosts/record_list.h"
#include "console/site/library_calls.h"

// Services to choose from. Everything keeps their identities: indices move when another console deletes one.

namespace hosts {

inline constexpr char kServiceDeleted[] = "Another console has deleted the service.";

/// Rows with name and type of the library's services, of those alone that `wanted` says so of by their index.
std::vector<RecordList::Row> ServiceRows(const site::LibraryCalls& calls,
                                         const std::function<bool(int)>& wanted = {});
/// The columns for those rows.
void AddServiceColumns(RecordList& list);

/// The index of a service for the calls that follow at once. -1, after `gone` was told, when there is no such service any
/// more: the stores are asked, as the library may have read its list before another console deleted it.
int IndexOrTell(const site::LibraryCalls& calls, const platform::GUID& service,
                const std::string& gone = kServiceDeleted);

}  // namespace hosts
