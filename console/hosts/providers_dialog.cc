// SPDX-License-Identifier: MIT
#include "console/hosts/providers_dialog.h"

#include <algorithm>

#include "console/hosts/list_dialog.h"
#include "console/hosts/provider_dialog.h"
#include "console/hosts/provider_import.h"
#include "console/site/advice.h"

namespace hosts {
namespace {

std::string LocationOf(const site::Provider& provider) {
  return std::string(provider.regionA.View()) + " " + std::string(provider.regionB.View());
}

class ProvidersDialog : public ListDialog {
 public:
  explicit ProvidersDialog(ui::Window* parent);

 private:
  bool ReadRows(std::vector<RecordList::Row>& rows) override;
  void Add();
  void Change();
  void Remove();
  void Import();
  site::Provider Chosen();

  std::vector<site::Provider> providers_;
};

ProvidersDialog::ProvidersDialog(ui::Window* parent)
    : ListDialog(
          parent,
          {"Paging Providers",
           "Paging &providers:",
           "There is no paging provider yet. Add the one that your pagers belong to.",
           {{"Company", 110}, {"Location", 160}, {"Phone", 70}, {"Baud rate", 10}, {"Text length", 10}},
           ctxhelp::kHelpPagingProviders}) {
  AddButton("&Add...", [this] { Add(); });
  AddRowButton("&Change...", [this] { Change(); });
  AddRowButton("&Remove", [this] { Remove(); });
  AddButton("&Import...", [this] { Import(); });
  List().SetOnDoubleClick([this] {
    if (List().Chosen() != nullptr) Change();
  });
  Finish();
}

bool ProvidersDialog::ReadRows(std::vector<RecordList::Row>& rows) {
  if (const alertstore::Status status = site::ListProviders(providers_)) {
    Tell(site::FailureText("read the paging providers", status));
    return false;
  }
  for (const site::Provider& provider : providers_)
    rows.push_back(
        {provider.guid,
         {std::string(provider.company.View()), LocationOf(provider), std::string(provider.phone.View()),
          std::to_string(provider.baudRate), std::to_string(provider.maxTextLength)}});
  return true;
}

site::Provider ProvidersDialog::Chosen() {
  return *std::ranges::find(providers_, List().Chosen()->id, &site::Provider::guid);
}

void ProvidersDialog::Add() {
  platform::GUID added{};
  if (!AddProvider(this, added)) return;
  NoteChange();
  List().Choose(added);
  EnableButtons();
}

void ProvidersDialog::Change() {
  if (ChangeProvider(this, Chosen())) NoteChange();
}

void ProvidersDialog::Remove() {
  const site::Provider provider = Chosen();
  if (!Ask("Remove the paging provider \"" + std::string(provider.company.View()) +
           "\"? Services set up with it keep its settings."))
    return;
  const alertstore::Status status = site::RemoveProvider(provider.guid);
  if (status != alertstore::kOk) return Tell(site::FailureText("remove the paging provider", status));
  NoteChange();
}

void ProvidersDialog::Import() {
  if (ImportProviders(this)) NoteChange();
}

}  // namespace

bool EditProviders(ui::Window* parent) {
  ProvidersDialog dialog(parent);
  dialog.RunModal();
  return dialog.Changed();
}

}  // namespace hosts
