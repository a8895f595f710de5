// SPDX-License-Identifier: MIT
#include "alerting/sheets/pager_pages.h"

#include "alerting/services/ntfy_service_num.h"
#include "alerting/services/service_ui.h"
#include "alerting/sheets/service_sheets.h"
#include "platform/ui/modal.h"

namespace alerting {
namespace {

// The arrows of a number have the identifier behind its field's.
enum ControlId {
  kIdDelay = 102,
  kIdCompany = 102,
  kIdLocation,
  kIdTextLength,
  kIdPhone = 106,
  kIdSetProvider
};

constexpr std::size_t kMaxCompany = 64, kMaxLocation = 2048, kMaxPhone = 25;

}  // namespace

NumberField::NumberField(ui::Form& page, int id, std::string label, int lower, int upper, std::size_t digits,
                         bool wraps)
    : edit(page, id, std::move(label)), spin(page, id + 1, edit, wraps) {
  edit.SetDigitsOnly(true);
  edit.SetLimit(digits);
  spin.SetRange(lower, upper);
}

void NumberField::Exchange(ui::DataExchange& x, std::uint32_t& value) {
  x.Integer(edit, value, static_cast<std::uint32_t>(spin.Lower()), static_cast<std::uint32_t>(spin.Upper()));
}

CPropPgNumericPageGeneral::CPropPgNumericPageGeneral()
    : CGeneralPage(ctxhelp::kHelpNumericGeneral, kGeneralOf<CNtfyServiceNum>),
      delay_(*this, kIdDelay, "&Delay:", 0, 60, 2, true) {
  SetLayout(FramesOver("Numeric pagers can send a message consisting only of numbers 0-9, *, and #.",
                       {ui::Note("Set the number of seconds for the modem to wait after dialing."),
                        ui::Row({delay_.Place(), ui::Stretch()})}));
}

void CPropPgNumericPageGeneral::Exchange(ui::DataExchange& x) {
  CGeneralPage::Exchange(x);
  delay_.Exchange(x, delay_seconds_);
}

CPropPgAlphaGeneral2::CPropPgAlphaGeneral2()
    : CGeneralPage(ctxhelp::kHelpAlphaGeneral, kGeneralOf<CNtfyServiceAlpha>),
      company_(*this, kIdCompany, "&Company:"),
      location_(*this, kIdLocation, "&Location:"),
      text_length_(*this, kIdTextLength, "Te&xt Length:", 1, 255, 3, false),
      phone_(*this, kIdPhone, "P&hone:"),
      set_provider_(*this, kIdSetProvider, "&Set service provider") {
  SetLayout(FramesOver("Alphanumeric pagers can receive messages consiting of text and numbers.",
                       {ui::Grid({ui::Row({ui::Field(company_), text_length_.Place()}),
                                  ui::Row({ui::Field(location_), ui::Field(phone_)})}),
                        ui::Row({ui::Bare(set_provider_), ui::Stretch()})}));
  company_.SetLimit(kMaxCompany);
  location_.SetLimit(kMaxLocation);
  phone_.SetLimit(kMaxPhone);
  phone_.SetFilter(CharacterSet::kPhoneNumber);
  set_provider_.SetOnClick([this] { OnSetProvider(); });
}

void CPropPgAlphaGeneral2::ReadProvider() {
  provider_ = Pager().GetProviderFields();
  for (std::string* text : {&provider_.company, &provider_.location, &provider_.phone})
    *text = ShownText(*text);
}

void CPropPgAlphaGeneral2::Exchange(ui::DataExchange& x) {
  CGeneralPage::Exchange(x);
  x.Text(company_, provider_.company);
  x.Text(location_, provider_.location);
  text_length_.Exchange(x, provider_.textLength);
  x.Text(phone_, provider_.phone);
}

/// The dialog stores what was chosen at once; the service has it after reading its records again.
void CPropPgAlphaGeneral2::OnSetProvider() {
  UpdateData(true);  // a length that is refused here does not matter: the provider brings its own
  const auto choose = ServiceUiOf(kTypeAlpha).choose_provider;
  if (choose == nullptr || choose(Service(), this) != ui::kOk) return;
  Service().ReloadRecords();
  ReadProvider();
  UpdateData(false);
  if (auto* sheet = dynamic_cast<CSheetServiceAlpha*>(OwnSheet())) sheet->RefreshModemPage();
}

bool CPropPgAlphaGeneral2::SaveFields() {
  Pager().SetProviderFields(provider_);
  return CGeneralPage::SaveFields();
}

}  // namespace alerting
