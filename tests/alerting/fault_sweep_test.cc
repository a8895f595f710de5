// SPDX-License-Identifier: MIT
// Fails every store call of every sequence in turn. One driver: it writes down, for each call that fails, the
// answer, the messages and what had been written by the end; the last line is the sequence that goes well. No
// lock may be left on any way out.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "alerting/managers/enabled_services.h"
#include "tests/support/service_classes.h"
#include "tests/support/service_fixture.h"

namespace {

using namespace alerting;      // NOLINT
using namespace test_support;  // NOLINT
using ::testing::IsEmpty;

using Lines = std::vector<std::string>;
using Operation = std::function<bool()>;

class FaultSweep : public ServiceTest {
 protected:
  /// `prepare` sets everything up anew and gives the operation; the calls of the operation alone fail in
  /// turn.
  Lines Sweep(const std::function<Operation()>& prepare) {
    Lines lines;
    for (int n = 1; n < 50; ++n) {
      library.engine->FailNone();
      const Operation operation = prepare();
      desktop.TakeMessages();
      library.engine->Forget();
      library.engine->FailNth(kAnyStore, StoreOp::kAny, n);
      const bool answer = operation();
      EXPECT_THAT(library.engine->HeldLocks(), IsEmpty());
      lines.push_back(Line(answer));
      if (library.engine->Failures() == 0) break;
    }
    library.engine->FailNone();
    return lines;
  }

  void Expect(const Lines& lines, const std::function<Operation()>& prepare) {
    EXPECT_EQ(Sweep(prepare), lines);
  }

  /// A service of the type, loaded; kept until the next one.
  CNtfyService& Fresh(std::uint32_t code) {
    service_ = MakeService(code, SeedService(code, "Service"));
    EXPECT_TRUE(service_->Load());
    return *service_;
  }
  template <class Service>
  Service& FreshAs(std::uint32_t code) {
    return dynamic_cast<Service&>(Fresh(code));
  }

  static bool Copy(CNtfyService& service) {
    GUID id = GUID::Generate();
    const bool copied = service.MakeCopy("Copy", id);
    EXPECT_EQ(copied, !id.IsNull()) << "null on failure";
    return copied;
  }

 private:
  std::string Line(bool answer) {
    const bool failed = library.engine->Failures() > 0;
    std::string line = failed ? FailedCall() + " fails: " : "goes well: ";
    line += answer ? "yes" : "no";
    for (const std::string& text : desktop.TakeMessages()) line += " [" + text + "]";
    std::string writes;
    const std::vector<StoreCall> calls = failed ? library.engine->Writes() : library.engine->Calls();
    for (const StoreCall& call : calls) writes += (writes.empty() ? "" : ", ") + Name(call);
    return line + (failed ? (writes.empty() ? "" : "; wrote " + writes) : "; " + writes);
  }
  std::string FailedCall() const {
    for (const StoreCall& call : library.engine->Calls())
      if (call.status == kIoError) return Name(call);
    return "?";
  }
  static std::string Name(const StoreCall& call) {
    return std::string(NameOf(call.op)) + " " + Role(call.store);
  }

  /// What the store is to the service, so that one table serves a whole family.
  static std::string Role(const std::string& file) {
    if (file == ServiceStore().Schema().file) return "services";
    if (file == UserLinkStore().Schema().file) return "links";
    if (file == EnabledServiceStore().Schema().file) return "enabled";
    if (file == ModemStore().Schema().file) return "modems";
    return file.find("NtfyServ") != std::string::npos ? "specific" : "users";
  }

  std::unique_ptr<CNtfyService> service_;
};

// What the operations of a service's records do, per family of types.

constexpr char kCommonRead[] = " [Unable to read the record from the notification service database.]";
constexpr char kSpecificRead[] =
    " [Unable to read the record from the notification service-specific database.]";
constexpr char kCommonUpdate[] = " [Unable to update the notification service database record.]";
constexpr char kSpecificUpdate[] = " [Unable to update the notification service-specific database record.]";
constexpr char kErrorCode[] = " [000200d2 is the error code.]";
constexpr char kAdd[] = " [Unable to add a record to the notification service database.]";

struct Family {
  const char* name;
  std::vector<std::uint32_t> types;
  Lines load, reload, save, copy;
};

std::vector<Family> Families() {
  const std::string read = kCommonRead, specific_read = kSpecificRead, update = kCommonUpdate,
                    specific_update = kSpecificUpdate, code = kErrorCode, add = kAdd;
  const Lines plain_save = {
      "Lock services fails: no" + update,
      "Retrieve services fails: yes; wrote Update services, Update specific",
      "Update services fails: no" + update,
      "Unlock services fails: yes; wrote Update services, Update specific",
      "Lock specific fails: no" + specific_update + "; wrote Update services",
      "Retrieve specific fails: yes; wrote Update services, Update specific",
      "Update specific fails: no" + specific_update + "; wrote Update services",
      "Unlock specific fails: yes; wrote Update services, Update specific",
      "goes well: yes; Lock services, Retrieve services, Update services, Unlock services, "
      "Lock specific, Retrieve specific, Update specific, Unlock specific"};
  const Lines plain_copy = {"AddPair services fails: no" + code + add, "goes well: yes; AddPair services"};
  const Lines modem_load = {
      "Retrieve services fails: no" + read,
      "Retrieve specific fails: yes" + specific_read,
      "Lock specific fails: yes",
      "Add specific fails: yes",
      "Unlock specific fails: yes; wrote Add specific, Update services",
      "Lock services fails: yes" + update + "; wrote Add specific",
      "Update services fails: yes" + update + "; wrote Add specific",
      "Unlock services fails: yes; wrote Add specific, Update services",
      "goes well: yes; Retrieve services, Retrieve specific, Lock specific, Add specific, Unlock specific, "
      "Lock services, Update services, Unlock services"};
  const Lines modem_reload = {"Retrieve services fails: no" + read,
                              "Retrieve specific fails: no" + specific_read,
                              "Retrieve specific fails: yes",  // goes on without its backup
                              "goes well: yes; Retrieve services, Retrieve specific, Retrieve specific"};
  const Lines modem_save = {
      "Lock services fails: no" + update,
      "Retrieve services fails: yes; wrote Update services, Update specific, Update specific",
      "Update services fails: no" + update,
      "Unlock services fails: yes; wrote Update services, Update specific, Update specific",
      "Lock specific fails: no" + specific_update + "; wrote Update services",
      "Retrieve specific fails: yes; wrote Update services, Update specific, Update specific",
      "Update specific fails: no" + specific_update + "; wrote Update services, Update specific",
      "Update specific fails: no" + specific_update + "; wrote Update services, Update specific",
      "Unlock specific fails: yes; wrote Update services, Update specific, Update specific",
      "goes well: yes; Lock services, Retrieve services, Update services, Unlock services, Lock specific, "
      "Retrieve specific, Update specific, Update specific, Unlock specific"};
  const auto modem_copy = [&](const std::string& error) {
    return Lines{"Lock specific fails: no" + add, "Add specific fails: no" + add,
                 "Unlock specific fails: yes; wrote Add specific, AddPair services",
                 "AddPair services fails: no" + error + add + "; wrote Add specific",
                 "goes well: yes; Lock specific, Add specific, Unlock specific, AddPair services"};
  };
  return {
      {"plain",
       {0, 4, 5, 6, 7, 8},
       {"Retrieve services fails: no" + read, "Retrieve specific fails: yes" + specific_read,
        "goes well: yes; Retrieve services, Retrieve specific"},
       {"Retrieve services fails: no" + read, "Retrieve specific fails: no" + specific_read,
        "goes well: yes; Retrieve services, Retrieve specific"},
       plain_save,
       plain_copy},
      {"SNMP Trap, whose specific record fails silently",
       {1},
       {"Retrieve services fails: no" + read, "Retrieve specific fails: yes",
        "goes well: yes; Retrieve services, Retrieve specific"},
       {"Retrieve services fails: no" + read, "Retrieve specific fails: no",
        "goes well: yes; Retrieve services, Retrieve specific"},
       plain_save,
       plain_copy},
      {"dial-out", {2, 3, 11, 12}, modem_load, modem_reload, modem_save, modem_copy(code)},
      {"Alphanumeric Pager, which shows no error code",
       {10},
       modem_load,
       modem_reload,
       modem_save,
       modem_copy("")},
      {"Program Launch, which has no specific record",
       {13},
       {"Retrieve services fails: no" + read, "goes well: yes; Retrieve services"},
       {"Retrieve services fails: no" + read, "goes well: yes; Retrieve services"},
       {"Lock services fails: no" + update, "Retrieve services fails: yes; wrote Update services",
        "Update services fails: no" + update, "Unlock services fails: yes; wrote Update services",
        "goes well: yes; Lock services, Retrieve services, Update services, Unlock services"},
       {"Add services fails: no" + add, "goes well: yes; Add services"}},
  };
}

TEST_F(FaultSweep, RecordsOfEveryType) {
  for (const Family& family : Families()) {
    for (const std::uint32_t code : family.types) {
      SCOPED_TRACE(::testing::Message() << family.name << ", type " << code);
      Expect(family.load, [&] {
        const GUID id = SeedService(code, "Service");
        return Operation([id, code] { return MakeService(code, id)->Load(); });
      });
      Expect(family.reload, [&] { return [&service = Fresh(code)] { return service.ReloadRecords(); }; });
      Expect(family.save, [&] { return [&service = Fresh(code)] { return service.SaveRecords(); }; });
      Expect(family.copy, [&] { return [&service = Fresh(code)] { return Copy(service); }; });
      Expect({std::string("Delete services fails: no") + kCommonRead,
              std::string("goes well: yes; Delete services")},
             [&] { return [&service = Fresh(code)] { return service.DeleteRecord(); }; });
    }
  }
}

// Users of a service: of every type that has them, the same lines.

struct UserOperation {
  const char* name;
  bool known;  ///< the user has an entry before
  std::function<bool(CNtfyServiceUserBase& service, const GUID& user)> run;
  Lines expected;
};

/// A user with an entry.
GUID Known(CNtfyServiceUserBase& service, const GUID& user) {
  EXPECT_TRUE(service.SaveUserEntry(user, {"Op", "1", 1}));
  return user;
}

/// Takes every user record from the type's store, so that a listing sees its own users alone.
void ForgetUsers(CNtfyServiceUserBase& service) {
  AsItsClass(service, [](auto& typed) {
    if constexpr (requires { typed.CurrentUser(); }) {
      using Users = typename std::remove_reference_t<decltype(typed)>::UserStoreClass;
      auto record = typed.CurrentUser();
      while (UserStore<Users>().DBAlertRecFindFirst(Users::kSelectors.scan, 0, nullptr, record) == kOk)
        UserStore<Users>().DBAlertRecDelete(record.guid);
    }
  });
}

std::vector<UserOperation> UserOperations() {
  const std::string user_add = " [Unable to add record to the service-specific user database.]",
                    user_update = " [Unable to update record in the service-specific user database.]",
                    user_delete = " [Unable to delete record in the service-specific user database.]",
                    link_add = " [Unable to add record to the user installed services database.]",
                    link_update = " [Unable to update record in the user installed services database.]",
                    no_users = " [No records in the user installed services database.]";
  // A read that fails counts as "not found", as it does to every caller of the store.
  return {
      {"save a new entry",
       false,
       [](CNtfyServiceUserBase& service, const GUID& user) {
         return service.SaveUserEntry(user, {"Op", "1", 1});
       },
       {"FindFirst links fails: yes; wrote Add users, Add links", "Lock users fails: no" + user_add,
        "Add users fails: no" + user_add, "Unlock users fails: yes; wrote Add users, Add links",
        "FindFirst links fails: yes; wrote Add users, Add links",
        "Add links fails: no" + link_add + "; wrote Add users",
        "goes well: yes; FindFirst links, Lock users, Add users, Unlock users, FindFirst links, Add links"}},
      {"save an entry again",
       true,
       [](CNtfyServiceUserBase& service, const GUID& user) {
         return service.SaveUserEntry(user, {"Op", "2", 1});
       },
       {"FindFirst links fails: yes; wrote Add users, Update links", "Lock users fails: no" + user_update,
        "FindFirst users fails: yes; wrote Add users, Update links", "Update users fails: no" + user_update,
        "Unlock users fails: yes; wrote Update users, Update links",
        "FindFirst links fails: yes; wrote Update users, Add links",
        "Update links fails: no" + link_update + "; wrote Update users",
        "goes well: yes; FindFirst links, Lock users, FindFirst users, Update users, Unlock users, FindFirst "
        "links, Update links"}},
      {"read an entry",
       true,
       [](CNtfyServiceUserBase& service, const GUID& user) {
         UserEntry entry;
         return service.GetUserEntry(user, entry) && entry.name == "Op";
       },
       {"FindFirst links fails: no", "FindFirst users fails: no",
        "goes well: yes; FindFirst links, FindFirst users"}},
      {"suggest an address",
       true,
       [](CNtfyServiceUserBase& service, const GUID& user) {
         std::string address;
         return service.GetUserAddress(user, address);
       },
       {"FindFirst users fails: no", "goes well: yes; FindFirst users"}},
      {"delete a user",
       true,
       [](CNtfyServiceUserBase& service, const GUID& user) { return service.DeleteUser(user); },
       {"FindFirst links fails: yes; wrote Delete links",
        "Delete users fails: no" + user_delete + "; wrote Delete links",
        "FindFirst links fails: no; wrote Delete users", "Delete links fails: yes; wrote Delete users",
        "goes well: yes; FindFirst links, Delete users, FindFirst links, Delete links"}},
      {"list the users",
       true,
       [](CNtfyServiceUserBase& service, const GUID&) {
         ListDialog dialog;
         return service.FillUserList(dialog.list);
       },
       {"FindFirst users fails: no" + no_users, "FindFirst links fails: no" + no_users,
        "FindNext users fails: yes", "goes well: yes; FindFirst users, FindFirst links, FindNext users"}},
  };
}

TEST_F(FaultSweep, UsersOfEveryTypeThatHasThem) {
  for (const UserOperation& operation : UserOperations()) {
    for (const std::uint32_t code : {0U, 2U, 3U, 4U, 5U, 6U, 10U, 11U}) {
      SCOPED_TRACE(::testing::Message() << operation.name << ", type " << code);
      Expect(operation.expected, [&] {
        auto& service = FreshAs<CNtfyServiceUserBase>(code);
        ForgetUsers(service);
        const GUID user = GUID::Generate();
        if (operation.known) Known(service, user);
        return [&, user] { return operation.run(service, user); };
      });
    }
  }
}

TEST_F(FaultSweep, MailUsers) {
  Expect({"AddPair links fails: no [Unable to add a record the user installed services database.]",
          "goes well: yes; AddPair links"},
         [&] {
           auto& service = FreshAs<CNtfyServiceMailBase>(kTypeSmtp);
           return [&service] { return service.AddUserWithLink("Op", "1", GUID::Generate()); };
         });
  const std::string reread = " [Unable to reread user record just written for the service.]";
  Expect(Lines{"Lock users fails: no" + reread, "FindFirst users fails: no" + reread,
               "Update users fails: no [Unable to update record in the service-specific user database.]",
               "Unlock users fails: yes; wrote Update users",
               "goes well: yes; Lock users, FindFirst users, Update users, Unlock users"},
         [&] {
           auto& service = FreshAs<CNtfyServiceMCI>(kTypeMci);
           const GUID user = Known(service, GUID::Generate());
           return [&service, user] { return service.SetUserExtra(1, "EMS", user); };
         });
}

TEST_F(FaultSweep, AddingToTheListAndExtraAddresses) {
  const std::string list_read = " [Unable to read records from the notification service database. (waiting)]";
  const auto add_from_store = [&] {
    Fresh(kTypeSmtp);
    TheServices().RemoveAll();
    const GUID id = SeedService(kTypeSmtp, "Other");
    return [id] { return TheServices().AddFromStore(id); };
  };
  Expect({"FindFirst services fails: no" + list_read,
          "Retrieve services fails: yes [Unable to read the record from the notification service database. "
          "(waiting)]",
          "Retrieve specific fails: yes [Unable to read the record from the notification service-specific "
          "database. (waiting)]",
          "goes well: yes; FindFirst services, Retrieve services, Retrieve specific"},
         add_from_store);
  Expect({"FindFirst users fails: no", "goes well: yes; FindFirst users"}, [&] {
    auto& service = FreshAs<CNtfyServiceMCI>(kTypeMci);
    const GUID user = Known(service, GUID::Generate());
    return [&service, user] {
      std::uint32_t enabled = 0;
      std::string address;
      return service.GetUserExtra(enabled, address, user);
    };
  });
}

TEST_F(FaultSweep, EnablingAndDisabling) {
  const auto enable = [](CNtfyService& service, const GUID& manager, bool on) {
    return [&service, manager, on] {
      EnableServiceOnManager(service.Common(), manager, on);
      return IsServiceOnManager(service.ServiceId(), manager);
    };
  };
  const std::string add = " [Unable to add record to enabled services per manager database.]";
  Expect(Lines{"FindFirst enabled fails: yes; wrote Add enabled", "Add enabled fails: no" + add,
               "FindFirst enabled fails: no; wrote Add enabled",
               "goes well: yes; FindFirst enabled, Add enabled, FindFirst enabled"},
         [&] { return enable(Fresh(kTypeSmtp), GUID::Generate(), true); });
  Expect({"FindFirst enabled fails: yes", "Delete enabled fails: yes",
          "FindFirst enabled fails: no; wrote Delete enabled",
          "goes well: no; FindFirst enabled, Delete enabled, FindFirst enabled"},
         [&] {
           CNtfyService& service = Fresh(kTypeSmtp);
           const GUID manager = GUID::Generate();
           EnableServiceOnManager(service.Common(), manager, true);
           return enable(service, manager, false);
         });
  BackupManagerGuid() = GUID::Generate();
  Expect(Lines{"FindFirst enabled fails: yes; wrote Add enabled, Add enabled",
               "Add enabled fails: no" + add + "; wrote Add enabled",
               "Add enabled fails: yes" + add + "; wrote Add enabled",
               "FindFirst enabled fails: no; wrote Add enabled, Add enabled",
               "goes well: yes; FindFirst enabled, Add enabled, Add enabled, FindFirst enabled"},
         [&] { return enable(Fresh(kTypeNumeric), GUID::Generate(), true); });
  BackupManagerGuid() = kNullGuid;
}

}  // namespace
