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

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  /// Tells the dialog that another file stands in the name field.
  void Highlight(const QString& path);
  void SetFilters();
  void SetStart();
  void AddPreview();
  void PlaceControls();

  platform::ui::FileDialog& dialog_;
  std::unique_ptr<FormView> preview_;
  QString initial_;  // until it was told
};

}  // namespace desktops::qt
