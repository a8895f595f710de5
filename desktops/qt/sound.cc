// SPDX-License-Identifier: MIT
#include "desktops/qt/sound.h"

#ifdef ALERTING_HAS_QT_MULTIMEDIA

#include <QAudioOutput>
#include <QFileInfo>
#include <QMediaPlayer>
#include <QUrl>

#include "desktops/qt/guard.h"
#include "desktops/qt/texts.h"

namespace desktops::qt {
namespace {

class PlayedSound : public platform::ui::Sound {
 public:
  explicit PlayedSound(const QString& path) {
    player_.setAudioOutput(&output_);
    player_.setSource(QUrl::fromLocalFile(path));
  }
  ~PlayedSound() override { player_.disconnect(); }

  bool Play(std::function<void()> finished) override {
    if (player_.error() != QMediaPlayer::NoError) return false;
    player_.disconnect();
    QObject::connect(&player_, &QMediaPlayer::mediaStatusChanged, &player_,
                     [finished = std::move(finished)](QMediaPlayer::MediaStatus status) {
                       if (status == QMediaPlayer::EndOfMedia && finished) Guarded(finished);
                     });
    player_.play();
    return player_.error() == QMediaPlayer::NoError;
  }
  void Stop() override { player_.stop(); }

 private:
  QAudioOutput output_;
  QMediaPlayer player_;
};

}  // namespace

std::unique_ptr<platform::ui::Sound> OpenSoundFile(const std::string& path) {
  const QFileInfo file(ToQt(path));
  if (!file.isFile() || !file.isReadable()) return nullptr;
  return std::make_unique<PlayedSound>(file.absoluteFilePath());
}

}  // namespace desktops::qt

#else

namespace desktops::qt {

std::unique_ptr<platform::ui::Sound> OpenSoundFile(const std::string&) { return nullptr; }

}  // namespace desktops::qt

#endif
