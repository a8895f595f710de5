// SPDX-License-Identifier: MIT
#include <memory>

#include "console/alertctl/site.h"
#include "console/alertctl/text.h"
#include "console/site/services.h"

namespace alertctl {

void AddServiceNameVerbs(Verbs& verbs, CLI::App& service);

namespace {

constexpr char kRenameExamples[] = "  alertctl service rename \"MCI Mail\" \"Night mail\"";
constexpr char kOnExamples[] = "  alertctl service on \"Internet Mail\"";
constexpr char kOffExamples[] = "  alertctl service off \"Text to Speech\"";

struct Arguments {
  std::string service, new_name;
};

std::string Quoted(const Json& service) {
  return "the service \"" + service["name"].get<std::string>() + "\"";
}

Json NameAndSwitch(const Json& service) {
  return {{"id", service["id"]}, {"name", service["name"]}, {"enabled", service["enabled"]}};
}

Json Reread(const Json& service) { return NameAndSwitch(FindService(LoadDelivery(), service["id"])); }

Result Rename(const Arguments& arguments) {
  const Json site = LoadDelivery();
  const Json& service = FindService(site, arguments.service);
  CheckTyped("a service's name", arguments.new_name, site::kLongestServiceName);
  const alertstore::Status status = site::RenameService(IdOf(service), arguments.new_name);
  if (status == alertstore::kNotUnique)
    throw Failure(kInvalid,
                  "there is a service named \"" + arguments.new_name + "\" already: choose another name");
  if (status != alertstore::kOk) throw StoreFailure("rename " + Quoted(service), status);
  return {Reread(service), "Renamed " + Quoted(service) + " to \"" + arguments.new_name + "\".\n"};
}

Result Switch(const Arguments& arguments, bool on) {
  const Json site = LoadDelivery();
  const Json& service = FindService(site, arguments.service);
  const std::string word = on ? "on" : "off";
  const alertstore::Status status = site::SwitchService(IdOf(service), on);
  if (status != alertstore::kOk) throw StoreFailure("switch " + Quoted(service) + " " + word, status);
  return {Reread(service), "Switched " + Quoted(service) + " " + word + ".\n"};
}

}  // namespace

void AddServiceNameVerbs(Verbs& verbs, CLI::App& service) {
  const auto arguments = std::make_shared<Arguments>();
  const auto add = [&](const char* name, const char* description, const char* examples,
                       auto action) -> CLI::App& {
    CLI::App& verb = verbs.AddVerb(service, name, Access::kChange, description, examples,
                                   [arguments, action] { return action(*arguments); });
    verb.add_option("service", arguments->service, "Name or identity of the service")->required();
    return verb;
  };
  add("rename", "Gives a service another name, also in its entries and responses.", kRenameExamples, Rename)
      .add_option("new-name", arguments->new_name, "New name, at most 32 bytes")
      ->required();
  add("on", "Switches a service on: alerts may be sent through it.", kOnExamples,
      [](const Arguments& given) { return Switch(given, true); });
  add("off", "Switches a service off: nothing is sent through it.", kOffExamples,
      [](const Arguments& given) { return Switch(given, false); });
}

}  // namespace alertctl
