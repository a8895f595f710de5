// SPDX-License-Identifier: MIT
#include "platform/ui/desktop.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <mutex>
#include <thread>
#include <utility>

#include "platform/ui/icon_files.h"

namespace platform::ui {
namespace {

std::atomic<Desktop*> current_desktop = nullptr;

Desktop& BaseDesktop() {
  static auto* base = new Desktop;  // other threads may post to it until the process is gone
  return *base;
}

class SilentSound : public Sound {
 public:
  bool Play(std::function<void()>) override { return false; }
  void Stop() override {}
};

// What was posted while nobody shows windows; it runs where one would have been shown.
class PostedTasks {
 public:
  void Add(std::function<void()> task) {
    const std::lock_guard lock(mutex_);
    tasks_.push_back(std::move(task));
  }

  void Run() {
    std::vector<std::function<void()>> tasks;
    {
      const std::lock_guard lock(mutex_);
      tasks.swap(tasks_);
    }
    for (const auto& task : tasks) task();
  }

 private:
  std::mutex mutex_;
  std::vector<std::function<void()>> tasks_;
};

PostedTasks& Posted() {
  static auto* posted = new PostedTasks;
  return *posted;
}

}  // namespace

Desktop::~Desktop() = default;

Desktop& Desktop::Current() {
  Desktop* desktop = current_desktop;
  return desktop != nullptr ? *desktop : BaseDesktop();
}

Desktop* Desktop::SetCurrent(Desktop* desktop) { return current_desktop.exchange(desktop); }

int Desktop::RunModal(Modal& modal) {
  modal.OpenWindow();
  Posted().Run();
  modal.EndModal(kCancel);
  modal.CloseWindow();
  return modal.Result();
}

Answer Desktop::ShowMessage(const Message& message) {
  std::fprintf(stderr, "%s: %s\n", message.title.c_str(), message.text.c_str());
  return message.buttons == Buttons::kOk ? Answer::kOk : Answer::kNo;
}

bool Desktop::ChooseFile(FileDialog&) { return false; }
bool Desktop::ChooseFolder(FolderDialog&) { return false; }

void Desktop::ShowWaitCursor() {}
void Desktop::HideWaitCursor() {}
void Desktop::RestoreWaitCursor() {}

void Desktop::Sleep(std::uint32_t milliseconds) {
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

void Desktop::Beep() {}

std::optional<std::string> Desktop::ClipboardText() { return std::nullopt; }
void Desktop::SetClipboardText(const std::string&) {}

Window* Desktop::ForegroundWindow() { return nullptr; }

std::unique_ptr<Sound> Desktop::OpenSound(const std::string&) { return std::make_unique<SilentSound>(); }

std::vector<Bitmap> Desktop::ExtractIcons(const std::string& path, std::size_t limit) {
  return IconsOfFile(path, limit);
}

int Desktop::SystemMajorVersion() { return 10; }
int Desktop::IconSpacing() { return 75; }

void Desktop::ShowHelpText(Window*, const std::string& text) { std::fprintf(stderr, "%s\n", text.c_str()); }

void Desktop::Post(std::function<void()> task) { Posted().Add(std::move(task)); }

}  // namespace platform::ui
