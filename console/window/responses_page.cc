// SPDX-License-Identifier: MIT
#include "console/window/responses_page.h"

#include <QVBoxLayout>

#include "companions/dbconfig/strings.h"
#include "console/hosts/host_dialog.h"
#include "console/hosts/response_service.h"
#include "console/hosts/response_sheet.h"
#include "console/hosts/response_wizard.h"
#include "console/site/advice.h"
#include "console/site/responses.h"
#include "desktops/qt/texts.h"

namespace alertconsole {
namespace {

using desktops::qt::ToQt;

/// One line for a cell.
QString Line(const std::string& text) { return ToQt(text).simplified(); }

}  // namespace

ResponsesPage::ResponsesPage(Console& console, QWidget* parent)
    : Page(console, tr("&Responses"), parent),
      view_(
          tr("Responses"),
          {{tr("Service"), 30}, {tr("Type"), 26}, {tr("User"), 24}, {tr("Subject"), 32}, {tr("Message"), 48}},
          this) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addWidget(&view_);
  view_.SetEmptyText(
      tr("There are no responses yet.\n\nNew Response says what is sent through which service."));
  view_.SetOnSelection([this] { console_.SelectionChanged(); });
  view_.SetOnFilter([this] { console_.SelectionChanged(); });
  view_.SetOnActivated([this] {
    if (view_.Selected().size() == 1) Edit();
  });
  Add(view_, tr("&New Response..."), QKeySequence::New, Needs::kNothing, [this] { New(); });
  Add(view_, tr("&Properties..."), {}, Needs::kOneRow, [this] { Edit(); });
  Add(view_, tr("Point at &Another Service..."), {}, Needs::kOneRow, [this] { Retarget(); });
  AddSeparator();
  Add(view_, tr("&Remove"), QKeySequence::Delete, Needs::kRows, [this] { Remove(); });
}

void ResponsesPage::ShowSite() {
  const auto services = site::ById(console_.Site().services);
  std::vector<Row> rows;
  for (const site::Response& response : console_.Site().responses) {
    const bool gone = services.count(response.service) == 0;
    const QString service = ToQt(response.service_name);
    rows.push_back({{response.id, {}},
                    {gone ? tr("%1 (deleted)").arg(service) : service,
                     QString::fromUtf8(dbconfig::ServiceTypeName(response.record_type)),
                     ToQt(response.user_name), Line(response.subject), Line(response.message)},
                    console_.IconOf(response.record_type)});
  }
  view_.SetRows(std::move(rows));
}

QString ResponsesPage::Summary() const { return CountText(view_, tr("response"), tr("responses")); }

void ResponsesPage::New() {
  platform::GUID added{};
  console_.Do(
      [&] {
        return hosts::AddResponse(console_.Owner(), console_.Calls(), console_.Site(), added)
                   ? Outcome::kStored
                   : Outcome::kNothing;
      },
      tr("Added the response."));
  view_.Select({added, {}});
}

void ResponsesPage::Edit() {
  const platform::GUID id = Chosen(view_);
  console_.Do(
      [&] {
        return hosts::EditResponse(console_.Owner(), console_.Calls(), id) ? Outcome::kStored
                                                                           : Outcome::kNothing;
      },
      tr("Stored the response."));
}

void ResponsesPage::Retarget() {
  const platform::GUID id = Chosen(view_);
  console_.Do(
      [&] {
        return hosts::RetargetResponse(console_.Owner(), console_.Calls(), console_.Site(), id)
                   ? Outcome::kStored
                   : Outcome::kNothing;
      },
      tr("The response goes to another service now."));
}

void ResponsesPage::Remove() {
  const std::vector<RowKey> chosen = view_.Selected();
  const std::string which =
      chosen.size() == 1 ? "this response" : "these " + std::to_string(chosen.size()) + " responses";
  console_.Do(
      [&] {
        if (!hosts::Ask("Remove " + which + "?\n\nThis cannot be undone.")) return Outcome::kNothing;
        for (const RowKey& key : chosen) {
          const alertstore::Status status = site::RemoveResponse(key.id);
          if (status == alertstore::kOk || status == alertstore::kNotFound) continue;
          hosts::Tell(site::FailureText("remove the response", status));
          return Outcome::kMayHaveStored;
        }
        return Outcome::kStored;
      },
      tr("Removed."));
}

}  // namespace alertconsole
