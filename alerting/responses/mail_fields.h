// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/responses/message_field.h"
#include "alerting/services/ntfy_service.h"
#include "platform/ui/form.h"

namespace alerting {

/// Subject, body and priority of a mail, as default message and as response. The mail's own form lays them out.
struct MailFields {
  /// Six identifiers from `first_id` on, the last of them free.
  MailFields(ui::Form& form, int first_id);

  /// Fills the fields' texts and the list of priorities, and sets the limits.
  void Show(CNtfyService& service, const DefaultMessage& message);
  void Exchange(ui::DataExchange& x);
  /// The message in stored form, wrapped where the service's lines have a width; priority 0 where none is chosen.
  DefaultMessage Message(const CNtfyService& service);

  ui::LayoutNode SubjectRow() { return ui::Row({ui::Over(subject.edit), ui::Bare(subject.fields)}); }
  ui::LayoutNode BodyRow() { return ui::Row({ui::Over(body.edit), ui::Bare(body.fields)}); }
  ui::LayoutNode PriorityRow() { return ui::Row({ui::Field(priority), ui::Stretch()}); }

  MessageField subject, body;
  ui::ComboBox priority;
};

/// The priority that an item of a list of priorities stands for; 0 where none is chosen.
std::uint32_t ChosenPriority(const ui::ComboBox& priorities);

}  // namespace alerting
