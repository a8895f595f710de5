// SPDX-License-Identifier: MIT
#include "companions/ctxhelp/ctxhelp.h"

#include <nlohmann/json.hpp>
#include <string>

#include "companions/ctxhelp/resource_directory.h"
#include "platform/base/paths.h"
#include "platform/ui/desktop.h"

namespace ctxhelp {
namespace {

constexpr char kNoHelp[] = "There is no help on this item.";

/// A control that has no row of its own shares the topic of its form. 0 where the form has none either.
int FindTopic(const platform::ui::Control* control, const HelpPair* table) {
  int form_topic = 0;
  for (; table->topic != 0; ++table) {
    if (table->control_id == kFormItself) form_topic = table->topic;
    if (control != nullptr && table->control_id == control->Id()) return table->topic;
  }
  return form_topic;
}

/// The texts are read at each request: help is asked for rarely, and a corrected text shows at once.
std::string TopicText(int topic) {
  std::string bytes;
  if (!platform::ReadWholeFile(ResourceDirectory() + "/help/topics.json", bytes)) return kNoHelp;
  const nlohmann::json topics = nlohmann::json::parse(bytes, nullptr, false);
  const auto text = topics.find(std::to_string(topic));
  return text != topics.end() && text->is_string() ? text->get<std::string>() : kNoHelp;
}

class RealContextHelp : public ContextHelp {
 public:
  void QEVDlgOnContextHelp(platform::ui::Form& form, const platform::ui::HelpEvent& event,
                           const HelpPair* table) override {
    platform::ui::Window* beside = &form;
    if (event.control != nullptr) beside = event.control;
    platform::ui::Desktop::Current().ShowHelpText(beside, TopicText(FindTopic(event.control, table)));
  }
};

}  // namespace

std::unique_ptr<ContextHelp> MakeContextHelp() { return std::make_unique<RealContextHelp>(); }

}  // namespace ctxhelp
