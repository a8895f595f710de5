// SPDX-License-Identifier: MIT
#include "companions/minibrowse/minibrowse.h"

#include "companions/alertstore/problem.h"
#include "companions/minibrowse/computer_dialog.h"
#include "companions/objmodel/objmodel.h"

namespace minibrowse {
namespace {

platform::GUID ChooseComputer(platform::ui::Window* parent) {
  std::vector<alertstore::Computer> computers;
  const alertstore::Status status = alertstore::ListComputers(computers);
  const std::string why = status == alertstore::kOk
                              ? "No computer is known to this site yet."
                              : "The computers cannot be read: " + alertstore::ProblemText(status) + ".";
  ComputerDialog dialog(parent, std::move(computers), why + " Type the name instead.");
  dialog.RunModal();
  return dialog.Chosen();
}

class RealMiniBrowser : public MiniBrowser {
 public:
  const platform::GUID* dlgMiniBrowser(platform::GUID* result, platform::GUID class_id, std::uint32_t,
                                       platform::ui::Window* parent) override {
    *result = class_id == objmodel::kComputerClass ? ChooseComputer(parent) : platform::kNullGuid;
    return result;
  }
};

}  // namespace

std::unique_ptr<MiniBrowser> MakeMiniBrowser() { return std::make_unique<RealMiniBrowser>(); }

}  // namespace minibrowse
