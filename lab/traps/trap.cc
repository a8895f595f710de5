// SPDX-License-Identifier: MIT
#include "lab/traps/trap.h"

#include "lab/traps/ber.h"
#include "platform/base/base64.h"

namespace lab {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::uint8_t kInteger = 0x02, kOctets = 0x04, kNull = 0x05, kIdentifier = 0x06, kSequence = 0x30;
constexpr std::uint8_t kAddress = 0x40, kCounter = 0x41, kGauge = 0x42, kTicks = 0x43, kCounter64 = 0x46;
constexpr std::uint8_t kTrapV1 = 0xA4, kInform = 0xA6, kTrapV2 = 0xA7, kResponse = 0xA2;
constexpr std::size_t kMostVariables = 100;

std::string Dotted(std::string_view bytes) {
  std::string text;
  for (const char c : bytes) text += (text.empty() ? "" : ".") + std::to_string(static_cast<std::uint8_t>(c));
  return text;
}

/// A text as it is, with its bytes beside it, since JSON cannot hold all of them.
Json VariableOf(const std::string& oid, const BerElement& value) {
  switch (value.tag) {
    case kInteger:
      return {{"oid", oid}, {"type", "integer"}, {"value", BerInteger(value.content)}};
    case kOctets:
      return {{"oid", oid},
              {"type", "octets"},
              {"value", std::string(value.content)},
              {"raw", platform::EncodeBase64(value.content)}};
    case kNull:
      return {{"oid", oid}, {"type", "null"}, {"value", nullptr}};
    case kIdentifier:
      return {{"oid", oid}, {"type", "oid"}, {"value", BerObjectIdentifier(value.content)}};
    case kAddress:
      return {{"oid", oid}, {"type", "address"}, {"value", Dotted(value.content)}};
    case kCounter:
    case kGauge:
    case kTicks:
    case kCounter64:
      return {{"oid", oid},
              {"type", value.tag == kTicks ? "ticks" : "unsigned"},
              {"value", BerUnsigned(value.content)}};
    default:
      return {{"oid", oid}, {"type", "other"}, {"value", platform::EncodeBase64(value.content)}};
  }
}

bool ReadVariables(BerReader& pdu, Json& details) {
  Json variables = Json::array();
  BerReader list(pdu.Next(kSequence));
  while (!list.IsAtEnd() && variables.size() < kMostVariables) {
    BerReader pair(list.Next(kSequence));
    const std::string oid = BerObjectIdentifier(pair.Next(kIdentifier));
    const BerElement value = pair.Next();
    if (!list.IsGood() || !pair.IsGood() || oid.empty()) return false;
    variables.push_back(VariableOf(oid, value));
  }
  details["variables"] = std::move(variables);
  return pdu.IsGood() && list.IsGood();
}

bool ReadV1(std::string_view content, Trap& trap) {
  BerReader pdu(content);
  trap.details["enterprise"] = BerObjectIdentifier(pdu.Next(kIdentifier));
  trap.details["agent"] = Dotted(pdu.Next(kAddress));
  trap.details["generic"] = pdu.NextInteger();
  trap.details["specific"] = pdu.NextInteger();
  trap.details["uptime"] = BerUnsigned(pdu.Next(kTicks));
  return ReadVariables(pdu, trap.details);
}

bool ReadV2(std::string_view content, std::string_view datagram, Trap& trap) {
  BerReader pdu(content);
  trap.details["requestId"] = pdu.NextInteger();
  const std::string_view error_status = pdu.Next(kInteger);
  pdu.NextInteger();
  if (!pdu.IsGood() || error_status.size() != 1) return false;
  trap.error_at = static_cast<std::size_t>(error_status.data() - datagram.data());
  return ReadVariables(pdu, trap.details);
}

}  // namespace

std::optional<Trap> DecodeTrap(std::string_view datagram) {
  BerReader outside(datagram);
  BerReader message(outside.Next(kSequence));
  Trap trap;
  const std::int64_t version = message.NextInteger();
  trap.community = message.Next(kOctets);
  const BerElement pdu = message.Next();
  if (!outside.IsGood() || !message.IsGood() || pdu.content.empty()) return std::nullopt;
  trap.version = version == 0 ? "1" : "2c";
  trap.what = pdu.tag == kInform ? "inform" : "trap";
  trap.pdu_at = static_cast<std::size_t>(pdu.whole.data() - datagram.data());
  const bool is_v1 = version == 0 && pdu.tag == kTrapV1;
  const bool is_v2 = version == 1 && (pdu.tag == kTrapV2 || pdu.tag == kInform);
  if (!(is_v1 && ReadV1(pdu.content, trap)) && !(is_v2 && ReadV2(pdu.content, datagram, trap)))
    return std::nullopt;
  return trap;
}

std::string InformResponse(std::string datagram, const Trap& inform, char error_status) {
  datagram[inform.pdu_at] = static_cast<char>(kResponse);
  datagram[inform.error_at] = error_status;
  return datagram;
}

}  // namespace lab
