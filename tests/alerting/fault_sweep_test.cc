// SPDX-License-Identifier: MIT
// Fails every store call of every sequence in turn. One driver: it writes down, for each call that fails, the
// answer, the messages and what had been written by the end, so that the lines name the calls in their order; the
// last line is the answer when all goes well. No lock may be left on any way out.
#include <gmock/gmock.h>

#include <functional>

#include "alerting/alert_page.h"
#include "alerting/managers/enabled_services.h"
#include "alerting/managers/snmp_manager_dlg.h"
#include "alerting/managers/snmp_managers.h"
#include "alerting/telephony/set_pager_provider_dlg.h"
#include "companions/alertrecords/test_response.h"
#include "companions/alertstore/computers.h"
#include "tests/support/service_classes.h"

namespace {

using namespace alerting;      // NOLINT
using namespace test_support;  // NOLINT
using ::testing::IsEmpty;

using Lines = std::vector<std::string>;
using Operation = std::function<bool()>;

auto& SnmpManagerStore() { return UserStore<CAlertUSR_SNMPDB>(); }

template <class Control>
Control& At(ui::Form& form, const std::string& label) {
  for (ui::Control* control : form.Controls())
    if (control->Label() == label) return dynamic_cast<Control&>(*control);
  throw std::out_of_range(label);
}

void Type(ui::Form& form, const std::string& field, const std::string& text) {
  At<ui::Edit>(form, field).SetText(text);
  form.OnPersonChange(At<ui::Edit>(form, field));
}

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

  /// The lines, and behind them the answer when all goes well.
  void Expect(Lines lines, const std::function<Operation()>& prepare, const std::string& answer = "yes") {
    lines.push_back("goes well: " + answer);
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
    std::string line = (failed ? FailedCall() + " fails: " : "goes well: ") + (answer ? "yes" : "no");
    for (const std::string& text : desktop.TakeMessages()) line += " [" + text + "]";
    const char* before = "; wrote ";
    for (const StoreCall& call : failed ? library.engine->Writes() : std::vector<StoreCall>())
      line += std::exchange(before, ", ") + Name(call);
    return line;
  }
  std::string FailedCall() const {
    for (const StoreCall& call : library.engine->Calls())
      if (call.status == kIoError) return Name(call);
    return "?";
  }
  static std::string Name(const StoreCall& call) {
    return std::string(NameOf(call.op)) + " " + Role(call.store);
  }

  /// What the store is to the operation, so that one table serves a whole family.
  static std::string Role(const std::string& file) {
    const std::map<std::string, const char*> roles = {
        {ServiceStore().Schema().file, "services"},    {UserLinkStore().Schema().file, "links"},
        {ModemStore().Schema().file, "modems"},        {EnabledServiceStore().Schema().file, "enabled"},
        {ResponseStore().Schema().file, "responses"},  {ProviderStore().Schema().file, "providers"},
        {ConsoleUserSchema().file, "console users"},   {ComputerSchema().file, "computers"},
        {SnmpManagerStore().Schema().file, "managers"}};
    if (const auto role = roles.find(file); role != roles.end()) return role->second;
    return file.find("NtfyServ") != std::string::npos ? "specific" : "users";
  }

  std::unique_ptr<CNtfyService> service_;
};

// What the operations of a service's records do, per family of types.

const std::string kCommonRead = " [Unable to read the record from the notification service database.]",
                  kSpecificRead =
                      " [Unable to read the record from the notification service-specific database.]",
                  kCommonUpdate = " [Unable to update the notification service database record.]",
                  kSpecificUpdate = " [Unable to update the notification service-specific database record.]",
                  kErrorCode = " [000200d2 is the error code.]",
                  kAdd = " [Unable to add a record to the notification service database.]";

struct Family {
  std::vector<std::uint32_t> types;
  Lines load, reload, save, copy;
};

/// Of a service with so many specific records.
Lines Save(int specifics) {
  std::string written = "; wrote Update services", whole = written;
  for (int i = 0; i < specifics; ++i) whole += ", Update specific";
  if (specifics > 1) written = whole.substr(0, whole.rfind(','));
  Lines lines = {"Lock services fails: no" + kCommonUpdate, "Retrieve services fails: yes" + whole,
                 "Update services fails: no" + kCommonUpdate, "Unlock services fails: yes" + whole};
  if (specifics > 0) {
    lines.push_back("Lock specific fails: no" + kSpecificUpdate + "; wrote Update services");
    lines.push_back("Retrieve specific fails: yes" + whole);
    for (int i = 0; i < specifics; ++i)
      lines.push_back("Update specific fails: no" + kSpecificUpdate + written);
    lines.push_back("Unlock specific fails: yes" + whole);
  }
  return lines;
}

Family Plain(std::vector<std::uint32_t> types, const std::string& specific_read) {
  return {types,
          {"Retrieve services fails: no" + kCommonRead, "Retrieve specific fails: yes" + specific_read},
          {"Retrieve services fails: no" + kCommonRead, "Retrieve specific fails: no" + specific_read},
          Save(1),
          {"AddPair services fails: no" + kErrorCode + kAdd}};
}

Family DialOut(std::vector<std::uint32_t> types, const std::string& error_code) {
  const std::string added = "; wrote Add specific";
  return {types,
          {"Retrieve services fails: no" + kCommonRead, "Retrieve specific fails: yes" + kSpecificRead,
           "Lock specific fails: yes", "Add specific fails: yes",
           "Unlock specific fails: yes" + added + ", Update services",
           "Lock services fails: yes" + kCommonUpdate + added,
           "Update services fails: yes" + kCommonUpdate + added,
           "Unlock services fails: yes" + added + ", Update services"},
          {"Retrieve services fails: no" + kCommonRead, "Retrieve specific fails: no" + kSpecificRead,
           "Retrieve specific fails: yes"},  // goes on without its backup,
          Save(2),
          {"Lock specific fails: no" + kAdd, "Add specific fails: no" + kAdd,
           "Unlock specific fails: yes" + added + ", AddPair services",
           "AddPair services fails: no" + error_code + kAdd + added}};
}

std::vector<Family> Families() {
  const Lines program_read = {"Retrieve services fails: no" + kCommonRead};
  return {Plain({0, 4, 5, 6, 7, 8}, kSpecificRead),
          Plain({1}, ""),  // SNMP Trap, whose specific record fails silently
          DialOut({2, 3, 11, 12}, kErrorCode),
          DialOut({10}, ""),  // Alphanumeric Pager, which shows no error code
          // Program Launch, which has no specific record
          {{13}, program_read, program_read, Save(0), {"Add services fails: no" + kAdd}}};
}

TEST_F(FaultSweep, RecordsOfEveryType) {
  for (const Family& family : Families()) {
    for (const std::uint32_t code : family.types) {
      SCOPED_TRACE(code);
      Expect(family.load, [&] {
        const GUID id = SeedService(code, "Service");
        return Operation([id, code] { return MakeService(code, id)->Load(); });
      });
      Expect(family.reload, [&] { return [&service = Fresh(code)] { return service.ReloadRecords(); }; });
      Expect(family.save, [&] { return [&service = Fresh(code)] { return service.SaveRecords(); }; });
      Expect(family.copy, [&] { return [&service = Fresh(code)] { return Copy(service); }; });
      Expect({"Delete services fails: no" + kCommonRead},
             [&] { return [&service = Fresh(code)] { return service.DeleteRecord(); }; });
    }
  }
}

// Users of a service: of every type that has them, the same lines.

const std::string kUserAdd = " [Unable to add record to the service-specific user database.]",
                  kUserUpdate = " [Unable to update record in the service-specific user database.]",
                  kLinkAdd = " [Unable to add record to the user installed services database.]",
                  kReread = " [Unable to reread user record just written for the service.]";

struct UserOperation {
  const char* name;
  std::function<bool(CNtfyServiceUserBase& service, const GUID& user)> run;
  Lines expected;
  bool known = true;  ///< the user has an entry before
};

/// A user with an entry.
GUID Known(CNtfyServiceUserBase& service, const GUID& user) {
  EXPECT_TRUE(service.SaveUserEntry(user, {"Op", "1", 1}));
  return user;
}

/// Takes every user record from the type's store, so that a listing sees its own users alone.
void ForgetUsers(CNtfyServiceUserBase& service) {
  WithUserRecord(service, [](auto& store, auto record) {
    while (store.DBAlertRecFindFirst(store.kSelectors.scan, 0, nullptr, record) == kOk)
      store.DBAlertRecDelete(record.guid);
    return "";
  });
}

std::vector<UserOperation> UserOperations() {
  const std::string user_delete = " [Unable to delete record in the service-specific user database.]",
                    link_update = " [Unable to update record in the user installed services database.]",
                    no_users = " [No records in the user installed services database.]",
                    first = "; wrote Add users", again = "; wrote Update users";
  // A read that fails counts as "not found", as it does to every caller of the store.
  return {
      {"save a new entry",
       [](auto& service, auto& user) {
         return service.SaveUserEntry(user, {"Op", "1", 1});
       },
       {"FindFirst links fails: yes" + first + ", Add links", "Lock users fails: no" + kUserAdd,
        "Add users fails: no" + kUserAdd, "Unlock users fails: yes" + first + ", Add links",
        "FindFirst links fails: yes" + first + ", Add links", "Add links fails: no" + kLinkAdd + first},
       false},
      {"save an entry again",
       [](auto& service, auto& user) {
         return service.SaveUserEntry(user, {"Op", "2", 1});
       },
       {"FindFirst links fails: yes" + first + ", Update links", "Lock users fails: no" + kUserUpdate,
        "FindFirst users fails: yes" + first + ", Update links", "Update users fails: no" + kUserUpdate,
        "Unlock users fails: yes" + again + ", Update links",
        "FindFirst links fails: yes" + again + ", Add links",
        "Update links fails: no" + link_update + again}},
      {"read an entry",
       [](auto& service, auto& user) {
         UserEntry entry;
         return service.GetUserEntry(user, entry) && entry.name == "Op";
       },
       {"FindFirst links fails: no", "FindFirst users fails: no"}},
      {"suggest an address",
       [](auto& service, auto& user) {
         std::string address;
         return service.GetUserAddress(user, address);
       },
       {"FindFirst users fails: no"}},
      {"delete a user",
       [](auto& service, auto& user) { return service.DeleteUser(user); },
       {"FindFirst links fails: yes; wrote Delete links",
        "Delete users fails: no" + user_delete + "; wrote Delete links",
        "FindFirst links fails: no; wrote Delete users", "Delete links fails: yes; wrote Delete users"}},
      {"list the users",
       [](auto& service, auto&) {
         ListDialog dialog;
         return service.FillUserList(dialog.list);
       },
       {"FindFirst users fails: no" + no_users, "FindFirst links fails: no" + no_users,
        "FindNext users fails: yes"}},
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
  Expect({"AddPair links fails: no [Unable to add a record the user installed services database.]"}, [&] {
    auto& service = FreshAs<CNtfyServiceMailBase>(kTypeSmtp);
    return [&service] { return service.AddUserWithLink("Op", "1", GUID::Generate()); };
  });
  const auto mci_user = [&](auto operation) {
    return [this, operation]() -> Operation {
      auto& service = FreshAs<CNtfyServiceMCI>(kTypeMci);
      const GUID user = Known(service, GUID::Generate());
      return [&service, user, operation] { return operation(service, user); };
    };
  };
  Expect({"Lock users fails: no" + kReread, "FindFirst users fails: no" + kReread,
          "Update users fails: no" + kUserUpdate, "Unlock users fails: yes; wrote Update users"},
         mci_user([](auto& service, auto& user) { return service.SetUserExtra(1, "EMS", user); }));
  Expect({"FindFirst users fails: no"}, mci_user([](auto& service, auto& user) {
           std::uint32_t enabled = 0;
           std::string address;
           return service.GetUserExtra(enabled, address, user);
         }));
}

TEST_F(FaultSweep, AddingToTheList) {
  const std::string waiting = "the notification service database. (waiting)]";
  Expect({"FindFirst services fails: no [Unable to read records from " + waiting,
          "Retrieve services fails: yes [Unable to read the record from " + waiting,
          "Retrieve specific fails: yes [Unable to read the record from the notification service-specific "
          "database. (waiting)]"},
         [&] {
           TheServices().RemoveAll();
           const GUID id = SeedService(kTypeSmtp, "Other");
           return [id] { return TheServices().AddFromStore(id); };
         });
}

TEST_F(FaultSweep, EnablingAndDisabling) {
  const auto change = [&](std::uint32_t code, bool on) {
    return [this, code, on]() -> Operation {
      CNtfyService& service = Fresh(code);
      const GUID manager = GUID::Generate();
      if (!on) EnableServiceOnManager(service.Common(), manager, true);
      return [&service, manager, on] {
        EnableServiceOnManager(service.Common(), manager, on);
        return IsServiceOnManager(service.ServiceId(), manager);
      };
    };
  };
  const std::string add = " [Unable to add record to enabled services per manager database.]",
                    wrote = "; wrote Add enabled";
  Expect({"FindFirst enabled fails: yes" + wrote, "Add enabled fails: no" + add,
          "FindFirst enabled fails: no" + wrote},
         change(kTypeSmtp, true));
  Expect({"FindFirst enabled fails: yes", "Delete enabled fails: yes",
          "FindFirst enabled fails: no; wrote Delete enabled"},
         change(kTypeSmtp, false), "no");
  BackupManagerGuid() = GUID::Generate();
  Expect({"FindFirst enabled fails: yes" + wrote + ", Add enabled", "Add enabled fails: no" + add + wrote,
          "Add enabled fails: yes" + add + wrote, "FindFirst enabled fails: no" + wrote + ", Add enabled"},
         change(kTypeNumeric, true));
  BackupManagerGuid() = kNullGuid;
}

// A test send: whether it was handed over is the answer, and nothing is handed over that was not written.

TEST_F(FaultSweep, TestSends) {
  const GUID target = MakeUser("Ann Operator");
  EXPECT_EQ(AddComputer(target, "DESK"), kOk);
  for (const std::uint32_t code : ConfiguredTypes()) {
    SCOPED_TRACE(code);
    const bool to_computer = code == kTypeSnmp || code == kTypeTts || code == kTypeGeneric;
    const std::string names = to_computer ? " computers" : " console users";
    // A name that cannot be read stays as the response has it.
    Expect({"FindFirst responses fails: no [Unable to find record in the responses database.]",
            "Open" + names + " fails: yes; wrote Update responses",
            "Retrieve" + names + " fails: yes; wrote Update responses",
            "Update responses fails: no [Unable to update record in the responses database.]"},
           [&] {
             CNtfyService& service = Fresh(code);
             ALERTRESPREC response{};
             response.responseId = alertrecords::TestResponseId(RecordTypeOf(code));
             ResponseStore().DBAlertRecDelete(response.responseId);
             EXPECT_EQ(ResponseStore().AddWithIdentity(response), kOk);
             library.agentui.recorded.clear();
             library.dbconfig.files_written = 0;
             return [&] {
               const bool sent = service.SendTestAlert(target, "text", "file", 1, nullptr);
               EXPECT_EQ(library.agentui.recorded, sent ? Lines({"register", "send"}) : Lines());
               EXPECT_EQ(library.dbconfig.files_written, sent ? 1 : 0);
               return sent;
             };
           });
  }
}

// The panel of a user's entry: it tries all that it writes, and what failed is told to whoever asks it to write.

TEST_F(FaultSweep, UserPanels) {
  const Lines new_entry = UserOperations()[0].expected;
  const auto save = [&](std::uint32_t code, const std::string& field) {
    return [this, code, field]() -> Operation {
      const std::shared_ptr<CAlertPage> panel(Fresh(code).CreateAddUserPanel(0, GUID::Generate(), 0));
      panel->Create();
      Type(*panel, field, "1");
      return [panel] { return panel->UpdatePanelData(); };
    };
  };
  Expect(new_entry, save(kTypeSmtp, "Email A&ddress:"));
  Expect(new_entry, save(kTypeNumeric, "&Phone number:"));
  const std::string both = "; wrote Add users, Add links", whole = both + ", Update users";
  Expect({"FindFirst links fails: yes" + whole, "Lock users fails: no" + kUserAdd + kReread,
          "Add users fails: no" + kUserAdd + kReread, "Unlock users fails: yes" + whole,
          "FindFirst links fails: yes" + whole,
          "Add links fails: no" + kLinkAdd + "; wrote Add users, Update users",
          "Lock users fails: no" + kReread + both, "FindFirst users fails: no" + kReread + both,
          "Update users fails: no" + kUserUpdate + both, "Unlock users fails: yes" + whole},
         save(kTypeMci, "Email &Address:"));
}

// Dialogs that store what a person chose; they stay open when it was not stored.

/// `field`: one that must be filled in first.
template <class Dialog>
Operation PressOk(std::shared_ptr<Dialog> dialog, const std::string& field = "") {
  return [dialog, field] {
    dialog->OpenWindow();
    if (!field.empty()) Type(*dialog, field, "1");
    At<ui::Button>(*dialog, "OK").OnClick();
    return dialog->Ended();
  };
}

TEST_F(FaultSweep, ChoosingAPagingProvider) {
  EnsureStoresOpen();
  for (int i = 0; i < 2; ++i) AddRecord(ProviderStore());
  // What cannot be read behind the first provider shortens the list.
  const auto lines = [](const std::string& write, const std::string& message) -> Lines {
    const std::string shorter = "FindNext providers fails: yes; wrote " + write + " specific";
    return {"FindFirst providers fails: no [The service provider database is empty (has no records).]",
            shorter,
            shorter,
            "Lock specific fails: no" + message,
            write + " specific fails: no" + message,
            "Unlock specific fails: yes; wrote " + write + " specific"};
  };
  Expect(lines("Update", kSpecificUpdate), [&] {
    const auto* record = static_cast<const ALRTAPAGESERVICEREC*>(Fresh(kTypeAlpha).GetSpecificRecord());
    return PressOk(std::make_shared<CSetPagerProviderDlg>(nullptr, record));
  });
  Expect(lines("Add", " [Unable to add record to service-specific database.]"),
         [] { return PressOk(std::make_shared<CSetPagerProviderDlg>(nullptr)); });
}

TEST_F(FaultSweep, SnmpManagers) {
  EnsureStoresOpen();
  const std::string update = " [Unable to update a record in the SNMP Managers database.]",
                    again = "; wrote Update managers";
  const auto dialog = [](ALRTUSR_SNMPSERVICEREC* given) {
    return PressOk(std::make_shared<CSnmpManagerDlg>(nullptr, given), "&Network Address:");
  };
  Expect({"Add managers fails: no [Unable to add a record to the SNMP Managers database.]"},
         [&] { return dialog(nullptr); });
  ALRTUSR_SNMPSERVICEREC manager{};
  Expect({"Lock managers fails: no" + update, "Retrieve managers fails: yes" + again,
          "Update managers fails: no" + update, "Unlock managers fails: yes" + again},
         [&] {
           manager.guid = AddRecord(SnmpManagerStore());
           return dialog(&manager);
         });
  Expect({"Delete managers fails: no [Unable to delete a record in the SNMP Managers database.]"},
         [&] { return [manager = AddRecord(SnmpManagerStore())] { return DeleteSnmpManager(manager); }; });
}

}  // namespace
