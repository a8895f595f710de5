// SPDX-License-Identifier: MIT
// How fast the library's windows open and its longest lists fill on the Qt desktop, each against a bare window of the
// toolkit with the same contents (bench/bare_window.h), in the same run and in turn; opening.h says what an opening is.
//
// The library's time has in it what a person waits for: reading the records, the model of each control, the widgets and
// their layout, and the room for a sheet's pages that are not in front yet. The bare window has its texts in memory and
// only the page in front.
//
// A list fills while its window opens. Each list has two lines. "Read and shown": the library's own window, which reads
// the records; the bare one still reads nothing. "Shown": a window with the list alone, from texts in memory on both sides.
//
//   window_bench [repetitions]
#include <QApplication>
#include <QLoggingCategory>
#include <filesystem>
#include <optional>

#include "alerting/api/load.h"
#include "alerting/frame/app.h"
#include "alerting/services/service_list.h"
#include "alerting/services/service_ui.h"
#include "alerting/telephony/manage_modem_types_dlg.h"
#include "alerting/telephony/modem_lists.h"
#include "alerting/telephony/set_pager_provider_dlg.h"
#include "bench/measure.h"
#include "bench/opening.h"
#include "desktops/qt/offscreen.h"
#include "desktops/qt/qt_desktop.h"
#include "platform/ui/dialog.h"

using namespace alerting;  // NOLINT
using namespace bench;     // NOLINT

namespace {

constexpr double kSheetAim = 3, kListAim = 2;

int repetitions = 15;

/// A site with one service of each type, in a directory of its own.
class Site {
 public:
  Site() : directory_((std::filesystem::temp_directory_path() / "window-bench-XXXXXX").string()) {
    Require(mkdtemp(directory_.data()) != nullptr, "cannot make a directory");
    setenv("ALERTING_DATA", directory_.c_str(), 1);
    const std::string init = std::string(ALERTCTL) + " init >/dev/null";
    Require(std::system(init.c_str()) == 0, "cannot set the site up");
    Require(Load() && TheApp().OpenStores() == kStoresOpened, "cannot open the stores");
    TheApp().EnsureStoresOpen();
    Require(TheServices().Read(), "cannot read the services");
  }
  ~Site() {
    TheApp().CloseStores();
    Unload();
    std::filesystem::remove_all(directory_);
  }

 private:
  std::string directory_;
};

void CompareSheet(const std::string& title, const Open& open) {
  CompareOpenings("sheet of " + title, kSheetAim, repetitions, open);
}

void CompareList(const std::string& title, const Open& read, const Open& in_memory) {
  CompareOpenings(title + ", read and shown", kListAim, repetitions, read);
  CompareOpenings(title + ", shown", kListAim, repetitions, in_memory);
}

CNtfyService& ServiceOf(std::uint32_t code) {
  for (int i = 0; i < TheServices().GetCount(); ++i)
    if (TheServices().GetAt(i)->Code() == code) return *TheServices().GetAt(i);
  Require(false, "a service is missing");
  std::abort();
}

using Texts = std::vector<std::string>;

Texts Numbered(const std::string& name, int count) {
  Texts texts;
  for (int i = 0; i < count; ++i) texts.push_back(name + " " + std::to_string(i));
  return texts;
}

void AddAll(platform::ui::ListBox& list, const Texts& texts) {
  for (const std::string& text : texts) list.Add(text);
}

template <class Store, class Record>
void AddRecord(Store& store, Record record) {
  GUID id{};
  Require(store.DBAlertRecAdd(record, id) == kOk, "cannot add a record");
}

void AddUser(const CNtfyService& service, const std::string& name) {
  ALRTUSRINSTSERV link{};
  ALRTUSR_SMTPSERVICEREC user{};
  user.userId = link.userId = GUID::Generate();
  link.serviceId = service.ServiceId();
  user.userName.Assign(name);
  GUID id{}, user_id{};
  Require(UserLinkStore().DBAlertRecAdd(link, id, user, user_id) == kOk, "cannot add a user");
}

ALRTSERV_MODEM ModemNamed(const std::string& name) {
  ALRTSERV_MODEM modem{};
  modem.name.Assign(name);
  modem.managerName.Assign("ALPHA");
  modem.comPort = 1;
  modem.baudRate = 9600;
  return modem;
}

ALRTAPAGE_SERVICE_PROVIDER_REC ProviderNamed(const std::string& name) {
  ALRTAPAGE_SERVICE_PROVIDER_REC provider{};
  provider.company.Assign(name);
  provider.regionA.Assign("North");
  provider.regionB.Assign("East");
  provider.phone.Assign("555-0100");
  provider.baudRate = 1200;
  provider.maxTextLength = 80;
  return provider;
}

void OpenBackupSheet() { ServiceUiOf(kTypeNumeric).backup_modem_sheet(ServiceOf(kTypeNumeric), nullptr); }

void CompareSheets() {
  for (int i = 0; i < TheServices().GetCount(); ++i) {
    CNtfyService& service = *TheServices().GetAt(i);
    CompareSheet(service.Name(), [&] { service.PropertySheet(nullptr); });
  }
  AddRecord(ModemStore(), ModemNamed("Modem"));  // a sheet without any says so
  CompareSheet("a backup modem", OpenBackupSheet);
}

/// A window with one list of the kind `List`, which `fill` fills as it opens.
template <class List>
class ListWindow : public platform::ui::Dialog {
 public:
  using Fill = std::function<void(List&)>;
  template <class... Traits>
  explicit ListWindow(Fill fill, Traits... traits)
      : Dialog(nullptr, "List"), fill_(std::move(fill)), list_(*this, 1, "&List:", traits...) {}

 private:
  void OnInitDialog() override { fill_(list_); }

  const Fill fill_;
  List list_;
};
using BoxWindow = ListWindow<platform::ui::ListBox>;
using ReportWindow = ListWindow<platform::ui::ListView>;

void CompareUsers() {
  const Texts names = Numbered("User", 10000);
  CNtfyService& mail = ServiceOf(kTypeSmtp);
  for (const std::string& name : names) AddUser(mail, name);
  CompareList(
      "10,000 users", [&] { BoxWindow([&](auto& list) { mail.FillUserList(list); }).RunModal(); },
      [&] { BoxWindow([&](auto& list) { AddAll(list, names); }).RunModal(); });
}

void CompareModemTypes() {
  const Texts names = Numbered("Type", kMaxListedTypes);
  for (const std::string& name : names) AddRecord(ModemTypeStore(), ModemNamed(name));
  CompareList(
      "5,000 modem types", [] { CManageModemTypesDlg(nullptr).RunModal(); },
      [&] { BoxWindow([&](auto& list) { AddAll(list, names); }, true).RunModal(); });
}

void CompareProviders() {
  const Texts names = Numbered("Provider", 1000);
  Texts lines;
  for (const std::string& name : names) lines.push_back(name + "\tNorth East\t555-0100\t1200\t80");
  for (const std::string& name : names) AddRecord(ProviderStore(), ProviderNamed(name));
  CompareList(
      "1,000 providers", [] { CSetPagerProviderDlg(nullptr).RunModal(); },
      [&] { BoxWindow([&](auto& list) { AddAll(list, lines); }, false, true).RunModal(); });
}

void CompareModems() {
  const Texts names = Numbered("Modem", kMaxListedModems);
  for (const std::string& name : names) AddRecord(ModemStore(), ModemNamed(name));
  const auto fill = [&](platform::ui::ListView& list) {
    for (const char* title : {"Modem", "Server", "Port", "Baud"}) list.AddColumn(title, 50);
    for (const std::string& name : names) list.AddRow({name, "ALPHA", "COM1", "9600"});
  };
  CompareList(
      "256 modems", [] { OpenBackupSheet(); }, [&] { ReportWindow(fill).RunModal(); });
}

}  // namespace

int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  QLoggingCategory::setFilterRules("default.warning=false");  // the platform complains of every window
  std::optional<desktops::qt::OffscreenScreen> screen(std::in_place);
  QApplication application(argc, argv);
  screen.reset();
  if (argc > 1) repetitions = std::atoi(argv[1]);
  Require(repetitions > 0, "usage: window_bench [repetitions]");
  desktops::QtDesktop desktop;
  const Site site;
  PrintHeading();
  CompareSheets();
  CompareUsers();
  CompareModemTypes();
  CompareProviders();
  CompareModems();
}
