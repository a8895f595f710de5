// SPDX-License-Identifier: MIT
#include "console/site/providers.h"

#include "companions/alertstore/stores.h"
#include "console/site/provider_fields.h"
#include "console/site/walk.h"

namespace site {
namespace {

using alertstore::Status;
using Store = alertstore::CAlertAPAGE_SERVICE_PROVIDERDB;

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

Provider UsualProvider() {
  Provider provider{};
  provider.baudRate = 2400;
  provider.parity = 2;
  provider.dataBits = 7;
  provider.maxTextLength = 240;
  return provider;
}

std::string ProviderProblem(const Provider& provider) {
  for (const ProviderField& field : ProviderFields())
    if (const std::string problem = field.problem(provider); !problem.empty()) return problem;
  return {};
}

}  // namespace site
