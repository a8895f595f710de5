// SPDX-License-Identifier: MIT
#include "desktops/qt/file_choice.h"

#include <QFileInfo>
#include <QLayout>
#include <QLineEdit>
#include <utility>

#include "desktops/qt/guard.h"
#include "desktops/qt/texts.h"

namespace desktops::qt {
namespace {

// "*.*" stands for all files, also for those without a dot.
QString FilterOf(const platform::ui::FileFilter& filter) {
  QStringList patterns = ToQt(filter.patterns).split(';', Qt::SkipEmptyParts);
  patterns.replaceInStrings(QStringLiteral("*.*"), QStringLiteral("*"));
  return ToQt(filter.description) + " (" + patterns.join(' ') + ')';
}

}  // namespace

FileChoice::FileChoice(platform::ui::FileDialog& dialog, QWidget* parent)
    : QFileDialog(parent, ToQt(dialog.title)), dialog_(dialog) {
  setOption(DontUseNativeDialog);
  setOption(HideNameFilterDetails, false);
  setFileMode(dialog.must_exist ? ExistingFile : AnyFile);
  SetFilters();
  SetStart();
  if (dialog.HasPreview()) AddPreview();
  connect(this, &QFileDialog::currentChanged, this, [this](const QString& path) { Highlight(path); });
  if (auto* name = findChild<QLineEdit*>("fileNameEdit")) {
    connect(name, &QLineEdit::textEdited, this,
            [this](const QString& text) { Highlight(directory().absoluteFilePath(text)); });
  }
}

void FileChoice::SetFilters() {
  QStringList filters;
  for (const platform::ui::FileFilter& filter : dialog_.filters) filters << FilterOf(filter);
  if (!filters.isEmpty()) setNameFilters(filters);
  const QString extension = ToQt(dialog_.default_extension);
  setDefaultSuffix(extension.mid(extension.lastIndexOf('.') + 1));
}

// The file to begin with stands in the name field; its folder is the one shown.
void FileChoice::SetStart() {
  if (!dialog_.initial_directory.empty()) setDirectory(ToQt(dialog_.initial_directory));
  if (dialog_.initial_path.empty()) return;
  const QFileInfo file(ToQt(dialog_.initial_path));
  if (file.isAbsolute() || dialog_.initial_directory.empty()) setDirectory(file.absolutePath());
  selectFile(file.fileName());
  initial_ = directory().absoluteFilePath(file.fileName());
}

void FileChoice::AddPreview() {
  preview_ = std::make_unique<FormView>(dialog_, this);
  preview_->LeaveEndingToWindow();
  setMinimumWidth(dialog_.PreviewWidth());
  // Below the layout, not in it: the area takes the dialog's whole width, without the layout's margins.
  layout()->setContentsMargins(layout()->contentsMargins() + QMargins(0, 0, 0, dialog_.PreviewHeight()));
  PlaceControls();
  preview_->Start();
}

void FileChoice::PlaceControls() {
  preview_->setGeometry(0, height() - dialog_.PreviewHeight(), width(), dialog_.PreviewHeight());
  for (const platform::ui::PlacedControl& placed : dialog_.Preview()) {
    QWidget* widget = preview_->Add(*placed.control).OwnedWidget();
    widget->setGeometry(placed.x, placed.y, placed.width, placed.height);
  }
}

void FileChoice::resizeEvent(QResizeEvent* event) {
  QFileDialog::resizeEvent(event);
  Guarded([&] { dialog_.OnLayout({0, 0, width(), height()}); });
  if (preview_ != nullptr) PlaceControls();
}

// The file list is read later and may not have the file; the name field has it at once.
void FileChoice::showEvent(QShowEvent* event) {
  QFileDialog::showEvent(event);
  if (!initial_.isEmpty()) Highlight(std::exchange(initial_, {}));
}

void FileChoice::Highlight(const QString& path) {
  Guarded([&] { dialog_.SetHighlighted(FromQt(path)); });
}

}  // namespace desktops::qt
