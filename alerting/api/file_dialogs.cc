// SPDX-License-Identifier: MIT
// The dialogs that pick a file, for the console's own use.
#include <cstring>

#include "alerting/alerting.h"
#include "alerting/api/call.h"
#include "alerting/ui/icon_open_dialog.h"
#include "alerting/ui/program_dialogs.h"
#include "alerting/ui/wave_open_dialog.h"

using namespace alerting;  // NOLINT: exports speak the library's language

namespace {

// A response without a file holds a dot.
std::string WithoutDot(const char* path) { return std::strcmp(path, ".") == 0 ? "" : path; }

/// Runs the dialog on a caller's buffer, which stays as it is unless a file was chosen.
template <class Dialog>
std::int32_t ChooseUniversal(ui::Window* parent, char* path, std::string initial) {
  std::string chosen;
  const int result = Dialog(parent, std::move(initial)).ChooseUniversal(chosen);
  if (result == ui::kOk) std::memcpy(path, chosen.c_str(), chosen.size() + 1);
  return result;
}

std::int32_t ChooseIcon(ui::Window* parent, char* path, std::uint32_t* index) {
  CIconOpenDialog dialog(parent, path, index);
  const int result = dialog.Choose();
  if (result == ui::kOk) std::memcpy(path, dialog.Path().c_str(), dialog.Path().size() + 1);
  return result;
}

/// Without a buffer there is nothing to choose for: as cancelled.
template <class Choose>
std::int32_t WithPath(const char* path, Choose&& choose) {
  return path == nullptr ? ui::kCancel : Call<std::int32_t>(ui::kCancel, choose);
}

}  // namespace

extern "C" {

std::int32_t SelectWAVFileDialog(ui::Window* parent, char* path) {
  return WithPath(path, [&] { return ChooseUniversal<CWaveOpenDialog>(parent, path, WithoutDot(path)); });
}

std::int32_t SelectWAVFileDialogC(std::uint32_t parent, char* path) {
  return WithPath(
      path, [&] { return ChooseUniversal<CWaveOpenDialog>(ui::Window::FromHandle(parent), path, path); });
}

std::int32_t SelectProgFileDialog(ui::Window* parent, char* path) {
  return WithPath(path, [&] { return ChooseUniversal<CProgOpenDialog>(parent, path, WithoutDot(path)); });
}

std::int32_t SelectIconFileDialog(ui::Window* parent, char* path, std::uint32_t* icon_index) {
  return WithPath(path, [&] { return ChooseIcon(parent, path, icon_index); });
}

}  // extern "C"
