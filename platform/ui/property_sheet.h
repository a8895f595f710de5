// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/ui/form.h"
#include "platform/ui/modal.h"

namespace platform::ui {

class PropertySheet;

/// One tab of a property sheet, or one step of a wizard. Its window exists only once its tab was selected.
class PropertyPage : public Form {
 public:
  explicit PropertyPage(std::string caption) : Form(nullptr, std::move(caption)) {}
  /// Leaves its sheet; pages are often members of the sheet's own class, so they go first.
  ~PropertyPage() override;

  /// The sheet that holds the page, or null (a page may sit in a window that is not ours).
  PropertySheet* Sheet() const { return sheet_; }

  /// The page-changed state, which enables the sheet's Apply.
  void SetModified(bool changed);
  bool PageChanged() const { return page_changed_; }

  /// The page becomes the current one. False keeps it from being shown. The base agrees.
  virtual bool OnSetActive() { return true; }
  /// Another page is chosen, or OK or Apply pressed: the base takes the values out of the controls and
  /// refuses when one of them is refused.
  virtual bool OnKillActive() { return UpdateData(true); }
  /// The platform's apply notification, to pages that were shown only. False keeps the sheet open.
  virtual bool OnApply() { return true; }
  virtual bool OnWizardFinish() { return true; }

  /// Where the page itself has no button for it: the sheet's OK (in a wizard Finish or Next), and its Cancel.
  void OnEnter() override;
  void OnEscape() override;

 private:
  friend class PropertySheet;

  PropertySheet* sheet_ = nullptr;
  bool page_changed_ = false;
};

enum class SheetButton { kOk, kCancel, kApply, kBack, kNext, kFinish };

/// A modal tabbed property sheet with OK, Cancel and Apply, or a wizard with Back, Next and Finish.
class PropertySheet : public Window, public Modal {
 public:
  PropertySheet(std::string caption, Window* parent, int selected_page = 0);
  ~PropertySheet() override;

  /// Adds a page at the end. Not owned. Pages may come and go while the sheet runs, as in a
  /// wizard whose first page decides what follows it; one that is destroyed leaves the sheet.
  void AddPage(PropertyPage& page);
  const std::vector<PropertyPage*>& Pages() const { return pages_; }
  /// A wizard shows one page at a time without tabs. Set before the run.
  void SetWizardMode() { wizard_ = true; }
  bool IsWizard() const { return wizard_; }
  /// The title bar's question mark for "What's this?".
  void SetHelpButton(bool on) { help_button_ = on; }
  bool HelpButton() const { return help_button_; }

  int ActiveIndex() const { return active_; }
  PropertyPage* ActivePage() const;
  /// Selects a page: the current one must let go (OnKillActive), the new one's window is made on its first
  /// selection. Answers whether it is now the active one.
  bool SetActivePage(int index);

  bool ButtonEnabled(SheetButton button) const;
  bool ButtonVisible(SheetButton button) const;
  /// The one that Enter presses: OK; in a wizard Finish where it can be pressed, else Next.
  SheetButton DefaultButton() const;
  std::uint32_t WizardButtons() const { return wizard_buttons_; }
  void SetWizardButtons(std::uint32_t flags) override;

  /// What the platform does when a button is pressed, also when the program presses it. OK and Apply: the
  /// active page lets go, every shown page gets OnApply, the page-changed states are cleared; OK then ends
  /// with kOk. A disabled button does nothing.
  void Press(SheetButton button);
  /// A person pressed a button: OnCommand sees it first and may consume it.
  void OnButton(SheetButton button);

  Window& AsWindow() override { return *this; }
  void OpenWindow() override;
  /// Destroys the pages' windows, then runs OnDestroyed.
  void CloseWindow() override;
  void OnCloseRequest() override { OnButton(SheetButton::kCancel); }

  /// Saves the active page's controls into its members or back; a panel's host answers so.
  bool UpdateData(bool save) override;

 protected:
  /// Sees a button that a person pressed before the platform acts on it; true consumes it. The base lets all
  /// pass.
  virtual bool OnCommand(SheetButton) { return false; }
  /// Every page has applied, or the wizard's last page has finished: what the sheet itself stores. False keeps it open.
  virtual bool Commit() { return true; }
  /// The sheet's window has been made, the first page not yet.
  virtual void OnCreated() {}
  /// The sheet's window is gone.
  virtual void OnDestroyed() {}

 private:
  friend class PropertyPage;
  void PageStateChanged() { Notify(Change::kPages); }
  void RemovePage(PropertyPage& page);
  bool ApplyAll();
  bool Finish();
  bool Show(int index);

  std::vector<PropertyPage*> pages_;
  int selected_, active_ = -1;
  bool wizard_ = false, help_button_ = false;
  std::uint32_t wizard_buttons_ = kWizardBack | kWizardNext;
};

}  // namespace platform::ui
