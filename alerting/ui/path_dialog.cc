// SPDX-License-Identifier: MIT
#include "alerting/ui/path_dialog.h"

#include <sstream>

#include "alerting/frame/companions.h"
#include "alerting/frame/strings.h"
#include "alerting/ui/universal_path.h"
#include "platform/ui/desktop.h"

namespace alerting {
namespace {

std::vector<ui::FileFilter> Filters(const std::string& list) {
  std::vector<ui::FileFilter> filters;
  std::istringstream parts(list);
  for (ui::FileFilter filter;
       std::getline(parts, filter.description, '@') && std::getline(parts, filter.patterns, '@');)
    filters.push_back(filter);
  return filters;
}

}  // namespace

CPathDialog::CPathDialog(ui::Window* parent, std::string initial, const Texts& texts,
                         ctxhelp::HelpPage help_page)
    : FileDialog(parent), help_page_(help_page) {
  filters = Filters(Text(texts.filters));
  default_extension = Text(texts.extension);
  title = Text(texts.title);
  initial_path = std::move(initial);
}

void CPathDialog::OnHelp(const ui::HelpEvent& event) { ShowHelp(*this, event, help_page_); }

bool CPathDialog::CanPreview() {
  constexpr int kFirstWithPreview = 4;
  return ui::Desktop::Current().SystemMajorVersion() >= kFirstWithPreview;
}

int CPathDialog::Choose() {
  if (RunModal() != ui::kOk) return ui::kCancel;
  if (Path().size() < kPathSize) return ui::kOk;
  ShowPathWarning(kPathInvalid, Parent());
  return ui::kCancel;
}

int CPathDialog::ChooseUniversal(std::string& path) {
  if (Choose() != ui::kOk) return ui::kCancel;
  char universal[kPathSize];
  ShowPathWarning(MakeUniversalPath(universal, Path().c_str()), Parent());
  path = universal;
  return ui::kOk;
}

}  // namespace alerting
