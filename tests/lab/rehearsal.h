// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "server/delivery.h"
#include "tests/lab/laboratory_process.h"

// A site with one service, and a laboratory that it is rehearsed with.

namespace rehearsal {

inline constexpr char kManager[] = "ALPHA";
/// Numbers that the laboratory knows: of a numeric pager terminal, and of an alphanumeric one.
inline constexpr char kNumber[] = "5550200", kProvider[] = "5550100";

/// COM1 is the modem, COM2 the backup modem, COM3 the printer, COM4 the pager terminal.
alertserver::ModemLink LinkTo(std::string_view type, std::uint32_t com_port);
alertserver::Configuration SiteWith(std::string_view type);
alertserver::Settings SettingsFor(const LaboratoryProcess& laboratory);

/// With faults, apart by spaces.
std::unique_ptr<LaboratoryProcess> Start(const std::string& faults);

/// Sends a test through the one service of the site.
alertserver::Report Send(const alertserver::Configuration& configuration,
                         const alertserver::Settings& settings);
alertserver::Report Send(const LaboratoryProcess& laboratory,
                         const alertserver::Configuration& configuration);

/// True where the server was built without the library that sends such messages.
bool IsLeftOut(const alertserver::Report& report);

}  // namespace rehearsal
