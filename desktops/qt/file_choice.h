// SPDX-License-Identifier: MIT
#pragma once

#include <QFileDialog>

#include "desktops/qt/form_view.h"
#include "platform/ui/file_dialog.h"

namespace desktops::qt {

/// The file dialog with the program's preview area below its own controls. Not the system's native dialog,
/// which has no room for one.
class FileChoice : public QFileDialog {
 public:
  FileChoice(platform::ui::FileDialog& dialog, QWidget* parent);

 private:
  /// Tells the dialog that another file stands in the name field.
  void Highlight(const QString& path);
  void SetFilters();
  void SetStart();
  void AddPreview();

  platform::ui::FileDialog& dialog_;
  std::unique_ptr<FormView> preview_;
};

}  // namespace desktops::qt
