// SPDX-License-Identifier: MIT
#pragma once

#include <string>

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

 protected:
  /// Identifiers of the filters, the default extension and the title.
  struct Texts {
    int filters, extension, title;
  };
  CPathDialog(ui::Window* parent, std::string initial, const Texts& texts);

  /// False on systems whose file dialogs have no room for more.
  static bool CanPreview();
};

}  // namespace alerting
