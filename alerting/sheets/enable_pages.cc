// SPDX-License-Identifier: MIT
#include "alerting/sheets/enable_pages.h"

#include "alerting/services/ntfy_service_generic.h"
#include "alerting/services/ntfy_service_tts.h"
#include "alerting/services/ntfy_service_wave.h"

namespace alerting {

CEnablePage::CEnablePage(ctxhelp::HelpPage help_page, const GeneralAccess& access,
                         const std::string& description, const std::string& test_hint)
    : CGeneralPage(help_page, access) {
  SetLayout(ui::Column({Frames(description, test_hint), ui::Stretch()}));
}

/// Texts that sound services once had on this page are emptied with each save; the other records have none.
void CEnablePage::CollectFields(GeneralFields& fields) const {
  fields.text1 = fields.text2 = fields.text = "";
}

CPropPgWaveGeneral::CPropPgWaveGeneral()
    : CEnablePage(ctxhelp::kHelpWaveGeneral, kGeneralOf<CNtfyServiceWave>,
                  "Allows an audio (WAV) file to be played on a workstation or server.",
                  "Press Test to play an audio file using this service.") {}

CPropPgProgGeneral::CPropPgProgGeneral()
    : CEnablePage(ctxhelp::kHelpProgramGeneral, kGeneralOf<CNtfyServiceProg>,
                  "Launches a program on a workstation or server.",
                  "Press Test to launch a program using this service.") {}

CPropPgTTSGeneral::CPropPgTTSGeneral()
    : CEnablePage(ctxhelp::kHelpSpeechGeneral, kGeneralOf<CNtfyServiceTTS>,
                  "Allows a text message to be converted to audio on a workstation or server.") {}

CPropPgGenericGeneral::CPropPgGenericGeneral()
    : CEnablePage(ctxhelp::kHelpPortGeneral, kGeneralOf<CNtfyServiceGeneric>,
                  "Allows a message to be sent to the active alert manager's serial port") {}

}  // namespace alerting
