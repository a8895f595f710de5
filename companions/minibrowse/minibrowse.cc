// SPDX-License-Identifier: MIT
#include "companions/minibrowse/minibrowse.h"

#include "companions/alertstore/computers.h"
#include "companions/alertstore/problem.h"
#include "companions/choices/choose.h"
#include "companions/objmodel/objmodel.h"

namespace minibrowse {
namespace {

platform::GUID ChooseComputer(platform::ui::Window* parent) {
  std::vector<alertstore::Computer> computers;
  const alertstore::Status status = alertstore::ListComputers(computers);
  const std::string why = status == alertstore::kOk
                              ? "No computer is known to this site yet."
                              : "The computers cannot be read: " + alertstore::ProblemText(status) + ".";
  choices::Offer offer{"Choose Computer",
                       "&Computers of this site:",
                       {},
                       why + " Type the name instead.",
                       ctxhelp::kHelpChooseComputer,
                       true};
  for (const alertstore::Computer& computer : computers) offer.texts.push_back(computer.name);
  const auto chosen = choices::Choose(parent, offer);
  return chosen ? computers[*chosen].id : platform::kNullGuid;
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
