// SPDX-License-Identifier: MIT
#include "server/transports/transports.h"

#ifdef ALERTSERVER_WITH_SNMP

#include <netdb.h>

#include <algorithm>

#include "server/trap_sender.h"

namespace alertserver {
namespace {

struct FreeAddresses {
  void operator()(addrinfo* list) const { freeaddrinfo(list); }
};

/// The host in numbers; "" with the reason where it cannot be had.
std::string NumericAddress(const std::string& host, std::string& problem) {
  addrinfo wanted{}, *found = nullptr;
  wanted.ai_socktype = SOCK_DGRAM;
  if (const int error = getaddrinfo(host.c_str(), nullptr, &wanted, &found); error != 0) {
    problem = gai_strerror(error);
    return {};
  }
  const std::unique_ptr<addrinfo, FreeAddresses> list(found);
  char text[NI_MAXHOST] = "";
  getnameinfo(list->ai_addr, list->ai_addrlen, text, sizeof text, nullptr, 0, NI_NUMERICHOST);
  return text;
}

std::string HostOf(const SnmpManager& manager) {
  return manager.address.empty() ? manager.computer : manager.address;
}

/// The name in the report's row.
std::string NameOf(const SnmpManager& manager) {
  return manager.computer.empty() ? manager.address : manager.computer;
}

StepOutcome ByTrap(const TrapRequest& request, Context& context, const std::string& to) {
  const bool version_1 = context.settings.trap_version_1;
  if (const std::string problem = SendTrap(request, version_1); !problem.empty())
    return StepOutcome::Failed(Verdict::kNotReached, problem, "The trap could not be sent.",
                               Field::kSnmpAddress)
        .AndGoOn();
  context.transcript.Sent(std::string(version_1 ? "version 1" : "version 2c") + " trap to " + to);
  return StepOutcome::Sent(to + ": sent, not confirmed");
}

/// A trap follows an inform that nobody answers: many receivers take traps alone.
StepOutcome ByInform(const TrapRequest& request, Context& context, const std::string& to) {
  context.transcript.Sent("inform to " + to);
  const InformAnswer answer = SendInform(request, std::min(context.settings.inform_wait, context.Left()));
  switch (answer.kind) {
    case InformAnswer::Kind::kConfirmed:
      context.transcript.Received("response from " + to);
      return StepOutcome::Delivered(to + ": confirmed");
    case InformAnswer::Kind::kRefused:
      context.transcript.Received("error response from " + to + ": " + answer.said);
      return StepOutcome::Failed(Verdict::kRefused, to + ": " + answer.said,
                                 "An SNMP manager answered with an error.", Field::kSnmpCommunity)
          .AndGoOn();
    case InformAnswer::Kind::kSilent:
      context.transcript.Note("no answer to the inform");
      break;
    case InformAnswer::Kind::kNotSent:
      context.transcript.Note("the inform could not be sent: " + answer.said);
  }
  return ByTrap(request, context, to);
}

StepOutcome Send(const SnmpManager& manager, Context& context) {
  if (!manager.enabled) return StepOutcome::NotNeeded("switched off");
  std::string problem;
  const std::string host = HostOf(manager);
  const std::string address = NumericAddress(host, problem);
  if (address.empty())
    return StepOutcome::Failed(Verdict::kNotReached, host + ": " + problem,
                               "The name or address of an SNMP manager is not known.", Field::kSnmpAddress)
        .AndGoOn();
  const TrapRequest request{address, context.settings.trap_port, manager.community,
                            context.settings.trap_enterprise, context.job.message};
  const std::string to = address + ", port " + std::to_string(request.port);
  const bool inform = !context.settings.trap_version_1 && context.settings.inform_wait.count() > 0;
  return inform ? ByInform(request, context, to) : ByTrap(request, context, to);
}

/// One step for each SNMP manager of the site; what fails with one does not concern the others.
class SnmpTrap : public Transport {
 public:
  std::vector<Step> Steps(const Context& context) override {
    const auto& managers = context.configuration.snmpManagers;
    if (std::ranges::none_of(managers, &SnmpManager::enabled))
      return {NotPossibleStep("the site has no SNMP manager to send traps to. Add one.")};
    std::vector<Step> steps;
    for (const SnmpManager& manager : managers)
      steps.push_back({"Send to " + NameOf(manager),
                       [&manager](Context& given) { return Send(manager, given).Of(HostOf(manager)); }});
    return steps;
  }
};

}  // namespace

TransportPtr MakeSnmpTrap() { return std::make_unique<SnmpTrap>(); }

}  // namespace alertserver

#else

namespace alertserver {
TransportPtr MakeSnmpTrap() { return MakeNotPossible("it was built without net-snmp, which sends traps."); }
}  // namespace alertserver

#endif
