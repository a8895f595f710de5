// SPDX-License-Identifier: MIT
#include "server/transport_table.h"

#include <algorithm>

#include "server/serial/serial_transports.h"
#include "server/transports/transports.h"

namespace alertserver {
namespace {

constexpr TransportRow kRows[] = {
    {"mhs-mail", 1, MakeMhsMail, true, false},
    {"snmp-trap", 2, MakeSnmpTrap, false, false},
    {"mci-mail", 3, MakeMciMail, true, false},
    {"compuserve-mail", 4, MakeCompuServeMail, true, false},
    {"internet-mail", 5, MakeInternetMail, true, false},
    {"microsoft-mail", 6, MakeMicrosoftMail, true, false},
    {"cc-mail", 7, MakeCcMail, true, false},
    {"wave-file", 8, MakeWaveFile, false, false},
    {"text-to-speech", 9, MakeTextToSpeech, false, false},
    {"alphanumeric-pager", 11, MakeAlphanumericPager, true, true},
    {"numeric-pager", 12, MakeNumericPager, true, true},
    {"generic-port", 13, MakeGenericPort, false, true},
    {"program-launch", 14, MakeProgramLaunch, false, false},
};

}  // namespace

const TransportRow* FindTransport(std::string_view type) {
  const auto row = std::ranges::find(kRows, type, &TransportRow::type);
  return row != std::end(kRows) ? row : nullptr;
}

}  // namespace alertserver
