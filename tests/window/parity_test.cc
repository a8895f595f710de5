// SPDX-License-Identifier: MIT
// What the window and the command line can do is told side by side, and all of it.
#include <QMenuBar>
#include <regex>
#include <set>
#include <sstream>

#include "console/alertctl/verbs.h"
#include "platform/base/paths.h"
#include "tests/window/main_window_test.h"

namespace alertconsole {
namespace {

using Names = std::set<std::string>;

/// The cells of each row of the document's table.
std::vector<std::vector<std::string>> TableRows() {
  std::string document, line;
  EXPECT_TRUE(platform::ReadWholeFile(PARITY_DOCUMENT, document));
  std::istringstream lines(document);
  std::vector<std::vector<std::string>> rows;
  const std::regex row("\\| ?(.*?) ?\\| ?(.*?) ?\\| ?(.*?) ?\\|");
  for (std::smatch cells; std::getline(lines, line);)
    if (std::regex_match(line, cells, row) && cells[1] != "Console" && cells[1] != "---")
      rows.push_back({cells[1], cells[2], cells[3]});
  return rows;
}

/// What stands between grave accents.
void Collect(const std::string& cell, Names& names) {
  static const std::regex kName("`([^`]+)`");
  for (std::sregex_iterator name(cell.begin(), cell.end(), kName), end; name != end; ++name)
    names.insert((*name)[1]);
}

Names Column(std::size_t column) {
  Names names;
  for (const auto& row : TableRows()) Collect(row[column], names);
  return names;
}

void AddVerbsOf(const CLI::App& app, const std::string& words, Names& verbs) {
  const auto further = app.get_subcommands([](const CLI::App*) { return true; });
  if (further.empty()) verbs.insert(words);
  for (const CLI::App* each : further)
    AddVerbsOf(*each, words + (words.empty() ? "" : " ") + each->get_name(), verbs);
}

std::string Plain(QString text) { return text.remove('&').remove("...").toStdString(); }

class ParityTest : public MainWindowTest {
 protected:
  void AddActions(const std::string& where, const QList<QAction*>& actions, Names& names) {
    for (QAction* action : actions)
      if (!action->isSeparator() && !action->text().isEmpty())
        names.insert(where + ": " + Plain(action->text()));
  }
  Names Actions() {
    Names names = {"Start: Set Up This Site"};
    auto* tabs = Window().findChild<QTabWidget*>();
    for (int i = 0; i < tabs->count(); ++i)
      AddActions(Plain(tabs->tabText(i)),
                 tabs->widget(i)->findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly), names);
    for (QAction* menu : Window().menuBar()->actions())
      if (Plain(menu->text()) != "Actions") AddActions(Plain(menu->text()), menu->menu()->actions(), names);
    return names;
  }
};

TEST_F(ParityTest, TheTableHasEveryCommandAndEveryVerbAndNoOther) {
  OpenSetUp();
  Names told = Column(0);
  for (auto name = told.begin(); name != told.end();)
    name = name->find(" page: ") != std::string::npos ? told.erase(name) : std::next(name);
  EXPECT_EQ(told, Actions()) << "pages of sheets stand for their buttons";

  CLI::App app;
  alertctl::Verbs verbs(app);
  alertctl::AddAllVerbs(verbs);
  Names there;
  AddVerbsOf(app, "", there);
  EXPECT_EQ(Column(1), there);

  EXPECT_GT(TableRows().size(), 40u);
  for (const auto& row : TableRows())
    EXPECT_EQ(row[0].empty() || row[1].empty(), !row[2].empty()) << row[0] << row[1];
}

}  // namespace
}  // namespace alertconsole
