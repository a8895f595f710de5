// SPDX-License-Identifier: MIT
#include "console/hosts/field_places.h"

#include <algorithm>

namespace hosts {
namespace {

using Start = FieldPlace::Start;

constexpr char kGeneral[] = "General", kModems[] = "Modems";
constexpr FieldStop kModem{kModems, {"&Properties"}, "Modems", true}, kAdvanced{"", {"Ad&vanced"}},
    kTest{kGeneral, {"&Test"}}, kSnmpManager{kGeneral, {"&Properties"}, "&SNMP Destinations:"};

constexpr FieldPlace kPlaces[] = {
    {"enabled", Start::kService, {{{kGeneral, {"&Enable Service"}}}}},
    {"smtpServer", Start::kService, {{{kGeneral, {"&SMTP Server:"}}}}},
    // Only mail is sent with a login, and the properties of Internet Mail hide it.
    {"loginId", Start::kNowhere, {}},
    {"password", Start::kNowhere, {}},
    {"providerPhone", Start::kService, {{{kGeneral, {"P&hone:"}}}}},
    {"maxTextLength", Start::kService, {{{kGeneral, {"Te&xt Length:"}}}}},
    {"modem", Start::kService, {{{kModems, {"Modems"}}}}},
    {"backupModem", Start::kBackup, {{{kModems, {"Modems"}}}}},
    {"baudRate", Start::kModem, {{{kModems, {"&Baud Rate:"}}}}},
    {"address",
     Start::kEntry,
     {{{"", {"Email A&ddress:", "Email &Address:", "&PIN number:", "&Phone number:"}}}}},
    {"userEnabled", Start::kEntry, {{{"", {"&Enable service", "&Enable service for user"}}}}},
    {"userName", Start::kTest, {{kTest, {"", {"&Target Machine:", "&Target Workstation:"}}}}},
    {"subject", Start::kTest, {{kTest, {"", {"&Program:", "&Wave File:", "Message &Subject:"}}}}},
    {"message",
     Start::kTest,
     {{kTest, {"", {"&Message:", "&Message Body:", "Message &Body:", "&Command Line:"}}}}},
    {"snmpManagers.address", Start::kService, {{kSnmpManager, {"", {"&Network Address:"}}}}},
    {"snmpManagers.community", Start::kService, {{kSnmpManager, {"", {"&Community:"}}}}},
    {"modems.enabled", Start::kModem, {{kModem, {"", {"&Enable"}}}}},
    {"modems.comPort", Start::kModem, {{kModem, {"", {"&Port:"}}}}},
    {"modems.initString", Start::kModem, {{kModem, kAdvanced, {"", {"&Initialization string:"}}}}},
    {"modems.alphaInitString",
     Start::kModem,
     {{kModem, kAdvanced, {"", {"&Alpha pager initialization string:"}}}}},
    {"modems.dialPrefix", Start::kModem, {{kModem, kAdvanced, {"", {"Dialing &prefix string:"}}}}},
    {"modems.dialSuffix", Start::kModem, {{kModem, kAdvanced, {"", {"Dialing &suffix string:"}}}}},
    {"modems.hangupString", Start::kModem, {{kModem, kAdvanced, {"", {"&Hangup string:"}}}}},
};

}  // namespace

std::span<const FieldStop> FieldPlace::Way() const {
  const auto* const end = std::ranges::find(way, nullptr, &FieldStop::page);
  return {way.begin(), end};
}

std::span<const FieldPlace> FieldPlaces() { return kPlaces; }

const FieldPlace* FindFieldPlace(std::string_view field) {
  const auto* const place = std::ranges::find(kPlaces, field, &FieldPlace::field);
  return place != std::end(kPlaces) ? place : nullptr;
}

}  // namespace hosts
