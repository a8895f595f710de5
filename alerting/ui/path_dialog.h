// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "companions/ctxhelp/help_pages.h"
#include "platform/ui/file_dialog.h"

namespace alerting {

namespace ui = platform::ui;

/// What the dialogs share that pick a file for a service or a response: the file must be there, and texts come from the
/// string table.
class CPathDialog : public ui::FileDialog {
 public:
  /// Runs the dialog: kOk, with a Path() that a record holds, or kCancel. A longer path is refused with a message.
  int Choose();
  /// The same, and puts the universal form of the path into `path`, after a warning where it has none.
  int ChooseUniversal(std::string& path);

  void OnHelp(const ui::HelpEvent& event) override;

 protected:
  /// Identifiers of the filters, the default extension and the title.
  struct Texts {
    int filters, extension, title;
  };
  /// The help page is the one of the preview's controls.
  CPathDialog(ui::Window* parent, std::string initial, const Texts& texts,
              ctxhelp::HelpPage help_page = ctxhelp::kNoHelpPage);

  /// False on systems whose file dialogs have no room for more.
  static bool CanPreview();

 private:
  const ctxhelp::HelpPage help_page_;
};

}  // namespace alerting
