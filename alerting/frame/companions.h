// SPDX-License-Identifier: MIT
#pragma once

#include "companions/agentui/agentui.h"
#include "companions/ctxhelp/ctxhelp.h"
#include "companions/dbconfig/dbconfig.h"
#include "companions/minibrowse/minibrowse.h"
#include "companions/netpath/netpath.h"
#include "companions/objmodel/objmodel.h"

namespace alerting {

/// The console's other components as the library reaches them; the one place where tests put others in their
/// stead. None is owned.
struct Companions {
  dbconfig::DbConfig* dbconfig;
  agentui::AgentUi* agentui;
  ctxhelp::ContextHelp* ctxhelp;
  netpath::NetPath* netpath;
  minibrowse::MiniBrowser* minibrowse;
  objmodel::ObjectModel* objmodel;
};

/// The components in use: the real ones until SetCompanions put others there.
const Companions& TheCompanions();

/// Answers a request for help with the texts of a form's page.
void ShowHelp(platform::ui::Form& form, const platform::ui::HelpEvent& event, ctxhelp::HelpPage page);

/// Puts others in their stead and answers those in use before. A null member stands for the real one.
Companions SetCompanions(Companions companions);

}  // namespace alerting
