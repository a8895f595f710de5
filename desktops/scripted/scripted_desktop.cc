// SPDX-License-Identifier: MIT
#include "desktops/scripted/scripted_desktop.h"

#include <filesystem>
#include <utility>

#include "desktops/scripted/scripted_person.h"

namespace desktops {

using platform::ui::Answer;
using platform::ui::Bitmap;
using platform::ui::Desktop;
using platform::ui::FileDialog;
using platform::ui::FolderDialog;
using platform::ui::Message;
using platform::ui::Modal;
using platform::ui::Window;

class ScriptedDesktop::Sound : public platform::ui::Sound {
 public:
  Sound(ScriptedDesktop& desktop, std::string path) : desktop_(desktop), path_(std::move(path)) {}
  ~Sound() override { Stop(); }

  bool Play(std::function<void()> finished) override {
    if (!std::filesystem::is_regular_file(path_)) return false;
    desktop_.playing_sound = path_;
    desktop_.sound_finished_ = std::move(finished);
    playing_ = true;
    return true;
  }

  void Stop() override {
    if (!std::exchange(playing_, false)) return;
    desktop_.playing_sound.clear();
    desktop_.sound_finished_ = nullptr;
  }

 private:
  ScriptedDesktop& desktop_;
  std::string path_;
  bool playing_ = false;
};

namespace {

/// Sets a value for as long as it lives.
template <typename T>
class Meanwhile {
 public:
  Meanwhile(T& variable, T value) : variable_(variable), before_(std::exchange(variable, value)) {}
  ~Meanwhile() { variable_ = before_; }
  Meanwhile(const Meanwhile&) = delete;
  Meanwhile& operator=(const Meanwhile&) = delete;

 private:
  T& variable_;
  T before_;
};

constexpr platform::ui::Rect kFileDialog{0, 0, 600, 400};

// The file that the dialog opens with; "" for none.
std::string InitialFile(const FileDialog& dialog) {
  if (dialog.initial_path.empty()) return {};
  return std::filesystem::path(dialog.initial_directory) / dialog.initial_path;
}

}  // namespace

ScriptedDesktop::ScriptedDesktop() : before_(Desktop::SetCurrent(this)) {}

ScriptedDesktop::~ScriptedDesktop() { Desktop::SetCurrent(before_); }

void ScriptedDesktop::Post(std::function<void()> task) {
  const std::lock_guard lock(mutex_);
  if (!forgets_posted_) posted_.push_back(std::move(task));
}

void ScriptedDesktop::ForgetPosted() {
  const std::lock_guard lock(mutex_);
  forgets_posted_ = true;
  posted_.clear();
}

void ScriptedDesktop::RunPosted() {
  std::vector<std::function<void()>> tasks;
  {
    const std::lock_guard lock(mutex_);
    tasks.swap(posted_);
  }
  for (const auto& task : tasks) script.Guard(task);
}

// What others post arrives while the program waits, as it does where windows are painted meanwhile.
void ScriptedDesktop::Sleep(std::uint32_t milliseconds) {
  script.sleeps.push_back(milliseconds);
  const Meanwhile sleeping(asleep, true);
  RunPosted();
}

int ScriptedDesktop::RunModal(Modal& modal) {
  const Meanwhile uncovered(wait_cursor_depth, 0);
  const Meanwhile awake(asleep, false);
  open_.push_back(&modal.AsWindow());
  if (!script.Guard([&] { modal.OpenWindow(); })) modal.EndModal(platform::ui::kCancel);
  RunPosted();
  if (!modal.Ended()) Play(modal);
  script.Guard([&] { modal.CloseWindow(); });
  open_.pop_back();
  RunPosted();
  return modal.Result();
}

void ScriptedDesktop::Play(Modal& modal) {
  const std::string caption = modal.AsWindow().Label();
  Script::Expectation expected;
  if (script.Take(Script::Expectation::Kind::kWindow, caption, expected)) {
    ScriptedPerson person(*this, modal);
    script.Run(expected.story, person);
    if (modal.Ended()) return;
    script.AddFailure("Still open when its story was over:\n" + person.Screen());
  }
  Cancel(modal);
}

void ScriptedDesktop::Cancel(Modal& modal) {
  script.Guard([&] { modal.OnCloseRequest(); });
  modal.EndModal(platform::ui::kCancel);
}

Answer ScriptedDesktop::ShowMessage(const Message& message) {
  shown.push_back({message.title, wait_cursor_depth});
  const Answer answer = script.AnswerTo(message);
  RunPosted();
  return answer;
}

// The path that the script chooses in a file or folder dialog; "" where that cannot be done.
std::string ScriptedDesktop::ChosenPath(const std::string& title, bool must_exist, FileDialog* dialog) {
  Script::Expectation expected;
  if (!script.Take(Script::Expectation::Kind::kFile, title, expected)) return {};
  if (must_exist && !expected.path.empty() && !std::filesystem::exists(expected.path)) {
    script.AddFailure("The file dialog \"" + title + "\" refuses " + expected.path +
                      ", which does not exist");
    return {};
  }
  if (dialog == nullptr) return expected.path;
  if (!expected.path.empty()) script.Guard([&] { dialog->SetHighlighted(expected.path); });
  ScriptedPerson person(*this, *dialog);
  script.Run(expected.story, person);
  return expected.path;
}

void ScriptedDesktop::LayOut(FileDialog& dialog) {
  script.Guard([&] { dialog.OnLayout(kFileDialog); });
  for (const platform::ui::PlacedControl& placed : dialog.Preview()) {
    auto* canvas = dynamic_cast<platform::ui::Canvas*>(placed.control);
    if (canvas != nullptr) canvas->OnSize(placed.width, placed.height);
  }
  const std::string initial = InitialFile(dialog);
  if (!initial.empty()) script.Guard([&] { dialog.SetHighlighted(initial); });
}

bool ScriptedDesktop::ChooseFile(FileDialog& dialog) {
  const Meanwhile uncovered(wait_cursor_depth, 0);
  const Meanwhile awake(asleep, false);
  open_.push_back(&dialog);
  script.Guard([&] { dialog.Create(); });
  LayOut(dialog);
  const std::string path = ChosenPath(dialog.title, dialog.must_exist, &dialog);
  if (!path.empty()) script.Guard([&] { dialog.OnFileAccepted(path); });
  script.Guard([&] { dialog.Destroy(); });
  open_.pop_back();
  return !path.empty();
}

bool ScriptedDesktop::ChooseFolder(FolderDialog& dialog) {
  const std::string path = ChosenPath(dialog.Title(), true, nullptr);
  if (!path.empty()) dialog.SetPath(path);
  return !path.empty();
}

Window* ScriptedDesktop::ForegroundWindow() { return open_.empty() ? nullptr : open_.back(); }

std::unique_ptr<platform::ui::Sound> ScriptedDesktop::OpenSound(const std::string& path) {
  return std::make_unique<Sound>(*this, path);
}

void ScriptedDesktop::FinishSound() {
  playing_sound.clear();
  if (const auto finished = std::exchange(sound_finished_, nullptr)) finished();
}

std::vector<Bitmap> ScriptedDesktop::ExtractIcons(const std::string& path, std::size_t limit) {
  const auto found = icon_files.find(path);
  if (found == icon_files.end()) return Desktop::ExtractIcons(path, limit);
  std::vector<Bitmap> icons = found->second;
  if (icons.size() > limit) icons.resize(limit);
  return icons;
}

void ScriptedDesktop::ShowHelpText(Window*, const std::string& text) { last_help_text = text; }

}  // namespace desktops
