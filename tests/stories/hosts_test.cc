// SPDX-License-Identifier: MIT
// The windows of a console's own that host the library's panels, and those for what the library only reads.
#include "companions/alertstore/computers.h"
#include "companions/dbconfig/strings.h"
#include "console/hosts/computers_dialog.h"
#include "console/hosts/entry_wizard.h"
#include "console/hosts/host_dialog.h"
#include "console/hosts/manager_services.h"
#include "console/hosts/providers_dialog.h"
#include "console/hosts/response_service.h"
#include "console/hosts/response_sheet.h"
#include "console/hosts/response_wizard.h"
#include "console/site/advice.h"
#include "console/site/managers.h"
#include "console/site/responses.h"
#include "platform/base/atomic_write.h"
#include "tests/stories/service_sheet_fixture.h"
#include "tests/support/static_calls.h"

namespace stories {
namespace {

using namespace alerting;      // NOLINT
using namespace test_support;  // NOLINT
using alertstore::ALERTRESPREC;
using desktops::Person;
using platform::GUID;
using testing::ElementsAre;
using Row = std::vector<std::string>;

constexpr char kServices[] = "&Services:", kUser[] = "&User to alert:", kAddress[] = "Email A&ddress:",
               kNumber[] = "&Phone number:", kDelivered[] = "Se&rvices:", kCompany[] = "&Company:";
constexpr char kDeleted[] = "Another console has deleted the service.",
               kNoMessage[] = "No message in response.  Please enter a message using the message tab.";

std::string TextAt(const std::string& bytes, std::size_t offset) { return bytes.c_str() + offset; }

constexpr auto StoredResponses = Stored<alertstore::CAlertRespDB>;
constexpr auto Links = Stored<alertstore::CAlertUsrInstServDB>;
constexpr auto Notes = Stored<alertstore::CAlertSERV_INST_NTFY_SERVDB>;
constexpr auto Providers = Stored<alertstore::CAlertAPAGE_SERVICE_PROVIDERDB>;

/// A site with services of each class and two users.
class HostsTest : public StoryTest {
 protected:
  HostsTest() { TheServices().RemoveAll(); }

  site::Overview Overview() {
    site::Overview overview;
    site::ReadOverview(overview);
    return overview;
  }
  void ExpectFailure(const std::string& what) {
    Script().ExpectMessage(hosts::Sentence(site::FailureText(what, alertstore::kIoError)));
  }
  static void Press(Person& p, std::initializer_list<const char*> buttons) {
    for (const char* button : buttons) p.Press(button);
  }
  static void Type(Person& p, std::initializer_list<std::pair<const char*, const char*>> texts) {
    for (const auto& [label, text] : texts) p.Type(label, text);
  }
  void PressAndFail(Person& p, const std::string& button, StoreOp op) {
    library_.engine->FailAll(kAnyStore, op);
    p.Press(button);
    EXPECT_EQ(library_.engine->Failures(), 1);
    EXPECT_TRUE(library_.engine->HeldLocks().empty());
    library_.engine->FailNone();
  }
  /// As another console does it: this library's list still has the service.
  void DeleteElsewhere(const GUID& service) {
    Opened<alertstore::CAlertNtfyServDB>().DBAlertRecDelete(service);
  }
  void GiveEntry(const GUID& user, const GUID& service) {
    Users(*test_support::Find(service)).SaveUserEntry(user, {"x", "ann@x", 1});
  }
  ALERTRESPREC AddMailResponse() {
    ALERTRESPREC response{};
    std::memset(&response, 0x5A, offsetof(ALERTRESPREC, responseType));
    site::PointAt(StoredCommon(mail_), response);
    response.priority = 1;
    response.userId = ann_;
    response.userName.Assign("Ann");
    response.responseType = 1;
    response.serviceRecordType = 5;
    response.message.Assign("disk full");
    response.subject.Assign("disk");
    EXPECT_EQ(site::AddResponse(response), alertstore::kOk);
    return response;
  }

  LibraryUnderTest library_;
  const site::LibraryCalls calls_ = StaticCalls();
  const GUID mail_ = SeedService(kTypeSmtp, "Mail"), trap_ = SeedService(kTypeSnmp, "trap"),
             post_ = SeedService(kTypeSmtp, "Post"), pager_ = SeedService(kTypeNumeric, "Pager"),
             sound_ = SeedService(kTypeWave, "Sound");
  const GUID ann_ = MakeUser("Ann"), bob_ = MakeUser("Bob");
};

TEST_F(HostsTest, AUserGetsAnEntryOnTheServiceThatWasChosenLastWhereOneIsLeft) {
  GiveEntry(ann_, post_);
  Script().ExpectWindow("New Entry", [&](Person& p) {
    EXPECT_THAT(p.Rows(kServices), ElementsAre(Row{"Mail", "Internet Mail"}, Row{"Pager", "Numeric Pager"}));
    p.Press("&Next >");
    p.Type(kAddress, "ann@y");
    Press(p, {"< &Back", "&Next >"});
    EXPECT_EQ(p.Text(kAddress), "ann@y") << "it is the same service";
    DeleteElsewhere(mail_);
    Press(p, {"Finish", "< &Back", "&Next >"});
    p.DoubleClickRow(kServices, 1);
    p.Type(kNumber, "555-0100");
    PressAndFail(p, "Finish", StoreOp::kAdd);
    EXPECT_EQ(p.Text(kNumber), "555-0100");
    EXPECT_EQ(Links().size(), 1u);
    p.Press("Finish");
  });
  for (int i = 0; i < 2; ++i) Script().ExpectMessage(kDeleted);
  Script().ExpectMessage("Unable to add record to the service-specific user database.");
  EXPECT_TRUE(hosts::AddEntry(nullptr, calls_, ann_, "Ann"));
  const std::string link = BytesOf(Links().back());
  EXPECT_EQ(link.substr(16, 16) + link.substr(48, 16) + link[101], BytesOf(pager_) + BytesOf(ann_) + '\x0C');
  EXPECT_EQ(TextAt(BytesOf(Stored<alertstore::CAlertUSR_NPAGEDB>()[0]), 32), "555-0100");
  GiveEntry(ann_, mail_);
  Script().ExpectMessage("\"Ann\" has an entry on every service that reaches users.");
  EXPECT_FALSE(hosts::AddEntry(nullptr, calls_, ann_, "Ann"));
}

TEST_F(HostsTest, AResponseIsAddedWithServiceUserAndMessage) {
  for (const GUID& user : {ann_, bob_}) GiveEntry(user, mail_);
  GiveEntry(bob_, pager_);
  GUID added{};
  Script().ExpectWindow("New Response", [&](Person& p) {
    p.ClickRow(kServices, 4);
    EXPECT_FALSE(p.IsEnabled(kUser));
    p.Press("&Next >");
    p.Type("&Message:", "of the trap");
    p.Press("< &Back");
    p.ClickRow(kServices, 2);
    EXPECT_FALSE(p.IsEnabled("&Next >")) << "nobody has an entry there";
    p.ClickRow(kServices, 1);
    EXPECT_EQ(p.Text(kUser), "Bob") << "who else?";
    p.ClickRow(kServices, 0);
    EXPECT_THAT(p.Items(kUser), ElementsAre("Ann", "Bob"));
    p.Choose(kUser, "Ann");
    p.Press("&Next >");
    EXPECT_EQ(p.Text(kBody), "") << "what was entered for the trap is gone";
    EXPECT_THAT(Desk().CutControls(), ElementsAre()) << "the page came when the window was there";
    p.Type(kSubject, "disk");
    p.Press("Finish");
    p.Type(kBody, "disk full");
    PressAndFail(p, "Finish", StoreOp::kAdd);
    EXPECT_EQ(p.Text(kBody), "disk full");
    p.Press("Finish");
  });
  Script().ExpectMessage(kNoMessage);
  ExpectFailure("add the response");
  EXPECT_TRUE(hosts::AddResponse(nullptr, calls_, Overview(), added));
  const std::string stored = BytesOf(StoredResponses()[0]);
  EXPECT_EQ(stored.substr(0, 16) + stored.substr(992, 2), BytesOf(added) + std::string("\1\0", 2));
  EXPECT_EQ(TextAt(stored, 996) + "," + TextAt(stored, 1255), "Ann,Mail");
  EXPECT_EQ(TextAt(stored, 1514) + "," + TextAt(stored, 3563), "disk full,disk");
  EXPECT_EQ(stored.substr(3824, 32) + stored.substr(3985),
            BytesOf(ann_) + BytesOf(mail_) + std::string("\5\0\0\0", 4));
}

TEST_F(HostsTest, AResponseThatNobodyReceivesHasAllDefaultsOfItsService) {
  auto record = Stored<alertstore::CAlertSNMPNtfyServDB>()[0];
  record.defaultBody.Assign("down");
  record.defaultSubject.Assign("link");
  Opened<alertstore::CAlertSNMPNtfyServDB>().DBAlertRecUpdate(record);
  GUID added{};
  Script().ExpectWindow("New Response", [](Person& p) {
    p.ClickRow(kServices, 4);
    Press(p, {"&Next >", "Finish"});
  });
  EXPECT_TRUE(hosts::AddResponse(nullptr, calls_, Overview(), added));
  const std::string stored = BytesOf(StoredResponses()[0]);
  EXPECT_EQ(stored.substr(992, 2) + stored.substr(3840, 16), std::string("\x10\0", 2) + BytesOf(trap_));
  EXPECT_EQ(TextAt(stored, 1514) + "," + TextAt(stored, 3563), "down,link") << "the subject is on no panel";
}

TEST_F(HostsTest, AResponseIsEditedInPlace) {
  ALERTRESPREC expected = AddMailResponse();
  Script().ExpectWindow("Response Properties", [&](Person& p) {
    p.Type(kBody, "");
    p.Press("&Apply");
    EXPECT_EQ(StoredResponses()[0].message.View(), "disk full");
    p.Type(kBody, "after");
    PressAndFail(p, "OK", StoreOp::kUpdate);
    EXPECT_EQ(p.Text(kBody), "after");
    p.Press("&Apply");
    DeleteElsewhere(mail_);
    Press(p, {"OK", "Cancel"});
  });
  Script().ExpectMessage(kNoMessage);
  ExpectFailure("store the response");
  for (int i = 0; i < 2; ++i)
    Script().ExpectMessage(
        "The service of this response has been deleted. Point the response at another service.");
  EXPECT_TRUE(hosts::EditResponse(nullptr, calls_, expected.responseId)) << "it was applied";
  EXPECT_FALSE(hosts::EditResponse(nullptr, calls_, expected.responseId));
  expected.message.Assign("after");
  EXPECT_TRUE(BytesOf(StoredResponses()[0]) == BytesOf(expected));
}

TEST_F(HostsTest, AResponseIsPointedAtAnotherServiceOfItsTypeOrOfAnother) {
  auto pager = Stored<alertstore::CAlertNPAGENtfyServDB>()[0];
  pager.defaultBody.Assign("911");
  Opened<alertstore::CAlertNPAGENtfyServDB>().DBAlertRecUpdate(pager);
  for (const GUID& service : {mail_, post_, pager_}) GiveEntry(ann_, service);
  const site::Overview overview = Overview();
  ALERTRESPREC expected = AddMailResponse();
  Script().ExpectWindow("Service of the Response", [](Person& p) {
    p.ClickRow(kServices, 2);
    p.Press("OK");
  });
  EXPECT_TRUE(hosts::RetargetResponse(nullptr, calls_, overview, expected.responseId));
  expected.serviceId = post_;
  expected.serviceName.Assign("Post");
  EXPECT_TRUE(BytesOf(StoredResponses()[0]) == BytesOf(expected)) << "nothing but the service";
  for (int i = 0; i < 2; ++i) {
    Script().ExpectWindow("Service of the Response", [](Person& p) {
      EXPECT_EQ(p.Text(kUser), "Ann");
      p.ClickRow(kServices, 1);
      p.Press("OK");
    });
    Script().ExpectWindow("Response Properties", [](Person& p) {
      EXPECT_EQ(p.Text("&Message:"), "911") << "lost even among pagers";
      p.Press("OK");
    });
    EXPECT_TRUE(hosts::RetargetResponse(nullptr, calls_, overview, expected.responseId));
  }
  Script().ExpectWindow("Service of the Response", [](Person& p) {
    p.ClickRow(kServices, 3);
    Press(p, {"OK", "OK"});
  });
  for (const char* last : {"Cancel", "OK"}) {
    Script().ExpectMessage(dbconfig::StringText(343));  // that the file was left unchanged
    Script().ExpectWindow("Response Properties", [last](Person& p) {
      p.Type("&Wave file:", "\\\\a\\b.wav");
      p.Press(last);
    });
  }
  EXPECT_TRUE(hosts::RetargetResponse(nullptr, calls_, overview, expected.responseId));
  const std::string sound = BytesOf(StoredResponses()[0]);
  EXPECT_EQ(TextAt(sound, 996) + TextAt(sound, 1255) + TextAt(sound, 1514), "Sound") << "no user, no message";
  EXPECT_EQ(sound[992] + sound.substr(3824, 32), '\x10' + std::string(16, '\0') + BytesOf(sound_));
}

TEST_F(HostsTest, AManagerDeliversTakesOverAndStops) {
  GUID one{}, two{};
  site::AddManager("ONE", one);
  site::AddManager("TWO", two);
  Script().ExpectWindow("Services of ONE", [&](Person& p) {
    p.ClickRow(kDelivered, 2);
    p.Press("&Deliver");
    EXPECT_EQ(p.Rows(kDelivered)[2], (Row{"Post", "Internet Mail", "On", "ONE"}));
    PressAndFail(p, "&Stop Delivering", StoreOp::kDelete);
    p.Press("Close");
  });
  Script().ExpectMessage("The stores did not take the change. The list shows what holds now.");
  EXPECT_TRUE(hosts::EditManagerServices(nullptr, calls_, Overview(), one));
  EXPECT_EQ(BytesOf(Notes()[0]).substr(16, 32), BytesOf(post_) + BytesOf(one));
  Script().ExpectWindow("Services of TWO", [&](Person& p) {
    p.ClickRow(kDelivered, 2);
    p.Press("&Deliver");
    EXPECT_EQ(Notes()[0].managerGuid, one) << "the answer was No";
    p.Press("&Deliver");
    EXPECT_EQ(BytesOf(Notes()[0]).substr(16, 32), BytesOf(post_) + BytesOf(two));
    p.Press("&Stop Delivering");
    DeleteElsewhere(post_);
    Press(p, {"&Deliver", "Close"});
  });
  for (const auto answer : {ui::Answer::kNo, ui::Answer::kYes})
    Script().ExpectMessage("\"Post\" is delivered by ONE. Have \"TWO\" deliver it instead?", answer);
  Script().ExpectMessage(kDeleted);
  EXPECT_TRUE(hosts::EditManagerServices(nullptr, calls_, Overview(), two));
  EXPECT_TRUE(Notes().empty());
}

TEST_F(HostsTest, ProvidersAreAddedChangedAndRemoved) {
  Script().ExpectWindow("Paging Providers", [&](Person& p) {
    p.Press("&Add...");
    const std::string beta = BytesOf(Providers()[0]);
    EXPECT_EQ(TextAt(beta, 16) + "," + TextAt(beta, 81) + TextAt(beta, 146) + TextAt(beta, 223),
              "Beta,TownNorth555-0123");
    EXPECT_EQ(beta.substr(249), std::string("\x80\x25\0\0\1\0\0\0\x08\0\0\0\1\0\0\0\x50\0\0\0", 20));
    p.DoubleClickRow("Paging &providers:", 0);
    EXPECT_THAT(p.Rows("Paging &providers:"),
                ElementsAre(Row{"Gamma", "North Town", "555-0123", "9600", "80"}));
    Press(p, {"&Remove", "&Remove", "Close"});
  });
  Script().ExpectWindow("New Paging Provider", [&](Person& p) {
    p.Type(kCompany, std::string(65, 'x'));
    p.Press("OK");
    Type(p, {{kCompany, " Beta "}, {"&Location:", "North"}, {"L&ocation, second part:", "Town"}});
    p.Press("OK");
    Type(p, {{kNumber, "555-0123"}, {"&Baud rate:", "9600"}, {"Te&xt length:", "80"}});
    p.Choose("Pa&rity:", "Odd");
    p.Choose("&Data bits:", "8");
    p.Choose("&Stop bits:", "1.5");
    PressAndFail(p, "OK", StoreOp::kAdd);
    EXPECT_EQ(p.Text(kCompany), " Beta ");
    p.Press("OK");
  });
  Script().ExpectMessage("A provider's company has at most 64 bytes: this one has 65.");
  Script().ExpectMessage("The phone number has at least one digit: enter what the modem dials.");
  ExpectFailure("store the paging provider");
  Script().ExpectWindow("Paging Provider Properties", [](Person& p) {
    p.Type(kCompany, "Gamma");
    p.Press("OK");
  });
  for (const auto answer : {ui::Answer::kNo, ui::Answer::kYes})
    Script().ExpectMessage("Remove the paging provider \"Gamma\"? Services set up with it keep its settings.",
                           answer);
  EXPECT_TRUE(hosts::EditProviders(nullptr));
  EXPECT_TRUE(Providers().empty());
}

TEST_F(HostsTest, ProvidersAreImportedFromAFileAndItsFaultsAreTold) {
  const TemporaryDirectory folder;
  const std::string good = folder.Path() + "/good.csv", bad = folder.Path() + "/bad.csv",
                    header = "company,phone,baud rate,parity,data bits,stop bits,text length\n";
  const auto line = [](const std::string& company) { return company + ",555-0161,2400,even,7,1,240\n"; };
  platform::WriteFileAtomically(good, header + line("A") + line("B") + line("A") + line("C"), 0600);
  std::string faults, wrong = header + line("A");
  for (int i = 3; i <= 14; ++i) wrong += "x\n";
  for (int i = 3; i <= 12; ++i)
    faults +=
        "\nLine " + std::to_string(i) + ": the number of fields is 1, that of columns 7: give it as many.";
  platform::WriteFileAtomically(bad, wrong, 0600);
  Script().ExpectWindow("Paging Providers", [&](Person& p) {
    Press(p, {"&Import...", "&Import..."});
    EXPECT_TRUE(Providers().empty());
    library_.engine->FailNth(kAnyStore, StoreOp::kAdd, 2);
    p.Press("&Import...");
    EXPECT_EQ(p.Rows("Paging &providers:").size(), 1u) << "what was added shows";
    p.Press("&Import...");
    EXPECT_THAT(p.Rows("Paging &providers:"), ElementsAre(Row{"A", " ", "555-0161", "2400", "240"},
                                                          Row{"B", " ", "555-0161", "2400", "240"},
                                                          Row{"C", " ", "555-0161", "2400", "240"}));
    EXPECT_NE(p.HelpOn("&Import..."), "");
    p.Press("Close");
  });
  const auto choose = [&](const std::string& path) {
    Script().ExpectFileDialog("Import Paging Providers", path);
  };
  choose("");
  choose(bad);
  Script().ExpectMessage("Nothing was imported. Correct the file and import it again.\n" + faults +
                         "\nand 2 more.");
  choose(good);
  Script().ExpectMessage(
      hosts::Sentence(site::FailureText("add the paging provider \"B\"", alertstore::kIoError) +
                      "; 1 of 4 were added: import the file again to add the rest"));
  choose(good);
  Script().ExpectMessage("2 paging providers were added; the site had 2 already.");
  EXPECT_TRUE(hosts::EditProviders(nullptr));
}

TEST_F(HostsTest, ComputersAreAddedAndRemoved) {
  alertstore::AddComputer(GUID::Generate(), "DESK");
  Script().ExpectWindow("Computers of the Site", [&](Person& p) {
    p.Press("&Add...");
    EXPECT_THAT(p.Rows("&Computers:"), ElementsAre(Row{"attic"}, Row{"DESK"}));
    Press(p, {"&Remove", "&Remove"});
    EXPECT_THAT(Desk().CutControls(), ElementsAre()) << "the empty list says what to do";
    p.Press("Close");
  });
  Script().ExpectWindow("New Computer", [](Person& p) {
    for (const char* name : {"desk", "attic"}) {
      p.Type("&Name:", name);
      p.Press("OK");
    }
  });
  Script().ExpectMessage("The site knows a computer of that name: enter another.");
  for (const std::string name : {"attic", "DESK"})
    Script().ExpectMessage("Remove the computer \"" + name + "\" from those that can be chosen?",
                           ui::Answer::kYes);
  EXPECT_TRUE(hosts::EditComputers(nullptr));
}

}  // namespace
}  // namespace stories
