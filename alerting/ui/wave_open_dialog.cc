// SPDX-License-Identifier: MIT
#include "alerting/ui/wave_open_dialog.h"

#include "alerting/frame/strings.h"

namespace alerting {
namespace {

constexpr int kIdPlay = 100, kIdStop = 101;

void ShowIcon(ui::Button& button, const char* resource) {
  const std::vector<ui::Bitmap> icons = ui::DecodeIco(TheModule().Resource(resource));
  if (!icons.empty()) button.SetPicture(icons.front());
}

}  // namespace

CWaveOpenDialog::CWaveOpenDialog(ui::Window* parent, std::string initial)
    : CPathDialog(parent, std::move(initial), {kIdsWaveFilters, kIdsWaveExtension, kIdsWaveTitle},
                  ctxhelp::kHelpChooseSound),
      play_button_(*this, kIdPlay, Text(kIdsPlay)),
      stop_button_(*this, kIdStop, Text(kIdsStop)) {
  constexpr int kSide = 40, kGap = 8;
  play_button_.SetOnClick([this] { OnPlay(); });
  stop_button_.SetOnClick([this] { OnStop(); });
  if (!CanPreview()) return;
  SetPreviewSize(3 * kGap + 2 * kSide, 2 * kGap + kSide);
  Place(play_button_, kGap, kGap, kSide, kSide);
  Place(stop_button_, 2 * kGap + kSide, kGap, kSide, kSide);
}

void CWaveOpenDialog::OnInitDialog() {
  CPathDialog::OnInitDialog();
  ShowIcon(play_button_, "icons/play.ico");
  ShowIcon(stop_button_, "icons/stop.ico");
  OnStop();
}

void CWaveOpenDialog::EnableButtons(bool playing) {
  play_button_.Enable(!playing);
  stop_button_.Enable(playing);
}

void CWaveOpenDialog::OnPlay() {
  if (sound_ != nullptr) return;
  std::unique_ptr<ui::Sound> sound = ui::Desktop::Current().OpenSound(Highlighted());
  if (!sound->Play([this] { OnPlayed(); })) return;
  sound_ = std::move(sound);
  EnableButtons(true);
}

void CWaveOpenDialog::OnStop() {
  if (sound_ != nullptr) sound_->Stop();
  OnPlayed();
}

void CWaveOpenDialog::OnPlayed() {
  sound_.reset();
  EnableButtons(false);
}

void CWaveOpenDialog::Destroy() {
  OnStop();
  CPathDialog::Destroy();
}

}  // namespace alerting
