// SPDX-License-Identifier: MIT
#include "server/recipient.h"

#include "platform/base/host_name.h"
#include "platform/base/utf8.h"

namespace alertserver {
namespace {

StepOutcome FindRecipient(const Context& context, std::string& address) {
  const User* const user = context.service.FindUser(context.job.response.user);
  if (user == nullptr)
    return StepOutcome::Failed(Verdict::kNotPossible, "",
                               "The recipient has no entry on the service: add the user to it.",
                               Field::kAddress);
  if (user->address.empty())
    return StepOutcome::Failed(Verdict::kNotPossible, "",
                               "The recipient's entry on the service has no address.", Field::kAddress);
  if (!user->enabled)
    return StepOutcome::Failed(
        Verdict::kNotPossible, "",
        "The recipient's entry on the service is switched off, so no alert goes there.", Field::kUserEnabled);
  address = user->address;
  return StepOutcome::Done(user->name + ": " + address);
}

/// A computer's name without its domain.
std::string_view ShortName(std::string_view name) { return name.substr(0, name.find('.')); }

bool IsThisMachine(const std::string& target) {
  return target.empty() || platform::EqualIgnoringCase(target, "localhost") ||
         platform::EqualIgnoringCase(ShortName(target), ShortName(platform::HostName()));
}

}  // namespace

Step FindRecipientStep(std::string& address) {
  return {"Find the recipient", [&address](Context& context) { return FindRecipient(context, address); }};
}

Step CheckTargetStep(std::string what) {
  return {"Find the target", [what = std::move(what)](Context& context) {
            const std::string& target = context.job.response.user_name;
            if (IsThisMachine(target)) return StepOutcome::Done("this machine");
            return StepOutcome::Failed(Verdict::kNotPossible, target,
                                       "Not possible from this server: " + what + " on its own machine, " +
                                           platform::HostName() + ", alone, and the target is " + target +
                                           ".",
                                       Field::kUserName);
          }};
}

}  // namespace alertserver
