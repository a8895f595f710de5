// SPDX-License-Identifier: MIT
#include "server/transport_table.h"

#include <algorithm>

#include "server/serial/serial_transports.h"
#include "server/transports/transports.h"

namespace alertserver {
namespace {

constexpr TransportRow kRows[] = {
    {"mhs-mail", 1, MakeMhsMail, false},
    {"snmp-trap", 2, MakeSnmpTrap, false},
    {"mci-mail", 3, MakeMciMail, false},
    {"compuserve-mail", 4, MakeCompuServeMail, false},
    {"internet-mail", 5, MakeInternetMail, false},
    {"microsoft-mail", 6, MakeMicrosoftMail, false},
    {"cc-mail", 7, MakeCcMail, false},
    {"wave-file", 8, MakeWaveFile, false},
    {"text-to-speech", 9, MakeTextToSpeech, false},
    {"alphanumeric-pager", 11, MakeAlphanumericPager, true},
    {"numeric-pager", 12, MakeNumericPager, true},
    {"generic-port", 13, MakeGenericPort, true},
    {"program-launch", 14, MakeProgramLaunch, false},
};

}  // namespace

const TransportRow* FindTransport(std::string_view type) {
  const auto row = std::ranges::find(kRows, type, &TransportRow::type);
  return row != std::end(kRows) ? row : nullptr;
}

}  // namespace alertserver
