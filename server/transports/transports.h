// SPDX-License-Identifier: MIT
#pragma once

#include "server/transport.h"

// The transports, each in a file of its own name.

namespace alertserver {

TransportPtr MakeInternetMail();
TransportPtr MakeSnmpTrap();
TransportPtr MakeProgramLaunch();
TransportPtr MakeWaveFile();
TransportPtr MakeTextToSpeech();

/// Types whose services or client programs are gone.
TransportPtr MakeMhsMail();
TransportPtr MakeMciMail();
TransportPtr MakeCompuServeMail();
TransportPtr MakeMicrosoftMail();
TransportPtr MakeCcMail();

/// The one step of a transport that cannot send anything. `why`: sentences for the user.
Step NotPossibleStep(std::string why);
/// A transport of that step alone.
TransportPtr MakeNotPossible(std::string why);

}  // namespace alertserver
