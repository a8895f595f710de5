// SPDX-License-Identifier: MIT
#include <memory>

#include "companions/alertstore/records_common.h"
#include "console/alertctl/library.h"
#include "console/alertctl/site.h"
#include "console/alertctl/text.h"
#include "console/alertctl/verbs.h"
#include "platform/base/utf8.h"

namespace alertctl {

void AddServiceChangeVerbs(Verbs& verbs, CLI::App& service);

namespace {

constexpr char kCopyExamples[] =
    "  alertctl service copy \"Internet Mail\" \"Night shift mail\"\n"
    "  alertctl service copy \"Numeric Pager\" \"Pager 2\" --manager \"$(uname -n)\"";
constexpr char kDeleteExamples[] = "  alertctl service delete \"Pager 2\"";
constexpr char kEnableExamples[] =
    "  alertctl service enable \"Internet Mail\"\n"
    "  alertctl service enable \"Internet Mail\" --manager \"$(uname -n)\"";
constexpr char kDisableExamples[] = "  alertctl service disable \"Internet Mail\"";

struct Arguments {
  std::string service;
  std::string new_name;
  std::string manager;
};

std::string Quoted(const Json& object) { return "\"" + object["name"].get<std::string>() + "\""; }

void CheckNewName(const Json& site, const std::string& name) {
  CheckTyped("a service's name", name, decltype(alertstore::ALRTNTFYSERV::name)::kMaxLength);
  for (const Json& service : site["services"])
    if (platform::EqualIgnoringCase(service["name"].get<std::string>(), name))
      throw Failure(kInvalid, "there is a service named \"" + name + "\" already: choose another name");
}

/// The library would make a copy all the same, with what it has in place of the missing settings.
void CheckIsWhole(const Json& service) {
  if (LacksOwnRecord(IdOf(service)))
    throw Failure(kInvalid,
                  "cannot copy the service " + Quoted(service) +
                      ": the record with its settings is missing from the store, so there is nothing "
                      "to copy");
}

Result Copy(const Arguments& arguments) {
  const Json site = LoadDelivery();
  const Json& source = FindService(site, arguments.service);
  const Json& manager = FindManager(site, arguments.manager);
  CheckNewName(site, arguments.new_name);
  CheckIsWhole(source);
  Library library;
  if (!library.Copy(library.IndexOf(source), arguments.new_name, IdOf(manager)))
    throw library.Refusal("copy the service " + Quoted(source));
  const std::string id = library.LastService().ToString();
  if (!library.IsLastEnabledOn(IdOf(manager)))
    throw library.Refusal("enable the copy \"" + arguments.new_name + "\", which was made,");
  library.RequireWhole("copied the service " + Quoted(source));
  return {
      {{"id", id}, {"name", arguments.new_name}, {"copyOf", source["id"]}, {"alertManager", manager["name"]}},
      "Copied " + Quoted(source) + " to \"" + arguments.new_name + "\" " + id + ", enabled on " +
          Quoted(manager) + ".\n"};
}

Result Delete(const Arguments& arguments) {
  const Json site = LoadDelivery();
  const Json& service = FindService(site, arguments.service);
  Library library;
  const int index = library.IndexOf(service);
  if (library.IsFirstOfType(index))
    throw Failure(kInvalid,
                  "cannot delete the service " + Quoted(service) + ": it is the first " + TypeName(service) +
                      " service, which the site keeps so that there is one to copy; \"alertctl service "
                      "disable\" takes it out of use");
  // The library asks for a manager, but takes the service off whichever has it.
  if (!library.Delete(index, platform::kNullGuid))
    throw library.Refusal("delete the service " + Quoted(service));
  library.RequireWhole("deleted the service " + Quoted(service));
  return {{{"id", service["id"]}, {"name", service["name"]}, {"deleted", true}},
          "Deleted the service " + Quoted(service) + ".\n"};
}

Json ManagerResult(const Json& site, const Json& service, bool changed) {
  return {{"id", service["id"]},
          {"name", service["name"]},
          {"changed", changed},
          {"alertManagers", ManagersOf(site, service)}};
}

/// A service is enabled on one manager at a time; the library leaves it there when another is asked for.
Result Enable(const Arguments& arguments) {
  const Json site = LoadDelivery();
  const Json& service = FindService(site, arguments.service);
  const Json& manager = FindManager(site, arguments.manager);
  if (IsEnabledOn(manager, service))
    return {ManagerResult(site, service, false),
            Quoted(service) + " is enabled on " + Quoted(manager) + " already.\n"};
  if (const auto managers = ManagersOf(site, service); !managers.empty())
    throw Failure(kInvalid, "the service " + Quoted(service) + " is enabled on \"" + managers.front() +
                                "\": disable it there first (\"alertctl service disable\")");
  Library library;
  library.Enable(library.IndexOf(service), IdOf(manager), true);
  const Json after = LoadDelivery();
  if (ManagersOf(after, service).empty()) throw library.Refusal("enable the service " + Quoted(service));
  library.RequireWhole("enabled the service " + Quoted(service));
  return {ManagerResult(after, service, true),
          "Enabled " + Quoted(service) + " on " + Quoted(manager) + ".\n"};
}

/// The library takes away one entry a call, and a service with a backup manager has two.
Result Disable(const Arguments& arguments) {
  const Json site = LoadDelivery();
  const Json& service = FindService(site, arguments.service);
  const std::size_t entries = ManagersOf(site, service).size();
  if (entries == 0)
    return {ManagerResult(site, service, false), Quoted(service) + " is not enabled anywhere.\n"};
  Library library;
  const int index = library.IndexOf(service);
  for (std::size_t i = 0; i < entries; ++i) library.Enable(index, platform::kNullGuid, false);
  const Json after = LoadDelivery();
  if (!ManagersOf(after, service).empty()) throw library.Refusal("disable the service " + Quoted(service));
  library.RequireWhole("disabled the service " + Quoted(service));
  return {ManagerResult(after, service, true), "Disabled " + Quoted(service) + ".\n"};
}

using Action = Result (*)(const Arguments&);

CLI::App& AddChangeVerb(Verbs& verbs, CLI::App& noun, const char* name, const char* description,
                        const char* examples, Action action, const std::shared_ptr<Arguments>& arguments) {
  CLI::App& verb = verbs.AddVerb(noun, name, Access::kChange, description, examples,
                                 [action, arguments] { return action(*arguments); });
  verb.add_option("service", arguments->service, "Name or identity of the service")->required();
  return verb;
}

void AddManagerOption(CLI::App& verb, const std::shared_ptr<Arguments>& arguments) {
  verb.add_option("--manager", arguments->manager,
                  "Name or identity of the alert manager; without it this machine, or the only manager")
      ->check(kNotEmpty);
}

}  // namespace

void AddServiceChangeVerbs(Verbs& verbs, CLI::App& service) {
  const auto arguments = std::make_shared<Arguments>();
  CLI::App& copy = AddChangeVerb(verbs, service, "copy",
                                 "Adds a copy of a service under a new name, enabled on an alert manager.",
                                 kCopyExamples, Copy, arguments);
  copy.add_option("new-name", arguments->new_name, "Name of the copy, at most 32 bytes")->required();
  AddManagerOption(copy, arguments);
  AddChangeVerb(verbs, service, "delete", "Deletes a service at once. The first service of each type stays.",
                kDeleteExamples, Delete, arguments);
  CLI::App& enable =
      AddChangeVerb(verbs, service, "enable", "Has an alert manager deliver through a service.",
                    kEnableExamples, Enable, arguments);
  AddManagerOption(enable, arguments);
  AddChangeVerb(verbs, service, "disable", "Takes a service off its alert manager.", kDisableExamples,
                Disable, arguments);
}

}  // namespace alertctl
