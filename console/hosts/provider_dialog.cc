// SPDX-License-Identifier: MIT
#include "console/hosts/provider_dialog.h"

#include <charconv>
#include <functional>

#include "console/hosts/host_dialog.h"
#include "console/site/advice.h"
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

/// 0, which no number of a provider is, for what is none.
std::uint32_t Number(const std::string& text) {
  std::uint32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() ? number : 0;
}

class ProviderDialog : public HostDialog {
 public:
  using Store = std::function<alertstore::Status(Provider&)>;
  ProviderDialog(ui::Window* parent, std::string caption, Provider& provider, Store store);

 private:
  void OnInitDialog() override;
  void OnOk() override;
  std::string TooLong() const;
  Provider Entered() const;

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

// The fields have no limits: what is too long is told, not cut, so that nothing pasted is lost.
std::string ProviderDialog::TooLong() const {
  const std::tuple<const ui::Edit&, const char*, std::size_t> fields[] = {
      {company_, "a provider's company", decltype(provider_.company)::kMaxLength},
      {region_a_, "the first part of the location", decltype(provider_.regionA)::kMaxLength},
      {region_b_, "the second part of the location", decltype(provider_.regionB)::kMaxLength},
      {phone_, "the phone number", decltype(provider_.phone)::kMaxLength}};
  for (const auto& [field, what, limit] : fields)
    if (const std::size_t size = Trimmed(field.Text()).size(); size > limit)
      return what + (" has at most " + std::to_string(limit)) + " bytes: this one has " +
             std::to_string(size);
  return {};
}

// A code that no item stands for stays as it is.
Provider ProviderDialog::Entered() const {
  const auto chosen = [](const ui::ComboBox& combo, std::uint32_t before) {
    return combo.Current() < 0 ? before : static_cast<std::uint32_t>(combo.Data(combo.Current()));
  };
  Provider entered = provider_;
  entered.company.Assign(Trimmed(company_.Text()));
  entered.regionA.Assign(Trimmed(region_a_.Text()));
  entered.regionB.Assign(Trimmed(region_b_.Text()));
  entered.phone.Assign(Trimmed(phone_.Text()));
  entered.baudRate = Number(baud_rate_.Text());
  entered.parity = chosen(parity_, provider_.parity);
  entered.dataBits = chosen(data_bits_, provider_.dataBits);
  entered.stopBits = chosen(stop_bits_, provider_.stopBits);
  entered.maxTextLength = Number(text_length_.Text());
  return entered;
}

void ProviderDialog::OnOk() {
  if (const std::string problem = TooLong(); !problem.empty()) return Tell(problem);
  Provider entered = Entered();
  if (const std::string problem = site::ProviderProblem(entered); !problem.empty()) return Tell(problem);
  if (const alertstore::Status status = store_(entered))
    return Tell(site::FailureText("store the paging provider", status));
  provider_ = entered;
  EndDialog(ui::kOk);
}

Provider UsualProvider() {
  Provider provider{};
  provider.baudRate = 2400;
  provider.parity = 2;
  provider.dataBits = 7;
  provider.maxTextLength = 240;
  return provider;
}

}  // namespace

bool AddProvider(ui::Window* parent, platform::GUID& added) {
  Provider provider = UsualProvider();
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
