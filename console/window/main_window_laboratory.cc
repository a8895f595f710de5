// SPDX-License-Identifier: MIT
// The laboratory of the console's window: it runs while the console does, and what it changed goes back before.
#include "console/hosts/host_dialog.h"
#include "console/site/data_directory.h"
#include "console/site/failure.h"
#include "console/window/laboratory_window.h"
#include "console/window/main_window.h"
#include "console/window/notices.h"
#include "desktops/qt/texts.h"

namespace alertconsole {
namespace {

using desktops::qt::ToQt;

/// Alerts that are due now would be lost.
bool MayReplace(const std::vector<std::string>& replaced) {
  return replaced.empty() ||
         hosts::Ask("The laboratory takes the place of " + site::Listed(replaced) +
                    ".\n\nAlerts that are sent through these services while it runs reach nobody. What they "
                    "have now is put back afterwards.\n\nStart it all the same?");
}

}  // namespace

LaboratoryWindow& MainWindow::ShowLaboratory() {
  if (laboratory_window_ == nullptr)
    laboratory_window_ = new LaboratoryWindow(
        laboratory_, [this] { StartLaboratory(); }, [this] { StopLaboratory(); }, this);
  laboratory_window_->show();
  laboratory_window_->raise();
  laboratory_window_->activateWindow();
  return *laboratory_window_;
}

void MainWindow::StartLaboratory() {
  const auto start = [this] {
    try {
      site::RequireData();
      if (!MayReplace(site::PlanLaboratory().replaced)) return Outcome::kNothing;
      laboratory_note_.clear();
      laboratory_.Start();
      laboratory_ended_ = false;
    } catch (const site::Failure& failure) {
      hosts::Tell(failure.what());
    }
    return Outcome::kMayHaveStored;
  };
  Do(start, {});
  laboratory_window_->ShowState();
}

void MainWindow::StopLaboratory() {
  const auto stop = [this] {
    EndLaboratory();
    return Outcome::kMayHaveStored;
  };
  Do(stop, {});
}

// A failure here leaves it remembered, and the next console that starts puts back.
void MainWindow::EndLaboratory() {
  std::string note;
  try {
    note = site::LeftText(laboratory_.Stop());
  } catch (const site::Failure& failure) {
    note = "not all could be put back as it was before the laboratory: " + std::string(failure.what()) +
           ". The console tries again when it starts";
  }
  if (laboratory_window_ != nullptr) laboratory_window_->ShowState();
  if (!note.empty()) hosts::Tell(note);
}

void MainWindow::LookAfterLaboratory() {
  if (busy_ || !laboratory_.Runs() || !laboratory_.Process()->HasEnded()) return;
  if (std::exchange(laboratory_ended_, true)) return;
  laboratory_note_ = "The laboratory has ended by itself, and the site is as it was before.";
  StopLaboratory();
}

void MainWindow::PutLaboratoryBack() {
  try {
    const std::string left = site::LeftText(site::PutBackLeftOver());
    laboratory_note_ =
        "A console was ended while its laboratory ran. The site's own values have been put back. " + left;
  } catch (const site::Failure& failure) {
    laboratory_note_ = hosts::Sentence(failure.what());
  }
}

void MainWindow::ShowLaboratoryNotice() {
  const auto set = [this](const QString& text, const QString& button, std::function<void()> act) {
    notices_->Set(Notices::kLaboratory, text, button, std::move(act));
  };
  const auto put_back = [this] {
    const auto work = [this] {
      PutLaboratoryBack();
      return Outcome::kMayHaveStored;
    };
    Do(work, {});
  };
  const auto forget = [this] {
    laboratory_note_.clear();
    ShowNotices();
  };
  if (laboratory_.Runs())
    set(tr("Tests and alerts that this machine delivers go to the laboratory and reach nobody."),
        tr("Show La&boratory"), [this] { ShowLaboratory(); });
  else if (site::LaboratoryIsRemembered())
    set(tr("This site is pointed at the laboratory of another console. %1").arg(ToQt(laboratory_note_)),
        tr("Put &Back"), put_back);
  else
    set(ToQt(laboratory_note_), tr("OK"), forget);
}

}  // namespace alertconsole
