// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace platform::ui {

class Modal;
class Window;

/// A number that finds a live window or nothing. What outlives a dialog keeps a handle, never a pointer.
using Handle = std::uint32_t;
constexpr Handle kNoWindow = 0;

/// What about a window has changed; a desktop that shows it brings its picture up to date.
enum class Change {
  kLabel,      ///< label, caption or static text
  kEnabled,    ///< enabled or disabled
  kVisible,    ///< shown or hidden
  kFocus,      ///< gained the keyboard focus
  kText,       ///< text of an edit or of an editable combo box
  kSelection,  ///< selected part of an edit's text
  kCurrent,    ///< checked state, radio index, chosen item, selected or focused row, spin value
  kItems,      ///< items, rows, columns or range
  kStyle,      ///< limit, masked, read-only, default button
  kPages,      ///< active page or button states of a property sheet
  kRepaint,    ///< a canvas wants to be painted again, or its scroll bar moved
  kEnded,      ///< a modal window has its result
  kDestroyed   ///< the object is going away; the last report
};

/// How a desktop hears of every change the program (or a person, through the same objects) makes.
class WindowObserver {
 public:
  virtual ~WindowObserver() = default;
  virtual void OnWindowChanged(Window& window, Change change) = 0;
};

/// Buttons of a wizard, as flags.
enum WizardButton : std::uint32_t {
  kWizardBack = 1,
  kWizardNext = 2,
  kWizardFinish = 4,
  kWizardDisabledFinish = 8
};

/// Whatever has a place on a desktop: a control, a dialog, a page, a sheet, or a host window that is not
/// ours. Objects own their state; showing it is the desktop's affair.
class Window {
 public:
  explicit Window(Window* parent = nullptr, int id = 0, std::string label = {});
  virtual ~Window();
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  Handle GetHandle() const { return handle_; }
  /// The live window with that handle, or null.
  static Window* FromHandle(Handle handle);

  int Id() const { return id_; }
  Window* Parent() const { return parent_; }
  void SetParent(Window* parent) { parent_ = parent; }

  /// Label, caption or static text. "&" marks the access key, "&&" stands for an ampersand.
  const std::string& Label() const { return label_; }
  void SetLabel(std::string label);

  bool Enabled() const { return enabled_; }
  void Enable(bool enabled);
  bool Visible() const { return visible_; }
  void Show(bool visible);

  /// Moves the keyboard focus here. Only controls of a form take it.
  virtual void SetFocus() {}

  /// Copies controls into members (`save`) or members into controls. What a panel asks of its host before it
  /// applies; false when a value is refused, after the message was shown.
  virtual bool UpdateData(bool save);
  /// Says what a wait of this window's is for, "" at its end. Windows without a place for it say nothing.
  virtual void ShowProgress(const std::string& /*what*/) {}
  /// Sets the wizard buttons (WizardButton flags) of a window that has them; others ignore it.
  virtual void SetWizardButtons(std::uint32_t flags);

  /// The one observer, or null. Not owned.
  void SetObserver(WindowObserver* observer) { observer_ = observer; }
  WindowObserver* Observer() const { return observer_; }

 protected:
  void Notify(Change change);
  /// Runs after Enable or Show made a difference, before the observer hears of it.
  virtual void OnReachChanged() {}

 private:
  friend class Modal;

  Handle handle_;
  int id_;
  Window* parent_;
  std::string label_;
  bool enabled_ = true;
  bool visible_ = true;
  WindowObserver* observer_ = nullptr;
};

/// The label without its access-key marks.
std::string PlainLabel(const std::string& label);
/// The access key of a label in lower case, or 0.
char AccessKey(const std::string& label);

}  // namespace platform::ui
