// SPDX-License-Identifier: MIT
#include "companions/minibrowse/minibrowse.h"

#include "companions/minibrowse/computer_dialog.h"
#include "companions/objmodel/objmodel.h"

namespace minibrowse {
namespace {

class RealMiniBrowser : public MiniBrowser {
 public:
  const platform::GUID* dlgMiniBrowser(platform::GUID* result, platform::GUID class_id, std::uint32_t,
                                       platform::ui::Window* parent) override {
    std::vector<alertstore::Computer> computers;
    *result = platform::kNullGuid;
    if (class_id == objmodel::kComputerClass) alertstore::ListComputers(computers);
    ComputerDialog dialog(parent, std::move(computers));
    if (dialog.RunModal() == platform::ui::kOk) *result = dialog.Chosen();
    return result;
  }
};

}  // namespace

std::unique_ptr<MiniBrowser> MakeMiniBrowser() { return std::make_unique<RealMiniBrowser>(); }

}  // namespace minibrowse
