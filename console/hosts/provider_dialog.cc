// SPDX-License-Identifier: MIT
#include "console/hosts/provider_dialog.h"

#include <functional>
#include <optional>

#include "console/hosts/host_dialog.h"
#include "console/site/advice.h"
#include "console/site/provider_fields.h"
#include "platform/ui/edit.h"
#include "platform/ui/lists.h"

namespace hosts {
namespace {

using site::Provider;

enum ControlId {
  kIdCompany = 100,
  kIdRegionA,
  kIdRegionB,
  kIdPhone,
  kIdBaudRate,
  kIdParity,
  kIdDataBits,
  kIdStopBits,
  kIdTextLength
};

class ProviderDialog : public HostDialog {
 public:
  using Store = std::function<alertstore::Status(Provider&)>;
  ProviderDialog(ui::Window* parent, std::string caption, Provider& provider, Store store);

 private:
  void OnInitDialog() override;
  void OnOk() override;
  /// Answers what is wrong with what was entered, as a sentence, or "".
  std::string Enter(Provider& provider) const;

  Provider& provider_;
  const Store store_;
  ui::Edit company_, region_a_, region_b_, phone_, baud_rate_;
  ui::ComboBox parity_, data_bits_, stop_bits_;
  ui::Edit text_length_;
  ui::OkCancelButtons buttons_;
};

ProviderDialog::ProviderDialog(ui::Window* parent, std::string caption, Provider& provider, Store store)
    : HostDialog(parent, std::move(caption), ctxhelp::kHelpPagingProvider),
      provider_(provider),
      store_(std::move(store)),
      company_(*this, kIdCompany, "&Company:"),
      region_a_(*this, kIdRegionA, "&Location:"),
      region_b_(*this, kIdRegionB, "L&ocation, second part:"),
      phone_(*this, kIdPhone, "&Phone number:"),
      baud_rate_(*this, kIdBaudRate, "&Baud rate:"),
      parity_(*this, kIdParity, "Pa&rity:"),
      data_bits_(*this, kIdDataBits, "&Data bits:"),
      stop_bits_(*this, kIdStopBits, "&Stop bits:"),
      text_length_(*this, kIdTextLength, "Te&xt length:"),
      buttons_(*this) {
  SetLayout(ui::Column({ui::Characters(40, ui::Field(company_)), ui::Characters(40, ui::Field(region_a_)),
                        ui::Characters(40, ui::Field(region_b_)), ui::Characters(26, ui::Field(phone_)),
                        ui::Characters(10, ui::Field(baud_rate_)), ui::Characters(8, ui::Field(parity_)),
                        ui::Characters(8, ui::Field(data_bits_)), ui::Characters(8, ui::Field(stop_bits_)),
                        ui::Characters(10, ui::Field(text_length_)), buttons_.Row()}));
  baud_rate_.SetDigitsOnly(true);
  text_length_.SetDigitsOnly(true);
  ui::ItemData code = 0;
  for (const char* name : {"None", "Odd", "Even"}) parity_.Add(name, code++);
  code = 0;
  for (const char* name : {"1", "1.5", "2"}) stop_bits_.Add(name, code++);
  for (const ui::ItemData bits : {6, 7, 8}) data_bits_.Add(std::to_string(bits), bits);
}

void ProviderDialog::OnInitDialog() {
  HostDialog::OnInitDialog();
  company_.SetText(provider_.company.View());
  region_a_.SetText(provider_.regionA.View());
  region_b_.SetText(provider_.regionB.View());
  phone_.SetText(provider_.phone.View());
  baud_rate_.SetText(std::to_string(provider_.baudRate));
  parity_.Select(parity_.FindData(provider_.parity));
  data_bits_.Select(data_bits_.FindData(provider_.dataBits));
  stop_bits_.Select(stop_bits_.FindData(provider_.stopBits));
  text_length_.SetText(std::to_string(provider_.maxTextLength));
}

// The fields have no limits: what is too long is told, not cut, so that nothing pasted is lost. A code that no item stands
// for stays as it is.
std::string ProviderDialog::Enter(Provider& provider) const {
  const auto chosen = [](const ui::ComboBox& list) {
    return list.Current() < 0 ? std::optional<std::string>() : list.Text();
  };
  const std::optional<std::string> written[] = {company_.Text(),    region_a_.Text(),   region_b_.Text(),
                                                phone_.Text(),      baud_rate_.Text(),  chosen(parity_),
                                                chosen(data_bits_), chosen(stop_bits_), text_length_.Text()};
  for (std::size_t i = 0; i < std::size(written); ++i) {
    if (!written[i]) continue;
    const std::string problem = site::ProviderFields()[i].Take(provider, *written[i]);
    if (!problem.empty()) return problem;
  }
  return site::ProviderProblem(provider);
}

void ProviderDialog::OnOk() {
  Provider entered = provider_;
  if (const std::string problem = Enter(entered); !problem.empty()) return Tell(problem);
  if (const alertstore::Status status = store_(entered))
    return Tell(site::FailureText("store the paging provider", status));
  provider_ = entered;
  EndDialog(ui::kOk);
}

}  // namespace

bool AddProvider(ui::Window* parent, platform::GUID& added) {
  Provider provider = site::UsualProvider();
  if (ProviderDialog(parent, "New Paging Provider", provider, site::AddProvider).RunModal() != ui::kOk)
    return false;
  added = provider.guid;
  return true;
}

bool ChangeProvider(ui::Window* parent, const site::Provider& provider) {
  Provider changed = provider;
  return ProviderDialog(parent, "Paging Provider Properties", changed, site::UpdateProvider).RunModal() ==
         ui::kOk;
}

}  // namespace hosts
