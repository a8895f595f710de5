// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "alerting/sheets/general_page.h"

// General pages of the services that are only enabled and tested.

namespace alerting {

class CEnablePage : public CGeneralPage {
 protected:
  CEnablePage(ctxhelp::HelpPage help_page, const GeneralAccess& access, const std::string& description,
              const std::string& test_hint = kSendHint);

 private:
  void CollectFields(GeneralFields& fields) const override;
};

class CPropPgWaveGeneral : public CEnablePage {
 public:
  CPropPgWaveGeneral();
};

class CPropPgProgGeneral : public CEnablePage {
 public:
  CPropPgProgGeneral();
};

class CPropPgTTSGeneral : public CEnablePage {
 public:
  CPropPgTTSGeneral();
};

class CPropPgGenericGeneral : public CEnablePage {
 public:
  CPropPgGenericGeneral();
};

}  // namespace alerting
