// SPDX-License-Identifier: MIT
#include "companions/alertstore/records.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <type_traits>
#include <utility>
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

  template <class Get>
  Layout& Field(const char* field, Get get, std::size_t offset, std::size_t width) {
    const auto* member = get(std::as_const(record_));
    using Member = std::remove_cvref_t<decltype(*member)>;
    SCOPED_TRACE(std::string(name_) + "." + field);
    EXPECT_EQ(offset, end_) << "a hole or an overlap";
    EXPECT_EQ(sizeof(Member), width);
    end_ = offset + width;
    if (end_ > sizeof(Record)) {
      ADD_FAILURE() << "ends behind the record";
      return *this;
    }
    EXPECT_EQ(std::memcmp(member, &bytes_[offset], width), 0) << "reads other bytes";
    if constexpr (std::is_convertible_v<Member, std::uint64_t>) {
      EXPECT_EQ(static_cast<std::uint64_t>(*member), LittleEndian(bytes_, offset, width));
    }
    return *this;
  }

 private:
  const char* const name_;
  const Bytes bytes_;
  Record record_{};
  std::size_t end_ = 0;
};

// A row of a table below: member, offset, width.
// clang-format off
#define F(member, offset, width) \
  .Field(#member, [](auto& record) { return &record.member; }, offset, width)

TEST(RecordLayoutTest, KeywordSlot) {
  Layout<KeywordSlot>("KeywordSlot")
      F(text, 0, 41) F(id, 41, 4) F(format, 45, 6);
}

TEST(RecordLayoutTest, CommonRecords) {
  Layout<ALRTNTFYSERV>("ALRTNTFYSERV")
      F(serviceId, 0, 16) F(specificRecordId, 16, 16) F(name, 32, 33) F(unused65, 65, 65)
      F(enabled, 130, 4) F(unused134, 134, 2122) F(virgin, 2256, 4) F(recordType, 2260, 4)
      F(backupSpecificRecordId, 2264, 16);
  Layout<ALERTRESPREC>("ALERTRESPREC")
      F(responseId, 0, 16) F(unused16, 16, 976) F(responseType, 992, 2) F(priority, 994, 2)
      F(userName, 996, 258) F(unused1254, 1254, 1) F(serviceName, 1255, 259) F(message, 1514, 2049)
      F(subject, 3563, 261) F(userId, 3824, 16) F(serviceId, 3840, 16) F(unused3856, 3856, 81)
      F(messageKeywords, 3937, 20) F(subjectKeywords, 3957, 20) F(unused3977, 3977, 8)
      F(serviceRecordType, 3985, 4);
  Layout<ALRTUSRINSTSERV>("ALRTUSRINSTSERV")
      F(guid, 0, 16) F(serviceId, 16, 16) F(userRecordId, 32, 16) F(userId, 48, 16) F(serviceName, 64, 33)
      F(userEnabled, 97, 4) F(recordType, 101, 4);
}

TEST(RecordLayoutTest, MailRecords) {
  Layout<ALRTMHSSERVICEREC>("ALRTMHSSERVICEREC")
      F(guid, 0, 16) F(mhsDirectory, 16, 261) F(loginId, 277, 49) F(password, 326, 49)
      F(defaultBody, 375, 1025) F(defaultSubject, 1400, 257) F(defaultPriority, 1657, 4)
      F(bodyKeywords, 1661, 1020) F(unused2681, 2681, 257) F(subjectKeywords, 2938, 1020);
  Layout<ALRTSMTPSERVICEREC>("ALRTSMTPSERVICEREC")
      F(guid, 0, 16) F(smtpServer, 16, 256) F(loginId, 272, 49) F(password, 321, 49)
      F(defaultBody, 370, 1025) F(defaultSubject, 1395, 257) F(defaultPriority, 1652, 4)
      F(bodyKeywords, 1656, 1020) F(unused2676, 2676, 257) F(subjectKeywords, 2933, 1020);
  Layout<ProfileMailServiceRecord>("ProfileMailServiceRecord")
      F(guid, 0, 16) F(loginId, 16, 49) F(password, 65, 49) F(defaultBody, 114, 1025)
      F(defaultSubject, 1139, 257) F(defaultPriority, 1396, 4) F(bodyKeywords, 1400, 1020)
      F(unused2420, 2420, 257) F(subjectKeywords, 2677, 1020);
  Layout<ALRTCOMPUSSERVICEREC>("ALRTCOMPUSSERVICEREC")
      F(guid, 0, 16) F(phoneNumber, 16, 26) F(loginId, 42, 49) F(password, 91, 49)
      F(defaultBody, 140, 1025) F(defaultSubject, 1165, 41) F(modemName, 1206, 65) F(modemId, 1271, 16)
      F(defaultPriority, 1287, 4) F(bodyKeywords, 1291, 1020) F(scriptFile, 2311, 261)
      F(unused2572, 2572, 257) F(baudRate, 2829, 4) F(dataBits, 2833, 4) F(stopBitsCode, 2837, 4)
      F(parityCode, 2841, 4) F(initString, 2845, 256) F(dialSuffix, 3101, 36) F(capabilities, 3137, 4)
      F(dialPrefix, 3141, 36) F(subjectKeywords, 3177, 1020);
  Layout<ALRTMCISERVICEREC>("ALRTMCISERVICEREC")
      F(guid, 0, 16) F(phoneNumber, 16, 26) F(loginId, 42, 49) F(password, 91, 49)
      F(defaultBody, 140, 1025) F(defaultSubject, 1165, 257) F(modemName, 1422, 65) F(modemId, 1487, 16)
      F(defaultPriority, 1503, 4) F(bodyKeywords, 1507, 1020) F(scriptFile, 2527, 261)
      F(unused2788, 2788, 257) F(baudRate, 3045, 4) F(dataBits, 3049, 4) F(stopBitsCode, 3053, 4)
      F(parityCode, 3057, 4) F(initString, 3061, 256) F(dialSuffix, 3317, 36) F(capabilities, 3353, 4)
      F(dialPrefix, 3357, 36) F(subjectKeywords, 3393, 1020);
}

TEST(RecordLayoutTest, OtherServiceRecords) {
  Layout<ALRTSNMPSERVICEREC>("ALRTSNMPSERVICEREC")
      F(guid, 0, 16) F(unused16, 16, 2114) F(defaultBody, 2130, 1025) F(defaultSubject, 3155, 257)
      F(defaultPriority, 3412, 4) F(bodyKeywords, 3416, 1020) F(subjectKeywords, 4436, 1020);
  Layout<ALRTWAVESERVICEREC>("ALRTWAVESERVICEREC")
      F(guid, 0, 16) F(text1, 16, 261) F(text2, 277, 1221);
  Layout<ALRTTTSSERVICEREC>("ALRTTTSSERVICEREC")
      F(guid, 0, 16) F(defaultBody, 16, 1025) F(text, 1041, 201) F(bodyKeywords, 1242, 1020)
      F(unused2262, 2262, 609);
  Layout<ALRTNPAGESERVICEREC>("ALRTNPAGESERVICEREC")
      F(guid, 0, 16) F(defaultBody, 16, 2049) F(dialDelay, 2065, 4) F(modemName, 2069, 65)
      F(modemId, 2134, 16) F(bodyKeywords, 2150, 1020) F(scriptFile, 3170, 261) F(baudRate, 3431, 4)
      F(dataBits, 3435, 4) F(stopBitsCode, 3439, 4) F(parityCode, 3443, 4) F(initString, 3447, 256)
      F(dialSuffix, 3703, 36) F(capabilities, 3739, 4) F(dialPrefix, 3743, 36);
  Layout<ALRTGENPORTSERVICEREC>("ALRTGENPORTSERVICEREC")
      F(guid, 0, 16) F(defaultBody, 16, 1025) F(bodyKeywords, 1041, 1020) F(scriptFile, 2061, 265)
      F(baudRate, 2326, 4) F(dataBits, 2330, 4) F(stopBitsCode, 2334, 4) F(parityCode, 2338, 4)
      F(initString, 2342, 256) F(dialSuffix, 2598, 36) F(capabilities, 2634, 4) F(dialPrefix, 2638, 36)
      F(unused2674, 2674, 4) F(modemName, 2678, 65) F(modemId, 2743, 16);
  Layout<ALRTAPAGESERVICEREC>("ALRTAPAGESERVICEREC")
      F(guid, 0, 16) F(providerLocation, 16, 2049) F(defaultBody, 2065, 257) F(maxTextLength, 2322, 4)
      F(providerCompany, 2326, 65) F(providerPhone, 2391, 26) F(modemName, 2417, 65) F(modemId, 2482, 16)
      F(bodyKeywords, 2498, 1020) F(scriptFile, 3518, 265) F(baudRate, 3783, 4) F(dataBits, 3787, 4)
      F(stopBitsCode, 3791, 4) F(parityCode, 3795, 4) F(initString, 3799, 256) F(dialSuffix, 4055, 36)
      F(capabilities, 4091, 4) F(alphaInitString, 4095, 36);
}

TEST(RecordLayoutTest, UserRecords) {
  Layout<MailUserRecord>("MailUserRecord")
      F(guid, 0, 16) F(userId, 16, 16) F(userAddress, 32, 261) F(userName, 293, 65) F(userEnabled, 358, 4);
  Layout<ALRTUSR_MCISERVICEREC>("ALRTUSR_MCISERVICEREC")
      F(guid, 0, 16) F(userId, 16, 16) F(userAddress, 32, 261) F(userName, 293, 65) F(userEnabled, 358, 4)
      F(emsEnabled, 362, 4) F(emsAddress, 366, 65);
  Layout<ALRTUSR_NPAGESERVICEREC>("ALRTUSR_NPAGESERVICEREC")
      F(guid, 0, 16) F(userId, 16, 16) F(phoneNumber, 32, 26) F(userName, 58, 65) F(userEnabled, 123, 4)
      F(unused127, 127, 4);
  Layout<ALRTUSR_APAGESERVICEREC>("ALRTUSR_APAGESERVICEREC")
      F(guid, 0, 16) F(userId, 16, 16) F(unused32, 32, 16) F(userName, 48, 65) F(pinNumber, 113, 29)
      F(userEnabled, 142, 4);
}

TEST(RecordLayoutTest, TelephonyRecords) {
  Layout<ALRTSERV_MODEM>("ALRTSERV_MODEM")
      F(guid, 0, 16) F(managerGuid, 16, 16) F(managerName, 32, 65) F(name, 97, 65) F(comment, 162, 2049)
      F(enabled, 2211, 4) F(initString, 2215, 256) F(hangupString, 2471, 36) F(dialPrefix, 2507, 36)
      F(dialSuffix, 2543, 36) F(alphaInitString, 2579, 36) F(baudRate, 2615, 4) F(comPort, 2619, 4)
      F(capabilities, 2623, 4) F(escapeString, 2627, 36) F(locationGuid, 2663, 16)
      F(modemTypeGuid, 2679, 16) F(reserved, 2695, 8);
  Layout<ALRTMODEM_LOCATION>("ALRTMODEM_LOCATION")
      F(guid, 0, 16) F(name, 16, 65) F(areaCode, 81, 12) F(localAccess, 93, 12)
      F(longDistanceAccess, 105, 12) F(hasCallWaiting, 117, 4) F(callWaitingDisable, 121, 12)
      F(toneDialing, 133, 4) F(countryCode, 137, 2) F(countryId, 139, 4);
  Layout<ALRTAPAGE_SERVICE_PROVIDER_REC>("ALRTAPAGE_SERVICE_PROVIDER_REC")
      F(guid, 0, 16) F(company, 16, 65) F(regionB, 81, 65) F(regionA, 146, 77) F(phone, 223, 26)
      F(baudRate, 249, 4) F(parity, 253, 4) F(dataBits, 257, 4) F(stopBits, 261, 4)
      F(maxTextLength, 265, 4);
}

TEST(RecordLayoutTest, ManagerRecords) {
  Layout<ALRTUSR_SNMPSERVICEREC>("ALRTUSR_SNMPSERVICEREC")
      F(guid, 0, 16) F(unused16, 16, 81) F(computer, 97, 65) F(address, 162, 29) F(comment, 191, 2049)
      F(enabled, 2240, 4) F(community, 2244, 65);
  Layout<ALRT_SRV_CFGREC>("ALRT_SRV_CFGREC")
      F(guid, 0, 16) F(managerName, 16, 64) F(unused80, 80, 65);
  Layout<ALRTSERV_INST_NTFY_SERVREC>("ALRTSERV_INST_NTFY_SERVREC")
      F(guid, 0, 16) F(serviceGuid, 16, 16) F(managerGuid, 32, 16) F(serviceName, 48, 33)
      F(backupGuid, 81, 16) F(isBackup, 97, 4);
}

// clang-format on
#undef F

}  // namespace
