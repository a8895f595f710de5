// SPDX-License-Identifier: MIT
#include "alerting/ui/universal_path.h"

#include <cstring>
#include <string>

#include "alerting/frame/companions.h"
#include "alerting/frame/messages.h"

namespace alerting {
namespace {

using PathBuffer = char[kPathSize];

constexpr std::uint32_t kLowWord = 0xFFFF;

PathCode Take(char* out_path, const std::string& path, PathCode code) {
  std::memcpy(out_path, path.c_str(), path.size() + 1);
  return code;
}

const std::string& WarningText(int code) {
  if (code == kPathInTree) return Text(kIdsPathInTree);
  return Text(code == kPathNotUniversal ? kIdsPathNotUniversal : kIdsPathInvalid);
}

PathCode Convert(char* out_path, const std::string& path) {
  netpath::NetPath& netpath = *TheCompanions().netpath;
  PathBuffer resolved, universal, tree;
  if ((netpath.Operation13(0) & kLowWord) == netpath::kNoConversion) return Take(out_path, path, kPathDone);
  if (netpath.Operation43(0, path.c_str(), resolved, kPathSize) != 0)
    return Take(out_path, path, kPathNotUniversal);
  const bool translated = netpath.Operation159(0, resolved, universal, kPathSize) == 0;
  const std::string best = translated ? universal : resolved;
  if (netpath.NetTreeFromPath(0, best.c_str(), tree, kPathSize) == 0)
    return Take(out_path, best, kPathInTree);
  return Take(out_path, best, best.starts_with("\\\\") ? kPathDone : kPathNotUniversal);
}

}  // namespace

PathCode MakeUniversalPath(char* out_path, const char* in_path) {
  if (out_path == nullptr || in_path == nullptr) return kPathInvalid;
  const std::string path = in_path;
  return path.size() < kPathSize ? Convert(out_path, path) : kPathInvalid;
}

PathCode ToUniversal(std::string& path) {
  PathBuffer universal;
  const PathCode code = MakeUniversalPath(universal, path.c_str());
  if (code != kPathInvalid) path = universal;
  return code;
}

void ShowPathWarning(int code, ui::Window* parent) {
  const platform::ModuleScope scope(TheModule());
  if (code != kPathDone)
    ui::MessageBox(WarningText(code), ui::Buttons::kOk, ui::MessageIcon::kWarning, parent);
}

bool ConfirmPathWarning(int code, ui::Window* parent) {
  if (code == kPathDone) return true;
  const platform::ModuleScope scope(TheModule());
  const std::string question = WarningText(code) + Text(kIdsUsePathAnyway);
  return ui::MessageBox(question, ui::Buttons::kYesNo, ui::MessageIcon::kQuestion, parent) ==
         ui::Answer::kYes;
}

}  // namespace alerting
