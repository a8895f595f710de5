// SPDX-License-Identifier: MIT
#include <memory>

#include "companions/alertstore/stores.h"
#include "console/alertctl/fields.h"
#include "console/alertctl/library.h"
#include "console/alertctl/provider_records.h"
#include "console/alertctl/site.h"
#include "console/alertctl/text.h"
#include "console/site/open_mark.h"

namespace alertctl {

void AddServiceSetVerb(Verbs& verbs, CLI::App& service);

namespace {

using console_operator::OperatedWindow;

constexpr char kExamples[] =
    "  alertctl service set \"Internet Mail\" --server mail.example.org --subject \"<Severity>: <Event "
    "Name>\"\n"
    "  printf secret | alertctl service set \"Microsoft Mail\" --login alerts --password-file -\n"
    "  alertctl service set \"Alphanumeric Pager\" --provider \"Example Paging North\" --text-length 200\n"
    "  alertctl service set \"Numeric Pager\" --delay 12 --message 911";

constexpr char kGeneral[] = "General", kMessage[] = "Default Message", kModems[] = "Modems";

const FieldOption kFields[] = {
    {"--server",
     FieldKind::kText,
     "Internet Mail: the mail server, at most 255 bytes",
     {"&SMTP Server:"},
     kGeneral},
    {"--directory",
     FieldKind::kText,
     "MHS Mail: directory of the post office",
     {"&Server/Volume path (MHS Directory):"},
     kGeneral},
    {"--phone", FieldKind::kText, "Number to dial, at most 25 bytes", {"P&hone #:", "P&hone:"}, kGeneral},
    {"--login",
     FieldKind::kText,
     "Login of a mail service",
     {"&Login ID:", "&Login ID or Profile Name:"},
     kGeneral},
    {"--password-file",
     FieldKind::kSecret,
     "File with the password, alone on one line; - is standard input",
     {"&Password:", "&Verify Password:"},
     kGeneral},
    {"--company", FieldKind::kText, "Alphanumeric Pager: name of the provider", {"&Company:"}, kGeneral},
    {"--location", FieldKind::kText, "Alphanumeric Pager: where the provider is", {"&Location:"}, kGeneral},
    {"--text-length",
     FieldKind::kText,
     "Alphanumeric Pager: longest message, 1 to 255",
     {"Te&xt Length:"},
     kGeneral},
    {"--delay",
     FieldKind::kText,
     "Numeric Pager: seconds to wait after dialing, 0 to 60",
     {"&Delay:"},
     kGeneral},
    {"--subject",
     FieldKind::kText,
     "Subject of new responses, with keywords such as <Event Name>",
     {"Mail Message &Subject:"},
     kMessage},
    {"--message",
     FieldKind::kLines,
     "Message of new responses, with keywords",
     {"Mail &Message Body:", "&Edit Default Message:", "&Edit Default Message"},
     kMessage},
    {"--priority", FieldKind::kChoice, "Priority of new responses", {"P&riority:"}, kMessage},
    {"--modem-baud-rate", FieldKind::kChoice, "Bits per second to the other side", {"&Baud Rate:"}, kModems},
    {"--script", FieldKind::kText, "Script that logs in", {"&Script File:"}, kModems},
    {"--data-bits", FieldKind::kChoice, "6, 7 or 8", {"Data Bits"}, kModems},
    {"--parity", FieldKind::kChoice, "none, even or odd", {"Parity"}, kModems},
    {"--stop-bits", FieldKind::kChoice, "1, 1.5 or 2", {"Stop Bits"}, kModems},
};

struct Arguments {
  std::string service, provider, modem;
  bool backup = false, yes = false;
  GivenFields fields;

  void RequireAny() const {
    if (provider.empty() && modem.empty()) fields.RequireAny();
  }
};

/// The window lists them in the order of the store.
void ChooseProvider(OperatedWindow& sheet, const std::string& name) {
  const Provider provider = FindProvider(name);
  const std::vector<Provider> providers = StoredProviders();
  const auto place = std::ranges::find(providers, provider.guid, &Provider::guid) - providers.begin();
  if (!sheet.Shows("&Set service provider"))
    throw Failure(kInvalid, "only an Alphanumeric Pager service has a provider");
  sheet.Open("&Set service provider", {[&](OperatedWindow& dialog) {
               dialog.ChooseAt("&Available Alphanumeric Service Provider:", static_cast<std::size_t>(place));
               dialog.Finish();
             }});
}

void ChooseModem(OperatedWindow& sheet, const Json& site, const std::string& name) {
  const Json& modem = FindOne(site["modems"], name, "modem", "alertctl modem list");
  const auto place =
      std::ranges::find(site["modems"], modem["id"], [](const Json& each) { return each["id"]; }) -
      site["modems"].begin();
  if (!sheet.HasTab(kModems)) throw Failure(kInvalid, "only services that dial out have a modem");
  sheet.SelectTab(kModems);
  sheet.ClickRow("Modems", static_cast<std::size_t>(place));
}

/// Choosing a provider stores it at once, whatever becomes of the sheet: a service whose other settings are refused gets back
/// what it had.
class ProviderUndo {
 public:
  explicit ProviderUndo(const Json& service) {
    alertstore::CAlertNtfyServDB services;
    alertstore::ALRTNTFYSERV common{};
    common.serviceId = IdOf(service);
    if (services.DBOpen() != alertstore::kOk ||
        services.DBAlertRecRetrieve(common.serviceId, common) != alertstore::kOk)
      return;
    record_.guid = common.specificRecordId;
    known_ = store_.DBOpen() == alertstore::kOk &&
             store_.DBAlertRecRetrieve(record_.guid, record_) == alertstore::kOk;
  }
  /// Throws a Failure (kStoreFailure) when that fails.
  void Undo() {
    const alertstore::Status status = known_ ? store_.DBAlertRecUpdate(record_) : alertstore::kOk;
    if (status != alertstore::kOk) throw StoreFailure("give the service its provider of before back", status);
  }

 private:
  alertstore::RecordStore<alertstore::ALRTAPAGESERVICEREC> store_;
  alertstore::ALRTAPAGESERVICEREC record_{};
  bool known_ = false;
};

Library::Story FillSheet(Library& library, const Json& site, const Json& service,
                         const Arguments& arguments) {
  return [&](OperatedWindow& sheet) {
    if (!arguments.provider.empty()) ChooseProvider(sheet, arguments.provider);
    if (!arguments.modem.empty()) ChooseModem(sheet, site, arguments.modem);
    library.Windows().Forget();  // that there is no modem yet
    sheet.FillAll(arguments.fields.Values(), "a service of type " + TypeName(service));
    sheet.Finish();
  };
}

/// A console in which somebody has the same properties open may undo what is set here.
std::string WarningOf(const std::optional<site::OpenMark::Holder>& other) {
  return other ? "Note: the properties are open in another console (" + other->who + ", since " +
                     other->since + "); whoever stores last wins.\n"
               : "";
}

Result Set(const Arguments& arguments) {
  arguments.RequireAny();
  const Json site = LoadSite();
  const Json& service = FindService(site, arguments.service);
  const std::string name = "the service \"" + service["name"].get<std::string>() + "\"";
  const site::OpenMark mark(IdOf(service));
  Library library;
  library.Windows().AnswerYes(arguments.yes);
  const int index = library.IndexOf(service);
  if (arguments.backup && library.Calls().DomainServiceIsModemService(index) == 0)
    throw Failure(kInvalid, "cannot change the backup modem of " + name + ": it does not dial out");
  const auto open = arguments.backup ? library.Calls().DomainServiceBackupPropertySheet
                                     : library.Calls().DomainServicePropertySheet;
  ProviderUndo undo(service);
  try {
    library.Work("change " + name, [&] { open(nullptr, index); },
                 {FillSheet(library, site, service, arguments)});
  } catch (const Failure&) {
    if (!arguments.provider.empty()) undo.Undo();
    throw;
  }
  library.RequireWhole("changed " + name);
  const Json after = LoadSite();
  return {FindService(after, service["id"]),
          "Changed " + name + ".\n" + library.Notes() + WarningOf(mark.Other())};
}

}  // namespace

void AddServiceSetVerb(Verbs& verbs, CLI::App& service) {
  const auto arguments = std::make_shared<Arguments>();
  CLI::App& set = verbs.AddVerb(service, "set", Access::kChange,
                                "Changes what is named of a service's settings. Each type has some of them.",
                                kExamples, [arguments] { return Set(*arguments); });
  set.add_option("service", arguments->service, "Name or identity of the service")->required();
  set.add_option("--provider", arguments->provider,
                 "Alphanumeric Pager: paging provider, whose settings the service takes over")
      ->check(kNotEmpty);
  set.add_option("--modem", arguments->modem, "Modem to dial with")->check(kNotEmpty);
  arguments->fields.AddTo(set, kFields);
  set.add_flag("--backup", arguments->backup, "Modem settings are those of the backup modem");
  set.add_flag("--yes", arguments->yes, "Go on where the window would ask whether to");
}

}  // namespace alertctl
