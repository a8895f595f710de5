// SPDX-License-Identifier: MIT
#include "desktops/qt/sound.h"

#ifdef ALERTING_HAS_QT_MULTIMEDIA

#include <QAudioDevice>
#include <QEventLoop>
#include <QFileInfo>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QTimer>
#include <QUrl>

#include "desktops/qt/guard.h"
#include "desktops/qt/texts.h"

namespace desktops::qt {
namespace {

constexpr int kLongestLoadMs = 3000;

/// A wave file, which Qt reads itself: other players need decoders that a system may lack, and tell so too late.
class WaveSound : public platform::ui::Sound {
 public:
  explicit WaveSound(const QString& path) { effect_.setSource(QUrl::fromLocalFile(path)); }
  ~WaveSound() override { Stop(); }

  bool Play(std::function<void()> finished) override {
    WaitUntilLoaded();
    if (effect_.status() != QSoundEffect::Ready || QMediaDevices::defaultAudioOutput().isNull()) return false;
    const auto tell = [this, finished = std::move(finished)] {
      if (!effect_.isPlaying() && finished) Guarded(finished);
    };
    // Queued, because whoever hears of the end destroys the sound.
    QObject::connect(&effect_, &QSoundEffect::playingChanged, &effect_, tell, Qt::QueuedConnection);
    effect_.play();
    return true;
  }

  void Stop() override {
    effect_.disconnect();  // a sound that is stopped has not finished
    effect_.stop();
  }

 private:
  void WaitUntilLoaded() {
    if (effect_.status() != QSoundEffect::Loading) return;
    QEventLoop loop;
    QObject::connect(&effect_, &QSoundEffect::statusChanged, &loop, &QEventLoop::quit);
    QTimer::singleShot(kLongestLoadMs, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
  }

  QSoundEffect effect_;
};

}  // namespace

std::unique_ptr<platform::ui::Sound> OpenSoundFile(const std::string& path) {
  const QFileInfo file(ToQt(path));
  if (!file.isFile() || !file.isReadable()) return nullptr;
  return std::make_unique<WaveSound>(file.absoluteFilePath());
}

}  // namespace desktops::qt

#else

namespace desktops::qt {

std::unique_ptr<platform::ui::Sound> OpenSoundFile(const std::string&) { return nullptr; }

}  // namespace desktops::qt

#endif
