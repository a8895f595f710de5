// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "companions/alertstore/stores.h"

// A user's entry on a service: one record in the user store of the service's type, and the link between the two.

namespace alertrecords {

/// A type whose users have entries: the type as records hold it, its user store, and the member of that store's
/// record that holds the address. Pagers call the address by other names.
template <std::uint32_t kType, class StoreClass, auto kMember>
struct UserType {
  using Store = StoreClass;
  using Record = typename Store::RecordType;
  static constexpr std::uint32_t kRecordType = kType;
  static constexpr auto kAddress = kMember;
  /// In bytes.
  static constexpr std::size_t kAddressLimit =
      std::remove_reference_t<decltype(std::declval<Record>().*kMember)>::kMaxLength;
};

using UserTypes = std::tuple<  //
    UserType<1, alertstore::CAlertUSR_MHSDB, &alertstore::ALRTUSR_MHSSERVICEREC::userAddress>,
    UserType<3, alertstore::CAlertUSR_MCIDB, &alertstore::ALRTUSR_MCISERVICEREC::userAddress>,
    UserType<4, alertstore::CAlertUSR_COMPUDB, &alertstore::ALRTUSR_COMPUSERVICEREC::userAddress>,
    UserType<5, alertstore::CAlertUSR_SMTPDB, &alertstore::ALRTUSR_SMTPSERVICEREC::userAddress>,
    UserType<6, alertstore::CAlertUSR_MAPIDB, &alertstore::ALRTUSR_MAPISERVICEREC::userAddress>,
    UserType<7, alertstore::CAlertUSR_CCMAILDB, &alertstore::ALRTUSR_CCMAILSERVICEREC::userAddress>,
    UserType<11, alertstore::CAlertUSR_APAGEDB, &alertstore::ALRTUSR_APAGESERVICEREC::pinNumber>,
    UserType<12, alertstore::CAlertUSR_NPAGEDB, &alertstore::ALRTUSR_NPAGESERVICEREC::phoneNumber>>;

/// Finds the row of a user record; a record without one does not compile.
template <class Record, class Rows>
struct UserTypeOf;
template <class Record, class Row, class... Rest>
struct UserTypeOf<Record, std::tuple<Row, Rest...>>
    : std::conditional_t<std::is_same_v<Record, typename Row::Record>, std::type_identity<Row>,
                         UserTypeOf<Record, std::tuple<Rest...>>> {};

/// The field of a user record that holds the user's address on the service.
template <class Record>
auto& AddressOf(Record& record) {
  return record.*UserTypeOf<std::remove_const_t<Record>, UserTypes>::type::kAddress;
}

/// What `visit` answers for the row of a record type; `none` where services of the type have no users.
template <class Result, class Visit>
Result ForUserType(std::uint32_t record_type, Result none, Visit&& visit) {
  const auto try_rows = [&]<class... Row>(std::tuple<Row...>*) {
    ((Row::kRecordType == record_type && (none = visit(Row{}), true)) || ...);
  };
  try_rows(static_cast<UserTypes*>(nullptr));
  return none;
}

/// Writes what an entry says into a user's record.
template <class Record>
void FillUserRecord(const platform::GUID& user, std::string_view name, std::string_view address,
                    std::uint32_t enabled, Record& record) {
  record.userId = user;
  record.userName.Assign(name);
  AddressOf(record).Assign(address);
  record.userEnabled = enabled;
}

/// Writes into a link whom it ties to which service.
void FillUserLink(const platform::GUID& user, const platform::GUID& service, std::string_view service_name,
                  alertstore::ALRTUSRINSTSERV& link);

/// Finds the link of a user to a service: kNotFound where there is none. `link` is written only when it was found.
alertstore::Status FindUserLink(alertstore::CAlertUsrInstServDB& links, const platform::GUID& user,
                                const platform::GUID& service, alertstore::ALRTUSRINSTSERV& link);

}  // namespace alertrecords
