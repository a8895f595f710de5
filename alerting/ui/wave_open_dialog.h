// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "alerting/ui/path_dialog.h"
#include "platform/ui/desktop.h"

namespace alerting {

/// Picks a sound, which may be heard first.
class CWaveOpenDialog : public CPathDialog {
 public:
  CWaveOpenDialog(ui::Window* parent, std::string initial);

  void Destroy() override;

 private:
  void OnInitDialog() override;
  void OnPlay();
  void OnStop();
  void OnPlayed();
  /// Play is to be had while nothing plays, Stop while something does.
  void EnableButtons(bool playing);

  std::unique_ptr<ui::Sound> sound_;  ///< the one that is playing, or null
  ui::Button play_button_;
  ui::Button stop_button_;
};

}  // namespace alerting
