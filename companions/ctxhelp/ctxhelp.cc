// SPDX-License-Identifier: MIT
#include "companions/ctxhelp/ctxhelp.h"

#include <string>

#include "companions/ctxhelp/help_texts.h"
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

std::string TopicText(int topic) {
  const std::string text = HelpText(topic);
  return text.empty() ? kNoHelp : text;
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

std::vector<HelpPair> HelpTableOf(const platform::ui::Form& form, HelpPage page) {
  std::vector<HelpPair> table = {{kFormItself, page}};
  for (const platform::ui::Control* control : form.Controls())
    if (control->Id() > 0) table.push_back({control->Id(), page + control->Id()});
  table.push_back(kEndOfHelpTable);
  return table;
}

std::unique_ptr<ContextHelp> MakeContextHelp() { return std::make_unique<RealContextHelp>(); }

}  // namespace ctxhelp
