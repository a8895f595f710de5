// SPDX-License-Identifier: MIT
#include "console/site/providers.h"

#include "companions/alertstore/stores.h"
#include "console/site/names.h"
#include "console/site/walk.h"

namespace site {
namespace {

using alertstore::Status;
using Store = alertstore::CAlertAPAGE_SERVICE_PROVIDERDB;

/// A part of the location may be left out; what is there must be readable.
std::string PartProblem(const std::string& what, std::string_view text) {
  return text.empty() ? "" : NameProblem(what, std::string(text), text.size());
}

std::string PhoneProblem(std::string_view phone) {
  if (phone.find_first_of("0123456789") == std::string_view::npos)
    return "the phone number has at least one digit: enter what the modem dials";
  if (phone.find_first_not_of("0123456789 ()-,+*#") != std::string_view::npos)
    return "the phone number has digits, brackets, commas, hyphens and blanks: correct \"" +
           std::string(phone) + "\"";
  return {};
}

std::string LineProblem(const Provider& provider) {
  if (provider.baudRate == 0) return "the baud rate is a number from 1 on, such as 2400";
  if (provider.parity > 2) return "the parity is none, odd or even";
  if (provider.dataBits < 6 || provider.dataBits > 8) return "there are 6, 7 or 8 data bits";
  if (provider.stopBits > 2) return "the stop bits are one, one and a half, or two";
  if (provider.maxTextLength < 1 || provider.maxTextLength > 255)
    return "the text length is a number from 1 to 255, as a pager service can hold it";
  return {};
}

}  // namespace

Status ListProviders(std::vector<Provider>& providers) {
  Store store;
  std::vector<Provider> read;
  const Status status = WalkAll(store, [&](const Provider& provider) {
    read.push_back(provider);
    return alertstore::kOk;
  });
  if (status == alertstore::kOk) providers = std::move(read);
  return status;
}

Status AddProvider(Provider& provider) {
  Store store;
  platform::GUID id{};
  if (const Status status = store.DBOpen()) return status;
  return store.DBAlertRecAdd(provider, id);
}

Status UpdateProvider(const Provider& provider) {
  Store store;
  if (const Status status = store.DBOpen()) return status;
  return store.DBAlertRecUpdate(provider);
}

Status RemoveProvider(const platform::GUID& id) {
  Store store;
  if (const Status status = store.DBOpen()) return status;
  return store.DBAlertRecDelete(id);
}

std::string ProviderProblem(const Provider& provider) {
  const std::string company(provider.company.View());
  for (const std::string& problem :
       {NameProblem("a provider's company", company, decltype(provider.company)::kMaxLength),
        PartProblem("the first part of the location", provider.regionA.View()),
        PartProblem("the second part of the location", provider.regionB.View()),
        PhoneProblem(provider.phone.View()), LineProblem(provider)})
    if (!problem.empty()) return problem;
  return {};
}

}  // namespace site
