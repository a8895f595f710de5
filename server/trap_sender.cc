// SPDX-License-Identifier: MIT
#ifdef ALERTSERVER_WITH_SNMP
#include "server/trap_sender.h"

// The library's headers want its configuration first.
#include <net-snmp/net-snmp-config.h>
//
#include <arpa/inet.h>
#include <net-snmp/net-snmp-includes.h>

#include <cstdlib>
#include <ctime>
#include <memory>
#include <mutex>
#include <vector>

#include "server/own_address.h"

namespace alertserver {
namespace {

constexpr oid kUpTime[] = {1, 3, 6, 1, 2, 1, 1, 3, 0};
constexpr oid kTrapOid[] = {1, 3, 6, 1, 6, 3, 1, 1, 4, 1, 0};
/// Below the enterprise: the notification, and the text that it carries.
constexpr oid kNotification = 1;

using Oid = std::vector<oid>;

/// The library keeps its state for the whole process. It must read no files: what it sends is all given here.
std::unique_lock<std::mutex> UseLibrary() {
  static std::mutex mutex;
  static std::once_flag once;
  std::unique_lock lock(mutex);
  std::call_once(once, [] {
    setenv("MIBS", "", 1);
    netsnmp_register_loghandler(NETSNMP_LOGHANDLER_NONE, LOG_DEBUG);
    for (const int option : {NETSNMP_DS_LIB_DONT_READ_CONFIGS, NETSNMP_DS_LIB_DONT_PERSIST_STATE,
                             NETSNMP_DS_LIB_DISABLE_PERSISTENT_LOAD, NETSNMP_DS_LIB_DISABLE_PERSISTENT_SAVE})
      netsnmp_ds_set_boolean(NETSNMP_DS_LIBRARY_ID, option, 1);
    init_snmp("alertserver");
  });
  return lock;
}

Oid ParseOid(const std::string& text) {
  Oid numbers;
  for (const char* at = text.c_str(); *at != '\0';) {
    char* end = nullptr;
    numbers.push_back(std::strtoul(at, &end, 10));
    at = *end == '.' ? end + 1 : end;
    if (end == at) break;
  }
  return numbers;
}

Oid Below(const std::string& enterprise, std::initializer_list<oid> more) {
  Oid numbers = ParseOid(enterprise);
  numbers.insert(numbers.end(), more);
  return numbers;
}

/// Hundredths of a second since this machine started.
std::uint32_t UpTime() {
  timespec now{};
  clock_gettime(CLOCK_BOOTTIME, &now);
  return static_cast<std::uint32_t>(now.tv_sec * 100 + now.tv_nsec / 10'000'000);
}

std::string PeerName(const TrapRequest& request) {
  const bool is_v6 = request.address.find(':') != std::string::npos;
  return (is_v6 ? "udp6:[" + request.address + ']' : "udp:" + request.address) + ':' +
         std::to_string(request.port);
}

struct CloseSession {
  void operator()(void* session) const { snmp_sess_close(session); }
};
struct FreePdu {
  void operator()(netsnmp_pdu* pdu) const { snmp_free_pdu(pdu); }
};
using Session = std::unique_ptr<void, CloseSession>;
using Pdu = std::unique_ptr<netsnmp_pdu, FreePdu>;

Session Open(const TrapRequest& request, long version, std::chrono::milliseconds wait) {
  netsnmp_session session;
  snmp_sess_init(&session);
  std::string peer = PeerName(request), community = request.community;
  session.version = version;
  session.peername = peer.data();
  session.community = reinterpret_cast<u_char*>(community.data());
  session.community_len = community.size();
  session.retries = 0;
  session.timeout = static_cast<long>(std::chrono::microseconds(wait).count());
  return Session(snmp_sess_open(&session));
}

void AddMessage(const TrapRequest& request, netsnmp_pdu& pdu) {
  const Oid name = Below(request.enterprise, {kNotification, 1, 0});
  snmp_pdu_add_variable(&pdu, name.data(), name.size(), ASN_OCTET_STR, request.message.data(),
                        request.message.size());
}

Pdu MakeVersion2(const TrapRequest& request, int command) {
  Pdu pdu(snmp_pdu_create(command));
  const std::uint32_t up = UpTime();
  const Oid notification = Below(request.enterprise, {0, kNotification});
  const long ticks = static_cast<long>(up);
  snmp_pdu_add_variable(pdu.get(), kUpTime, std::size(kUpTime), ASN_TIMETICKS, &ticks, sizeof ticks);
  snmp_pdu_add_variable(pdu.get(), kTrapOid, std::size(kTrapOid), ASN_OBJECT_ID, notification.data(),
                        notification.size() * sizeof(oid));
  AddMessage(request, *pdu);
  return pdu;
}

Pdu MakeVersion1(const TrapRequest& request) {
  Pdu pdu(snmp_pdu_create(SNMP_MSG_TRAP));
  const Oid enterprise = ParseOid(request.enterprise);
  free(pdu->enterprise);
  pdu->enterprise = static_cast<oid*>(std::malloc(enterprise.size() * sizeof(oid)));
  if (pdu->enterprise == nullptr) throw std::bad_alloc();
  std::copy(enterprise.begin(), enterprise.end(), pdu->enterprise);
  pdu->enterprise_length = enterprise.size();
  pdu->trap_type = SNMP_TRAP_ENTERPRISESPECIFIC;
  pdu->specific_type = kNotification;
  pdu->time = UpTime();
  inet_pton(AF_INET, OwnAddress().c_str(), pdu->agent_addr);
  AddMessage(request, *pdu);
  return pdu;
}

std::string LastError(void* session) {
  char* text = nullptr;
  int ignored_system = 0, ignored_library = 0;
  if (session == nullptr) return snmp_api_errstring(snmp_errno);
  snmp_sess_error(session, &ignored_system, &ignored_library, &text);
  const std::string error = text != nullptr ? text : "";
  free(text);
  return error;
}

}  // namespace

InformAnswer SendInform(const TrapRequest& request, std::chrono::milliseconds wait) {
  const auto lock = UseLibrary();
  const Session session = Open(request, SNMP_VERSION_2c, wait);
  if (session == nullptr) return {InformAnswer::Kind::kNotSent, LastError(nullptr)};
  netsnmp_pdu* answer = nullptr;
  const int status =
      snmp_sess_synch_response(session.get(), MakeVersion2(request, SNMP_MSG_INFORM).release(), &answer);
  const Pdu response(answer);
  if (status == STAT_TIMEOUT) return {InformAnswer::Kind::kSilent, ""};
  if (status != STAT_SUCCESS || response == nullptr)
    return {InformAnswer::Kind::kNotSent, LastError(session.get())};
  if (response->errstat == SNMP_ERR_NOERROR) return {InformAnswer::Kind::kConfirmed, "confirmed"};
  return {InformAnswer::Kind::kRefused, snmp_errstring(static_cast<int>(response->errstat))};
}

std::string SendTrap(const TrapRequest& request, bool version_1) {
  const auto lock = UseLibrary();
  const Session session =
      Open(request, version_1 ? SNMP_VERSION_1 : SNMP_VERSION_2c, std::chrono::milliseconds(1000));
  if (session == nullptr) return LastError(nullptr);
  Pdu pdu = version_1 ? MakeVersion1(request) : MakeVersion2(request, SNMP_MSG_TRAP2);
  if (snmp_sess_send(session.get(), pdu.get()) == 0) return LastError(session.get());
  static_cast<void>(pdu.release());  // the library's now
  return {};
}

}  // namespace alertserver
#endif  // ALERTSERVER_WITH_SNMP
