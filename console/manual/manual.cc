// SPDX-License-Identifier: MIT
// Writes what is told about alertctl outside of it, from the same verbs that it runs: alertctl_manual man FILE FRAME,
// alertctl_manual bash FILE, alertctl_manual zsh FILE.
#include <fstream>
#include <iostream>

#include "console/alertctl/verbs.h"
#include "console/manual/pages.h"
#include "platform/base/paths.h"

namespace {

/// "" for what is not known.
std::string TextOf(const std::string& kind, const manual::Command& program, const std::string& frame) {
  if (kind == "bash") return manual::BashCompletion(program);
  if (kind == "zsh") return manual::ZshCompletion(program);
  std::string bytes;
  return kind == "man" && platform::ReadWholeFile(frame, bytes) ? manual::ManPage(program, bytes) : "";
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app;
  alertctl::Verbs verbs(app);
  alertctl::AddAllVerbs(verbs);
  const std::string text = argc < 3 ? "" : TextOf(argv[1], manual::CommandOf(app), argc > 3 ? argv[3] : "");
  if (text.empty()) std::cerr << "usage: alertctl_manual man FILE FRAME | bash FILE | zsh FILE\n";
  if (text.empty() || !(std::ofstream(argv[2]) << text).flush()) return 1;
}
