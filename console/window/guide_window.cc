// SPDX-License-Identifier: MIT
#include "console/window/guide_window.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "companions/ctxhelp/resource_directory.h"
#include "desktops/qt/texts.h"

namespace alertconsole {
namespace {

constexpr int kWidthInLetters = 110, kHeightInLines = 36;

/// Beside the resource files: as installed, or as in the source tree.
QString ContentsFile() {
  const QString resources = desktops::qt::ToQt(ctxhelp::ResourceDirectory());
  for (const QString& folder : {resources + "/guide", resources + "/../docs/guide"})
    if (QFile::exists(folder + "/README.md")) return folder + "/README.md";
  return {};
}

}  // namespace

GuideWindow::GuideWindow(QWidget* parent) : QDialog(parent), text_(new QTextBrowser(this)) {
  setWindowTitle(tr("Guide"));
  text_->setAccessibleName(tr("Guide"));
  text_->setOpenExternalLinks(false);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  QPushButton* back = buttons->addButton(tr("&Back"), QDialogButtonBox::ActionRole);
  QPushButton* contents = buttons->addButton(tr("&Contents"), QDialogButtonBox::ActionRole);
  back->setEnabled(false);
  connect(text_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
  connect(back, &QPushButton::clicked, text_, &QTextBrowser::backward);
  connect(contents, &QPushButton::clicked, this, [this] { ShowContents(); });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
  auto* column = new QVBoxLayout(this);
  column->addWidget(text_);
  column->addWidget(buttons);
  resize(fontMetrics().averageCharWidth() * kWidthInLetters, fontMetrics().lineSpacing() * kHeightInLines);
}

void GuideWindow::ShowContents() {
  const QString file = ContentsFile();
  if (file.isEmpty())
    text_->setPlainText(tr("The guide is not installed beside the console's resource files."));
  else
    text_->setSource(QUrl::fromLocalFile(file), QTextDocument::MarkdownResource);
  show();
  raise();
  activateWindow();
}

}  // namespace alertconsole
