// SPDX-License-Identifier: MIT
#include "companions/alertstore/records.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

// Where each field of each record lies, by its bytes. Other programs read and write these bytes: an offset
// that changes here breaks every stored record.

using namespace alertstore;

namespace {

using Bytes = std::vector<std::uint8_t>;

// A pattern that a field read at a wrong offset does not match.
Bytes Pattern(std::size_t size) {
  Bytes bytes(size);
  for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<std::uint8_t>(i * 31 + i / 251 + 1);
  return bytes;
}

std::uint64_t LittleEndian(const Bytes& bytes, std::size_t offset, std::size_t width) {
  std::uint64_t value = 0;
  for (std::size_t i = width; i-- > 0;) value = value << 8 | bytes[offset + i];
  return value;
}

// Checks the fields of one record, in order, and that they cover it from its first byte to its last.
template <class Record>
class Layout {
 public:
  explicit Layout(const char* name) : name_(name), bytes_(Pattern(sizeof(Record))) {
    std::memcpy(&record_, bytes_.data(), sizeof record_);
  }
  ~Layout() { EXPECT_EQ(end_, sizeof(Record)) << name_; }
  Layout(const Layout&) = delete;
  Layout& operator=(const Layout&) = delete;

  template <class Member>
  Layout& Field(const char* field, Member Record::*member, std::size_t offset, std::size_t width) {
    SCOPED_TRACE(std::string(name_) + "." + field);
    EXPECT_EQ(offset, end_) << "a hole or an overlap";
    EXPECT_EQ(sizeof(Member), width);
    end_ = offset + width;
    if (end_ > sizeof(Record)) {
      ADD_FAILURE() << "ends behind the record";
      return *this;
    }
    EXPECT_EQ(std::memcmp(&(record_.*member), &bytes_[offset], width), 0) << "reads other bytes";
    if constexpr (std::is_convertible_v<Member, std::uint64_t>) {
      EXPECT_EQ(static_cast<std::uint64_t>(record_.*member), LittleEndian(bytes_, offset, width));
    }
    return *this;
  }

 private:
  const char* const name_;
  const Bytes bytes_;
  Record record_{};
  std::size_t end_ = 0;
};

TEST(RecordLayoutTest, KeywordSlot) {
  Layout<KeywordSlot>("KeywordSlot")
      .Field("text", &KeywordSlot::text, 0, 41)
      .Field("id", &KeywordSlot::id, 41, 4)
      .Field("format", &KeywordSlot::format, 45, 6);
}

TEST(RecordLayoutTest, CommonRecords) {
  Layout<ALRTNTFYSERV>("ALRTNTFYSERV")
      .Field("serviceId", &ALRTNTFYSERV::serviceId, 0, 16)
      .Field("specificRecordId", &ALRTNTFYSERV::specificRecordId, 16, 16)
      .Field("name", &ALRTNTFYSERV::name, 32, 33)
      .Field("unused65", &ALRTNTFYSERV::unused65, 65, 65)
      .Field("enabled", &ALRTNTFYSERV::enabled, 130, 4)
      .Field("unused134", &ALRTNTFYSERV::unused134, 134, 2122)
      .Field("virgin", &ALRTNTFYSERV::virgin, 2256, 4)
      .Field("recordType", &ALRTNTFYSERV::recordType, 2260, 4)
      .Field("backupSpecificRecordId", &ALRTNTFYSERV::backupSpecificRecordId, 2264, 16);
  Layout<ALERTRESPREC>("ALERTRESPREC")
      .Field("responseId", &ALERTRESPREC::responseId, 0, 16)
      .Field("unused16", &ALERTRESPREC::unused16, 16, 976)
      .Field("responseType", &ALERTRESPREC::responseType, 992, 2)
      .Field("priority", &ALERTRESPREC::priority, 994, 2)
      .Field("userName", &ALERTRESPREC::userName, 996, 258)
      .Field("unused1254", &ALERTRESPREC::unused1254, 1254, 1)
      .Field("serviceName", &ALERTRESPREC::serviceName, 1255, 259)
      .Field("message", &ALERTRESPREC::message, 1514, 2049)
      .Field("subject", &ALERTRESPREC::subject, 3563, 261)
      .Field("userId", &ALERTRESPREC::userId, 3824, 16)
      .Field("serviceId", &ALERTRESPREC::serviceId, 3840, 16)
      .Field("unused3856", &ALERTRESPREC::unused3856, 3856, 81)
      .Field("messageKeywords", &ALERTRESPREC::messageKeywords, 3937, 20)
      .Field("subjectKeywords", &ALERTRESPREC::subjectKeywords, 3957, 20)
      .Field("unused3977", &ALERTRESPREC::unused3977, 3977, 8)
      .Field("serviceRecordType", &ALERTRESPREC::serviceRecordType, 3985, 4);
  Layout<ALRTUSRINSTSERV>("ALRTUSRINSTSERV")
      .Field("guid", &ALRTUSRINSTSERV::guid, 0, 16)
      .Field("serviceId", &ALRTUSRINSTSERV::serviceId, 16, 16)
      .Field("userRecordId", &ALRTUSRINSTSERV::userRecordId, 32, 16)
      .Field("userId", &ALRTUSRINSTSERV::userId, 48, 16)
      .Field("serviceName", &ALRTUSRINSTSERV::serviceName, 64, 33)
      .Field("userEnabled", &ALRTUSRINSTSERV::userEnabled, 97, 4)
      .Field("recordType", &ALRTUSRINSTSERV::recordType, 101, 4);
}

TEST(RecordLayoutTest, MailRecords) {
  Layout<ALRTMHSSERVICEREC>("ALRTMHSSERVICEREC")
      .Field("guid", &ALRTMHSSERVICEREC::guid, 0, 16)
      .Field("mhsDirectory", &ALRTMHSSERVICEREC::mhsDirectory, 16, 261)
      .Field("loginId", &ALRTMHSSERVICEREC::loginId, 277, 49)
      .Field("password", &ALRTMHSSERVICEREC::password, 326, 49)
      .Field("defaultBody", &ALRTMHSSERVICEREC::defaultBody, 375, 1025)
      .Field("defaultSubject", &ALRTMHSSERVICEREC::defaultSubject, 1400, 257)
      .Field("defaultPriority", &ALRTMHSSERVICEREC::defaultPriority, 1657, 4)
      .Field("bodyKeywords", &ALRTMHSSERVICEREC::bodyKeywords, 1661, 1020)
      .Field("unused2681", &ALRTMHSSERVICEREC::unused2681, 2681, 257)
      .Field("subjectKeywords", &ALRTMHSSERVICEREC::subjectKeywords, 2938, 1020);
  Layout<ALRTSMTPSERVICEREC>("ALRTSMTPSERVICEREC")
      .Field("guid", &ALRTSMTPSERVICEREC::guid, 0, 16)
      .Field("smtpServer", &ALRTSMTPSERVICEREC::smtpServer, 16, 256)
      .Field("loginId", &ALRTSMTPSERVICEREC::loginId, 272, 49)
      .Field("password", &ALRTSMTPSERVICEREC::password, 321, 49)
      .Field("defaultBody", &ALRTSMTPSERVICEREC::defaultBody, 370, 1025)
      .Field("defaultSubject", &ALRTSMTPSERVICEREC::defaultSubject, 1395, 257)
      .Field("defaultPriority", &ALRTSMTPSERVICEREC::defaultPriority, 1652, 4)
      .Field("bodyKeywords", &ALRTSMTPSERVICEREC::bodyKeywords, 1656, 1020)
      .Field("unused2676", &ALRTSMTPSERVICEREC::unused2676, 2676, 257)
      .Field("subjectKeywords", &ALRTSMTPSERVICEREC::subjectKeywords, 2933, 1020);
  Layout<ProfileMailServiceRecord>("ProfileMailServiceRecord")
      .Field("guid", &ProfileMailServiceRecord::guid, 0, 16)
      .Field("loginId", &ProfileMailServiceRecord::loginId, 16, 49)
      .Field("password", &ProfileMailServiceRecord::password, 65, 49)
      .Field("defaultBody", &ProfileMailServiceRecord::defaultBody, 114, 1025)
      .Field("defaultSubject", &ProfileMailServiceRecord::defaultSubject, 1139, 257)
      .Field("defaultPriority", &ProfileMailServiceRecord::defaultPriority, 1396, 4)
      .Field("bodyKeywords", &ProfileMailServiceRecord::bodyKeywords, 1400, 1020)
      .Field("unused2420", &ProfileMailServiceRecord::unused2420, 2420, 257)
      .Field("subjectKeywords", &ProfileMailServiceRecord::subjectKeywords, 2677, 1020);
  Layout<ALRTCOMPUSSERVICEREC>("ALRTCOMPUSSERVICEREC")
      .Field("guid", &ALRTCOMPUSSERVICEREC::guid, 0, 16)
      .Field("phoneNumber", &ALRTCOMPUSSERVICEREC::phoneNumber, 16, 26)
      .Field("loginId", &ALRTCOMPUSSERVICEREC::loginId, 42, 49)
      .Field("password", &ALRTCOMPUSSERVICEREC::password, 91, 49)
      .Field("defaultBody", &ALRTCOMPUSSERVICEREC::defaultBody, 140, 1025)
      .Field("defaultSubject", &ALRTCOMPUSSERVICEREC::defaultSubject, 1165, 41)
      .Field("modemName", &ALRTCOMPUSSERVICEREC::modemName, 1206, 65)
      .Field("modemId", &ALRTCOMPUSSERVICEREC::modemId, 1271, 16)
      .Field("defaultPriority", &ALRTCOMPUSSERVICEREC::defaultPriority, 1287, 4)
      .Field("bodyKeywords", &ALRTCOMPUSSERVICEREC::bodyKeywords, 1291, 1020)
      .Field("scriptFile", &ALRTCOMPUSSERVICEREC::scriptFile, 2311, 261)
      .Field("unused2572", &ALRTCOMPUSSERVICEREC::unused2572, 2572, 257)
      .Field("baudRate", &ALRTCOMPUSSERVICEREC::baudRate, 2829, 4)
      .Field("dataBits", &ALRTCOMPUSSERVICEREC::dataBits, 2833, 4)
      .Field("stopBitsCode", &ALRTCOMPUSSERVICEREC::stopBitsCode, 2837, 4)
      .Field("parityCode", &ALRTCOMPUSSERVICEREC::parityCode, 2841, 4)
      .Field("initString", &ALRTCOMPUSSERVICEREC::initString, 2845, 256)
      .Field("dialSuffix", &ALRTCOMPUSSERVICEREC::dialSuffix, 3101, 36)
      .Field("capabilities", &ALRTCOMPUSSERVICEREC::capabilities, 3137, 4)
      .Field("dialPrefix", &ALRTCOMPUSSERVICEREC::dialPrefix, 3141, 36)
      .Field("subjectKeywords", &ALRTCOMPUSSERVICEREC::subjectKeywords, 3177, 1020);
  Layout<ALRTMCISERVICEREC>("ALRTMCISERVICEREC")
      .Field("guid", &ALRTMCISERVICEREC::guid, 0, 16)
      .Field("phoneNumber", &ALRTMCISERVICEREC::phoneNumber, 16, 26)
      .Field("loginId", &ALRTMCISERVICEREC::loginId, 42, 49)
      .Field("password", &ALRTMCISERVICEREC::password, 91, 49)
      .Field("defaultBody", &ALRTMCISERVICEREC::defaultBody, 140, 1025)
      .Field("defaultSubject", &ALRTMCISERVICEREC::defaultSubject, 1165, 257)
      .Field("modemName", &ALRTMCISERVICEREC::modemName, 1422, 65)
      .Field("modemId", &ALRTMCISERVICEREC::modemId, 1487, 16)
      .Field("defaultPriority", &ALRTMCISERVICEREC::defaultPriority, 1503, 4)
      .Field("bodyKeywords", &ALRTMCISERVICEREC::bodyKeywords, 1507, 1020)
      .Field("scriptFile", &ALRTMCISERVICEREC::scriptFile, 2527, 261)
      .Field("unused2788", &ALRTMCISERVICEREC::unused2788, 2788, 257)
      .Field("baudRate", &ALRTMCISERVICEREC::baudRate, 3045, 4)
      .Field("dataBits", &ALRTMCISERVICEREC::dataBits, 3049, 4)
      .Field("stopBitsCode", &ALRTMCISERVICEREC::stopBitsCode, 3053, 4)
      .Field("parityCode", &ALRTMCISERVICEREC::parityCode, 3057, 4)
      .Field("initString", &ALRTMCISERVICEREC::initString, 3061, 256)
      .Field("dialSuffix", &ALRTMCISERVICEREC::dialSuffix, 3317, 36)
      .Field("capabilities", &ALRTMCISERVICEREC::capabilities, 3353, 4)
      .Field("dialPrefix", &ALRTMCISERVICEREC::dialPrefix, 3357, 36)
      .Field("subjectKeywords", &ALRTMCISERVICEREC::subjectKeywords, 3393, 1020);
}

TEST(RecordLayoutTest, OtherServiceRecords) {
  Layout<ALRTSNMPSERVICEREC>("ALRTSNMPSERVICEREC")
      .Field("guid", &ALRTSNMPSERVICEREC::guid, 0, 16)
      .Field("unused16", &ALRTSNMPSERVICEREC::unused16, 16, 2114)
      .Field("defaultBody", &ALRTSNMPSERVICEREC::defaultBody, 2130, 1025)
      .Field("defaultSubject", &ALRTSNMPSERVICEREC::defaultSubject, 3155, 257)
      .Field("defaultPriority", &ALRTSNMPSERVICEREC::defaultPriority, 3412, 4)
      .Field("bodyKeywords", &ALRTSNMPSERVICEREC::bodyKeywords, 3416, 1020)
      .Field("subjectKeywords", &ALRTSNMPSERVICEREC::subjectKeywords, 4436, 1020);
  Layout<ALRTWAVESERVICEREC>("ALRTWAVESERVICEREC")
      .Field("guid", &ALRTWAVESERVICEREC::guid, 0, 16)
      .Field("text1", &ALRTWAVESERVICEREC::text1, 16, 261)
      .Field("text2", &ALRTWAVESERVICEREC::text2, 277, 1221);
  Layout<ALRTTTSSERVICEREC>("ALRTTTSSERVICEREC")
      .Field("guid", &ALRTTTSSERVICEREC::guid, 0, 16)
      .Field("defaultBody", &ALRTTTSSERVICEREC::defaultBody, 16, 1025)
      .Field("text", &ALRTTTSSERVICEREC::text, 1041, 201)
      .Field("bodyKeywords", &ALRTTTSSERVICEREC::bodyKeywords, 1242, 1020)
      .Field("unused2262", &ALRTTTSSERVICEREC::unused2262, 2262, 609);
  Layout<ALRTNPAGESERVICEREC>("ALRTNPAGESERVICEREC")
      .Field("guid", &ALRTNPAGESERVICEREC::guid, 0, 16)
      .Field("defaultBody", &ALRTNPAGESERVICEREC::defaultBody, 16, 2049)
      .Field("dialDelay", &ALRTNPAGESERVICEREC::dialDelay, 2065, 4)
      .Field("modemName", &ALRTNPAGESERVICEREC::modemName, 2069, 65)
      .Field("modemId", &ALRTNPAGESERVICEREC::modemId, 2134, 16)
      .Field("bodyKeywords", &ALRTNPAGESERVICEREC::bodyKeywords, 2150, 1020)
      .Field("scriptFile", &ALRTNPAGESERVICEREC::scriptFile, 3170, 261)
      .Field("baudRate", &ALRTNPAGESERVICEREC::baudRate, 3431, 4)
      .Field("dataBits", &ALRTNPAGESERVICEREC::dataBits, 3435, 4)
      .Field("stopBitsCode", &ALRTNPAGESERVICEREC::stopBitsCode, 3439, 4)
      .Field("parityCode", &ALRTNPAGESERVICEREC::parityCode, 3443, 4)
      .Field("initString", &ALRTNPAGESERVICEREC::initString, 3447, 256)
      .Field("dialSuffix", &ALRTNPAGESERVICEREC::dialSuffix, 3703, 36)
      .Field("capabilities", &ALRTNPAGESERVICEREC::capabilities, 3739, 4)
      .Field("dialPrefix", &ALRTNPAGESERVICEREC::dialPrefix, 3743, 36);
  Layout<ALRTGENPORTSERVICEREC>("ALRTGENPORTSERVICEREC")
      .Field("guid", &ALRTGENPORTSERVICEREC::guid, 0, 16)
      .Field("defaultBody", &ALRTGENPORTSERVICEREC::defaultBody, 16, 1025)
      .Field("bodyKeywords", &ALRTGENPORTSERVICEREC::bodyKeywords, 1041, 1020)
      .Field("scriptFile", &ALRTGENPORTSERVICEREC::scriptFile, 2061, 265)
      .Field("baudRate", &ALRTGENPORTSERVICEREC::baudRate, 2326, 4)
      .Field("dataBits", &ALRTGENPORTSERVICEREC::dataBits, 2330, 4)
      .Field("stopBitsCode", &ALRTGENPORTSERVICEREC::stopBitsCode, 2334, 4)
      .Field("parityCode", &ALRTGENPORTSERVICEREC::parityCode, 2338, 4)
      .Field("initString", &ALRTGENPORTSERVICEREC::initString, 2342, 256)
      .Field("dialSuffix", &ALRTGENPORTSERVICEREC::dialSuffix, 2598, 36)
      .Field("capabilities", &ALRTGENPORTSERVICEREC::capabilities, 2634, 4)
      .Field("dialPrefix", &ALRTGENPORTSERVICEREC::dialPrefix, 2638, 36)
      .Field("unused2674", &ALRTGENPORTSERVICEREC::unused2674, 2674, 4)
      .Field("modemName", &ALRTGENPORTSERVICEREC::modemName, 2678, 65)
      .Field("modemId", &ALRTGENPORTSERVICEREC::modemId, 2743, 16);
  Layout<ALRTAPAGESERVICEREC>("ALRTAPAGESERVICEREC")
      .Field("guid", &ALRTAPAGESERVICEREC::guid, 0, 16)
      .Field("providerLocation", &ALRTAPAGESERVICEREC::providerLocation, 16, 2049)
      .Field("defaultBody", &ALRTAPAGESERVICEREC::defaultBody, 2065, 257)
      .Field("maxTextLength", &ALRTAPAGESERVICEREC::maxTextLength, 2322, 4)
      .Field("providerCompany", &ALRTAPAGESERVICEREC::providerCompany, 2326, 65)
      .Field("providerPhone", &ALRTAPAGESERVICEREC::providerPhone, 2391, 26)
      .Field("modemName", &ALRTAPAGESERVICEREC::modemName, 2417, 65)
      .Field("modemId", &ALRTAPAGESERVICEREC::modemId, 2482, 16)
      .Field("bodyKeywords", &ALRTAPAGESERVICEREC::bodyKeywords, 2498, 1020)
      .Field("scriptFile", &ALRTAPAGESERVICEREC::scriptFile, 3518, 265)
      .Field("baudRate", &ALRTAPAGESERVICEREC::baudRate, 3783, 4)
      .Field("dataBits", &ALRTAPAGESERVICEREC::dataBits, 3787, 4)
      .Field("stopBitsCode", &ALRTAPAGESERVICEREC::stopBitsCode, 3791, 4)
      .Field("parityCode", &ALRTAPAGESERVICEREC::parityCode, 3795, 4)
      .Field("initString", &ALRTAPAGESERVICEREC::initString, 3799, 256)
      .Field("dialSuffix", &ALRTAPAGESERVICEREC::dialSuffix, 4055, 36)
      .Field("capabilities", &ALRTAPAGESERVICEREC::capabilities, 4091, 4)
      .Field("alphaInitString", &ALRTAPAGESERVICEREC::alphaInitString, 4095, 36);
}

TEST(RecordLayoutTest, UserRecords) {
  Layout<MailUserRecord>("MailUserRecord")
      .Field("guid", &MailUserRecord::guid, 0, 16)
      .Field("userId", &MailUserRecord::userId, 16, 16)
      .Field("userAddress", &MailUserRecord::userAddress, 32, 261)
      .Field("userName", &MailUserRecord::userName, 293, 65)
      .Field("userEnabled", &MailUserRecord::userEnabled, 358, 4);
  Layout<ALRTUSR_MCISERVICEREC>("ALRTUSR_MCISERVICEREC")
      .Field("guid", &ALRTUSR_MCISERVICEREC::guid, 0, 16)
      .Field("userId", &ALRTUSR_MCISERVICEREC::userId, 16, 16)
      .Field("userAddress", &ALRTUSR_MCISERVICEREC::userAddress, 32, 261)
      .Field("userName", &ALRTUSR_MCISERVICEREC::userName, 293, 65)
      .Field("userEnabled", &ALRTUSR_MCISERVICEREC::userEnabled, 358, 4)
      .Field("emsEnabled", &ALRTUSR_MCISERVICEREC::emsEnabled, 362, 4)
      .Field("emsAddress", &ALRTUSR_MCISERVICEREC::emsAddress, 366, 65);
  Layout<ALRTUSR_NPAGESERVICEREC>("ALRTUSR_NPAGESERVICEREC")
      .Field("guid", &ALRTUSR_NPAGESERVICEREC::guid, 0, 16)
      .Field("userId", &ALRTUSR_NPAGESERVICEREC::userId, 16, 16)
      .Field("phoneNumber", &ALRTUSR_NPAGESERVICEREC::phoneNumber, 32, 26)
      .Field("userName", &ALRTUSR_NPAGESERVICEREC::userName, 58, 65)
      .Field("userEnabled", &ALRTUSR_NPAGESERVICEREC::userEnabled, 123, 4)
      .Field("unused127", &ALRTUSR_NPAGESERVICEREC::unused127, 127, 4);
  Layout<ALRTUSR_APAGESERVICEREC>("ALRTUSR_APAGESERVICEREC")
      .Field("guid", &ALRTUSR_APAGESERVICEREC::guid, 0, 16)
      .Field("userId", &ALRTUSR_APAGESERVICEREC::userId, 16, 16)
      .Field("unused32", &ALRTUSR_APAGESERVICEREC::unused32, 32, 16)
      .Field("userName", &ALRTUSR_APAGESERVICEREC::userName, 48, 65)
      .Field("pinNumber", &ALRTUSR_APAGESERVICEREC::pinNumber, 113, 29)
      .Field("userEnabled", &ALRTUSR_APAGESERVICEREC::userEnabled, 142, 4);
}

TEST(RecordLayoutTest, TelephonyRecords) {
  Layout<ALRTSERV_MODEM>("ALRTSERV_MODEM")
      .Field("guid", &ALRTSERV_MODEM::guid, 0, 16)
      .Field("managerGuid", &ALRTSERV_MODEM::managerGuid, 16, 16)
      .Field("managerName", &ALRTSERV_MODEM::managerName, 32, 65)
      .Field("name", &ALRTSERV_MODEM::name, 97, 65)
      .Field("comment", &ALRTSERV_MODEM::comment, 162, 2049)
      .Field("enabled", &ALRTSERV_MODEM::enabled, 2211, 4)
      .Field("initString", &ALRTSERV_MODEM::initString, 2215, 256)
      .Field("hangupString", &ALRTSERV_MODEM::hangupString, 2471, 36)
      .Field("dialPrefix", &ALRTSERV_MODEM::dialPrefix, 2507, 36)
      .Field("dialSuffix", &ALRTSERV_MODEM::dialSuffix, 2543, 36)
      .Field("alphaInitString", &ALRTSERV_MODEM::alphaInitString, 2579, 36)
      .Field("baudRate", &ALRTSERV_MODEM::baudRate, 2615, 4)
      .Field("comPort", &ALRTSERV_MODEM::comPort, 2619, 4)
      .Field("capabilities", &ALRTSERV_MODEM::capabilities, 2623, 4)
      .Field("escapeString", &ALRTSERV_MODEM::escapeString, 2627, 36)
      .Field("locationGuid", &ALRTSERV_MODEM::locationGuid, 2663, 16)
      .Field("modemTypeGuid", &ALRTSERV_MODEM::modemTypeGuid, 2679, 16)
      .Field("reserved", &ALRTSERV_MODEM::reserved, 2695, 8);
  Layout<ALRTMODEM_LOCATION>("ALRTMODEM_LOCATION")
      .Field("guid", &ALRTMODEM_LOCATION::guid, 0, 16)
      .Field("name", &ALRTMODEM_LOCATION::name, 16, 65)
      .Field("areaCode", &ALRTMODEM_LOCATION::areaCode, 81, 12)
      .Field("localAccess", &ALRTMODEM_LOCATION::localAccess, 93, 12)
      .Field("longDistanceAccess", &ALRTMODEM_LOCATION::longDistanceAccess, 105, 12)
      .Field("hasCallWaiting", &ALRTMODEM_LOCATION::hasCallWaiting, 117, 4)
      .Field("callWaitingDisable", &ALRTMODEM_LOCATION::callWaitingDisable, 121, 12)
      .Field("toneDialing", &ALRTMODEM_LOCATION::toneDialing, 133, 4)
      .Field("countryCode", &ALRTMODEM_LOCATION::countryCode, 137, 2)
      .Field("countryId", &ALRTMODEM_LOCATION::countryId, 139, 4);
  Layout<ALRTAPAGE_SERVICE_PROVIDER_REC>("ALRTAPAGE_SERVICE_PROVIDER_REC")
      .Field("guid", &ALRTAPAGE_SERVICE_PROVIDER_REC::guid, 0, 16)
      .Field("company", &ALRTAPAGE_SERVICE_PROVIDER_REC::company, 16, 65)
      .Field("regionB", &ALRTAPAGE_SERVICE_PROVIDER_REC::regionB, 81, 65)
      .Field("regionA", &ALRTAPAGE_SERVICE_PROVIDER_REC::regionA, 146, 77)
      .Field("phone", &ALRTAPAGE_SERVICE_PROVIDER_REC::phone, 223, 26)
      .Field("baudRate", &ALRTAPAGE_SERVICE_PROVIDER_REC::baudRate, 249, 4)
      .Field("parity", &ALRTAPAGE_SERVICE_PROVIDER_REC::parity, 253, 4)
      .Field("dataBits", &ALRTAPAGE_SERVICE_PROVIDER_REC::dataBits, 257, 4)
      .Field("stopBits", &ALRTAPAGE_SERVICE_PROVIDER_REC::stopBits, 261, 4)
      .Field("maxTextLength", &ALRTAPAGE_SERVICE_PROVIDER_REC::maxTextLength, 265, 4);
}

TEST(RecordLayoutTest, ManagerRecords) {
  Layout<ALRTUSR_SNMPSERVICEREC>("ALRTUSR_SNMPSERVICEREC")
      .Field("guid", &ALRTUSR_SNMPSERVICEREC::guid, 0, 16)
      .Field("unused16", &ALRTUSR_SNMPSERVICEREC::unused16, 16, 81)
      .Field("computer", &ALRTUSR_SNMPSERVICEREC::computer, 97, 65)
      .Field("address", &ALRTUSR_SNMPSERVICEREC::address, 162, 29)
      .Field("comment", &ALRTUSR_SNMPSERVICEREC::comment, 191, 2049)
      .Field("enabled", &ALRTUSR_SNMPSERVICEREC::enabled, 2240, 4)
      .Field("community", &ALRTUSR_SNMPSERVICEREC::community, 2244, 65);
  Layout<ALRT_SRV_CFGREC>("ALRT_SRV_CFGREC")
      .Field("guid", &ALRT_SRV_CFGREC::guid, 0, 16)
      .Field("managerName", &ALRT_SRV_CFGREC::managerName, 16, 64)
      .Field("unused80", &ALRT_SRV_CFGREC::unused80, 80, 65);
  Layout<ALRTSERV_INST_NTFY_SERVREC>("ALRTSERV_INST_NTFY_SERVREC")
      .Field("guid", &ALRTSERV_INST_NTFY_SERVREC::guid, 0, 16)
      .Field("serviceGuid", &ALRTSERV_INST_NTFY_SERVREC::serviceGuid, 16, 16)
      .Field("managerGuid", &ALRTSERV_INST_NTFY_SERVREC::managerGuid, 32, 16)
      .Field("serviceName", &ALRTSERV_INST_NTFY_SERVREC::serviceName, 48, 33)
      .Field("backupGuid", &ALRTSERV_INST_NTFY_SERVREC::backupGuid, 81, 16)
      .Field("isBackup", &ALRTSERV_INST_NTFY_SERVREC::isBackup, 97, 4);
}

}  // namespace
