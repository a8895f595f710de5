// SPDX-License-Identifier: MIT
// An administrator sets up a new site without leaving the window.
#include <cstdlib>
#include <map>
#include <nlohmann/json.hpp>
#include <regex>

#include "platform/base/host_name.h"
#include "platform/base/paths.h"
#include "tests/support/temporary.h"
#include "tests/window/main_window_test.h"

namespace alertconsole {
namespace {

using nlohmann::json;

class NewSiteTest : public MainWindowTest {
 protected:
  void NewUser(const char* name) {
    Script().ExpectWindow("New User", [=](Person& p) {
      p.Type("&Name:", name);
      p.Press("OK");
    });
    Give("New User");
    EXPECT_EQ(Chosen("Users").toStdString(), name);
  }
  void NewEntry(const std::string& service, const char* field, const char* address) {
    Script().ExpectWindow("New Entry", [=](Person& p) {
      ChooseRow(p, "&Services:", service);
      p.Press("Next >");
      p.Type(field, address);
      p.Press("Finish");
    });
    Give("New Entry");
  }
  void NewResponse(const std::string& service, const char* field, const char* message) {
    Script().ExpectWindow("New Response", [=](Person& p) {
      ChooseRow(p, "&Services:", service);
      p.Press("Next >");
      p.Type(field, message);
      p.Press("Finish");
    });
    Give("New Response");
  }
  static void ChooseRow(Person& p, const std::string& list, const std::string& first) {
    const auto rows = p.Rows(list);
    for (std::size_t row = 0; row < rows.size(); ++row)
      if (rows[row].front() == first) return p.ClickRow(list, static_cast<int>(row));
    ADD_FAILURE() << "no row " << first;
  }
  void SetUpMail() {
    Choose("Services", "Internet Mail");
    Script().ExpectWindow("Internet Mail", [](Person& p) {
      p.Type("&SMTP Server:", "mail.example.org");
      p.Press("OK");
    });
    Give("Properties");
  }
  void AddProvider() {
    Script().ExpectWindow("Paging Providers", [](Person& p) {
      p.Press("&Add...");
      for (const auto& row : p.Rows("Paging &providers:")) {
        if (row.front() == "City Paging") continue;
        ChooseRow(p, "Paging &providers:", row.front());
        p.Press("&Remove");
      }
      p.Press("Close");
    });
    Script().ExpectWindow("New Paging Provider", [](Person& p) {
      p.Type("&Company:", "City Paging");
      p.Type("&Location:", "Springfield");
      p.Type("L&ocation, second part:", "Region 7");
      p.Type("&Phone number:", "555-0160");
      p.Press("OK");
    });
    for (const char* area : {"Coast", "Nationwide", "North", "South"})
      Script().ExpectMessage(std::string("Remove the paging provider \"Example Paging ") + area +
                                 "\"? Services set up with it keep its settings.",
                             platform::ui::Answer::kYes);
    Give("Paging Providers");
  }
  void SetUpPager() {
    Choose("Services", "Alphanumeric Pager");
    Script().ExpectWindow("Alphanumeric Pager", [](Person& p) {
      p.Press("&Set service provider");
      p.SelectTab("Modems");
      p.Press("Ne&w...");
      p.ClickRow("Modems", 0);
      p.Press("OK");
    });
    Script().ExpectWindow("Set Alphanumeric Pager Service Provider", [](Person& p) { p.Press("OK"); });
    Script().ExpectMessage(
        "No records in the modem database. You will need to add a location (using the New button) in order "
        "to use a modem.");
    Script().ExpectWindow("Create new modem", [](Person& p) {
      p.Choose("&Select modem type for the new modem:", "Generic 2400 bps modem");
      p.Type("&Enter name for new modem:", "Rack modem");
      p.Press("OK");
    });
    Script().ExpectWindow("Modem Properties", [](Person& p) {
      p.Choose("&Machine:", platform::HostName());
      p.Choose("I am dialing &from", "Main office");
      p.Press("OK");
    });
    Give("Properties");
  }
  void AddSecondManager() {
    ShowPage("Alert &Managers");
    Script().ExpectWindow("New Alert Manager", [](Person& p) {
      p.Type("&Name of its computer:", "STANDBY");
      p.Press("OK");
    });
    Give("New Alert Manager");
    Script().ExpectWindow("Services of STANDBY", [](Person& p) {
      ChooseRow(p, "Se&rvices:", "Wave File");
      p.Press("&Deliver");
      p.Press("Close");
    });
    Script().ExpectMessage(
        "\"Wave File\" is delivered by " + platform::HostName() + ". Have \"STANDBY\" deliver it instead?",
        platform::ui::Answer::kYes);
    Give("Services Delivered");
  }
};

/// With each identity replaced by the place where it first stands: the same in two sites that were made alike.
std::string WithoutIdentities(const std::string& document) {
  static const std::regex kIdentity("\\{[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}\\}");
  std::map<std::string, std::size_t> places;
  std::string result;
  std::size_t at = 0;
  for (std::sregex_iterator found(document.begin(), document.end(), kIdentity), end; found != end; ++found) {
    const std::size_t place = places.emplace(found->str(), places.size()).first->second;
    const auto begin = static_cast<std::size_t>(found->position());
    result += document.substr(at, begin - at) + "#" + std::to_string(place);
    at = begin + found->str().size();
  }
  return result + document.substr(at);
}

/// The site that the guide's script makes, in a data directory of its own.
std::string MadeFromAShell() {
  const test_support::TemporaryDirectory data;
  const std::string program = ALERTCTL;
  const std::string command = "ALERTING_DATA='" + data.Path() + "/data' PATH='" +
                              program.substr(0, program.rfind('/')) +
                              "':$PATH sh -e '" FIRST_STEPS_SCRIPT "' >'" + data.Path() + "/said' 2>&1";
  const int code = std::system(command.c_str());
  std::string said, document;
  platform::ReadWholeFile(data.Path() + "/said", said);
  EXPECT_EQ(code, 0) << said;
  platform::ReadWholeFile(data.Path() + "/data/alert-managers.json", document);
  return document;
}

const json& Named(const json& list, const std::string& name) {
  for (const json& item : list)
    if (item["name"] == name) return item;
  throw std::runtime_error("nothing is named " + name);
}

TEST_F(NewSiteTest, MailPagerUsersResponsesAndManagersReachTheManagersFile) {
  Open();
  Press("&Set Up This Site");
  SetUpMail();
  AddProvider();
  SetUpPager();
  ShowPage("&Users");
  NewUser("Ann Example");
  NewEntry("Internet Mail", "Email A&ddress:", "ann@example.org");
  NewUser("Bob Example");
  NewEntry("Alphanumeric Pager", "&PIN number:", "5550177");
  ShowPage("&Responses");
  NewResponse("Internet Mail", "Mail Message &Subject:", "Disk full");
  NewResponse("Alphanumeric Pager", "&Message:", "Disk full on <Workstation>");
  AddSecondManager();

  std::string bytes;
  ASSERT_TRUE(platform::ReadWholeFile(Library().Directory() + "/alert-managers.json", bytes));
  const json site = json::parse(bytes);
  const json& mail = Named(site["services"], "Internet Mail");
  EXPECT_EQ(mail["settings"]["smtpServer"], "mail.example.org");
  EXPECT_EQ(mail["users"].at(0)["address"], "ann@example.org");
  const json& pager = Named(site["services"], "Alphanumeric Pager");
  EXPECT_EQ(pager["modem"]["modemName"], "Rack modem");
  EXPECT_EQ(Named(site["modems"], "Rack modem")["managerName"], platform::HostName());
  EXPECT_EQ(pager["users"].at(0)["address"], "5550177");
  EXPECT_EQ(site["alertManagers"][1]["name"], "STANDBY");
  EXPECT_EQ(site["alertManagers"][1]["services"].at(0)["serviceId"],
            Named(site["services"], "Wave File")["id"]);
  std::vector<std::string> alerted;
  for (const json& response : site["responses"])
    if (response["userName"] != "")
      alerted.push_back(response["serviceName"].get<std::string>() + ": " +
                        response["userName"].get<std::string>());
  EXPECT_THAT(alerted, testing::ElementsAre("Internet Mail: Ann Example", "Alphanumeric Pager: Bob Example"));
  EXPECT_FALSE(Says("not yet told"));
  EXPECT_EQ(WithoutIdentities(bytes), WithoutIdentities(MadeFromAShell()));
}

}  // namespace
}  // namespace alertconsole
