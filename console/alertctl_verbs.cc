// SPDX-License-Identifier: MIT
#include "console/alertctl_verbs.h"

#include <cstdlib>
#include <iostream>

namespace alertctl {

CLI::App& Verbs::AddNoun(const std::string& name, const std::string& description) {
  CLI::App* noun = app_.add_subcommand(name, description);
  noun->require_subcommand(1);
  return *noun;
}

CLI::App& Verbs::AddVerb(CLI::App& noun, const std::string& name, const std::string& description,
                         const std::string& examples, Action action) {
  CLI::App* verb = noun.add_subcommand(name, description);
  verb->add_flag("--json", json_, "Print JSON instead of text");
  verb->add_option("--data", data_, "Data directory; without it ALERTING_DATA, else the user's data home")
      ->type_name("DIR");
  verb->footer("Examples:\n" + examples);
  verb->final_callback([this, action = std::move(action)] { action_ = action; });
  return *verb;
}

int Verbs::Run() {
  if (!data_.empty()) setenv("ALERTING_DATA", data_.c_str(), 1);
  try {
    const Result result = action_();
    if (json_)
      std::cout << result.json.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
    else
      std::cout << result.text;
    return std::cout.flush() ? kDone : kStoreFailure;
  } catch (const Failure& failure) {
    std::cerr << "alertctl: " << failure.what() << '\n';
    return failure.Code();
  } catch (const std::exception& error) {
    std::cerr << "alertctl: " << error.what() << '\n';
    return kStoreFailure;
  }
}

}  // namespace alertctl
