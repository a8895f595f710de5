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
  return {real_dbconfig.get(), real_agentui.get(), real_ctxhelp.get(), real_netpath.get()};
}

Companions& InUse() {
  static Companions in_use = RealCompanions();
  return in_use;
}

}  // namespace

const Companions& TheCompanions() { return InUse(); }

Companions SetCompanions(Companions companions) {
  const Companions real = RealCompanions();
  const Companions before = InUse();
  InUse() = {companions.dbconfig ? companions.dbconfig : real.dbconfig,
             companions.agentui ? companions.agentui : real.agentui,
             companions.ctxhelp ? companions.ctxhelp : real.ctxhelp,
             companions.netpath ? companions.netpath : real.netpath};
  return before;
}

}  // namespace alerting
