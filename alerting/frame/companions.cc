// SPDX-License-Identifier: MIT
#include "alerting/frame/companions.h"

#include <memory>

namespace alerting {
namespace {

Companions RealCompanions() {
  static const std::unique_ptr<dbconfig::DbConfig> real_dbconfig = dbconfig::MakeDbConfig();
  static const std::unique_ptr<agentui::AgentUi> real_agentui = agentui::MakeAgentUi();
  static const std::unique_ptr<ctxhelp::ContextHelp> real_ctxhelp = ctxhelp::MakeContextHelp();
  static const std::unique_ptr<netpath::NetPath> real_netpath = netpath::MakeNetPath();
  static const std::unique_ptr<minibrowse::MiniBrowser> real_minibrowse = minibrowse::MakeMiniBrowser();
  static const std::unique_ptr<objmodel::ObjectModel> real_objmodel = objmodel::MakeObjectModel();
  return {real_dbconfig.get(), real_agentui.get(),    real_ctxhelp.get(),
          real_netpath.get(),  real_minibrowse.get(), real_objmodel.get()};
}

Companions& InUse() {
  static Companions in_use = RealCompanions();
  return in_use;
}

}  // namespace

const Companions& TheCompanions() { return InUse(); }

void ShowHelp(platform::ui::Form& form, const platform::ui::HelpEvent& event, ctxhelp::HelpPage page) {
  TheCompanions().ctxhelp->QEVDlgOnContextHelp(form, event, ctxhelp::HelpTableOf(form, page).data());
}

Companions SetCompanions(Companions companions) {
  const Companions real = RealCompanions();
  const Companions before = InUse();
  const auto or_real = [](auto* other, auto* own) { return other != nullptr ? other : own; };
  InUse() = {or_real(companions.dbconfig, real.dbconfig),     or_real(companions.agentui, real.agentui),
             or_real(companions.ctxhelp, real.ctxhelp),       or_real(companions.netpath, real.netpath),
             or_real(companions.minibrowse, real.minibrowse), or_real(companions.objmodel, real.objmodel)};
  return before;
}

}  // namespace alerting
