// SPDX-License-Identifier: MIT
#include "platform/ui/window.h"

#include <cctype>
#include <mutex>
#include <unordered_map>
#include <utility>

namespace platform::ui {
namespace {

class HandleTable {
 public:
  Handle Add(Window& window) {
    const std::lock_guard lock(mutex_);
    // The count may wrap in a console that stays up for months; a handle in use is never given twice.
    do ++last_;
    while (last_ == kNoWindow || windows_.contains(last_));
    windows_[last_] = &window;
    return last_;
  }

  void Remove(Handle handle) {
    const std::lock_guard lock(mutex_);
    windows_.erase(handle);
  }

  Window* Find(Handle handle) {
    const std::lock_guard lock(mutex_);
    const auto found = windows_.find(handle);
    return found != windows_.end() ? found->second : nullptr;
  }

 private:
  std::mutex mutex_;
  std::unordered_map<Handle, Window*> windows_;
  Handle last_ = kNoWindow;
};

// Never destroyed: windows with static storage may go after it would have.
HandleTable& Handles() {
  static auto* table = new HandleTable;
  return *table;
}

}  // namespace

Window::Window(Window* parent, int id, std::string label)
    : handle_(Handles().Add(*this)), id_(id), parent_(parent), label_(std::move(label)) {}

Window::~Window() {
  Handles().Remove(handle_);
  Notify(Change::kDestroyed);
}

Window* Window::FromHandle(Handle handle) { return Handles().Find(handle); }

void Window::SetLabel(std::string label) {
  label_ = std::move(label);
  Notify(Change::kLabel);
}

void Window::Enable(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  OnReachChanged();
  Notify(Change::kEnabled);
}

void Window::Show(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  OnReachChanged();
  Notify(Change::kVisible);
}

bool Window::UpdateData(bool) { return true; }

void Window::SetWizardButtons(std::uint32_t) {}

void Window::Notify(Change change) {
  if (observer_ != nullptr) observer_->OnWindowChanged(*this, change);
}

std::string PlainLabel(const std::string& label) {
  std::string plain;
  for (std::size_t i = 0; i < label.size(); ++i) {
    if (label[i] == '&' && ++i == label.size()) break;
    plain += label[i];
  }
  return plain;
}

char AccessKey(const std::string& label) {
  for (std::size_t i = 0; i + 1 < label.size(); ++i) {
    if (label[i] != '&') continue;
    if (label[++i] != '&') return static_cast<char>(std::tolower(static_cast<unsigned char>(label[i])));
  }
  return 0;
}

}  // namespace platform::ui
