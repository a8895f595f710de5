// SPDX-License-Identifier: MIT
#include "console/site/provider_import.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include "console/site/failure.h"
#include "console/site/provider_fields.h"
#include "platform/base/atomic_write.h"
#include "tests/support/temporary.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

const std::string kHeader =
                      "company,region A,region B,phone,baud rate,parity,data bits,stop bits,text length\n",
                  kLine = ",,,555-0101,2400,even,7,1,240\n", kPlain = "|||555-0101|2400|even|7|1|240";

class ProviderImportTest : public testing::Test {
 protected:
  site::ProviderFile Read(const std::string& text) {
    EXPECT_TRUE(platform::WriteFileAtomically(path_, text, 0600));
    return site::ReadProviderFile(path_);
  }

  /// The providers with their fields between bars; else the faults.
  std::vector<std::string> Said(const std::string& text) {
    const site::ProviderFile file = Read(text);
    EXPECT_TRUE(file.providers.empty() || file.faults.empty());
    std::vector<std::string> said = file.faults;
    for (const site::Provider& provider : file.providers) {
      std::string fields;
      for (const site::ProviderField& field : site::ProviderFields()) fields += "|" + field.text(provider);
      said.push_back(fields.substr(1));
    }
    return said;
  }

  const test_support::TemporaryDirectory temporary_;
  const std::string path_ = temporary_.Path() + "/p.csv";
};

TEST_F(ProviderImportTest, TablesAsProgramsWriteThemAreRead) {
  using Lines = std::vector<std::string>;
  const std::string turned = "TEXT LENGTH,Stop Bits,data bits,parity,baud rate,phone,Company\r\n";
  const std::pair<std::string, Lines> cases[] = {
      {kHeader, {}},
      {kHeader + "A" + kLine, {"A" + kPlain}},
      {"\xEF\xBB\xBF" + kHeader + "\xC3\x84" + kLine, {"\xC3\x84" + kPlain}},
      {kHeader + "A" + kLine.substr(0, kLine.size() - 1), {"A" + kPlain}},
      {kHeader + "\n , ,,,,,,,\n  A  " + kLine + "\n\n", {"A" + kPlain}},
      {kHeader + "\"A, \"\"B\"\"\"" + kLine, {"A, \"B\"" + kPlain}},
      {turned + "80,1.5,8,ODD,300,(555) 0102,A\r\n\r\n1,2,6,None,1,5,B\r\n",
       {"A|||(555) 0102|300|odd|8|1.5|80", "B|||5|1|none|6|2|1"}},
      {turned.substr(0, turned.size() - 2) + "\r240,1,7,even,2400,555-0101,A\r", {"A" + kPlain}}};
  for (const auto& [text, expected] : cases) EXPECT_EQ(Said(text), expected) << text;
}

TEST_F(ProviderImportTest, AllFaultsAreToldWithTheirPlaceAndNothingIsTaken) {
  EXPECT_THAT(
      Said(kHeader + "Good" + kLine + "\n\"A\nB\"" + kLine + "C,,,call,0,mark,5,3,256\nD\nE,,," + kLine +
           "\xFF" + kLine + std::string(65, 'x') + kLine + "F," + std::string(1, '\0') + kLine.substr(1)),
      ElementsAre(HasSubstr("line 4, column 1 (company): "), HasSubstr("line 6, column 4 (phone): "),
                  HasSubstr("line 6, column 5 (baud rate): "), HasSubstr("line 6, column 6 (parity): "),
                  HasSubstr("line 6, column 7 (data bits): "), HasSubstr("line 6, column 8 (stop bits): "),
                  HasSubstr("line 6, column 9 (text length): "),
                  "line 7: the number of fields is 1, that of columns 9: give it as many",
                  HasSubstr("line 8: the number of fields is 12"), HasSubstr("line 9, column 1 (company): "),
                  HasSubstr("this one has 65"), HasSubstr("line 11, column 2 (region A): ")));
  EXPECT_THAT(Said(kHeader + "A,,,1,9" + std::string(12, '9') + ",even,7,1,2 40\n"),
              ElementsAre(HasSubstr("(baud rate)"), HasSubstr("(text length)")))
      << "no number";
  EXPECT_THAT(Said(kHeader + "D\n" + "A \"B\"" + kLine + "C" + kLine),
              ElementsAre(HasSubstr("line 2: "), HasSubstr("line 3: a quote is not closed")));
  EXPECT_THAT(Said(kHeader + "A" + kLine + "\"B" + kLine + "C" + kLine),
              ElementsAre(HasSubstr("line 3: a quote is not closed")))
      << "where it was opened";
}

TEST_F(ProviderImportTest, AHeaderThatSaysSomethingElseIsRefusedBeforeItsRows) {
  EXPECT_THAT(Said(""), ElementsAre(HasSubstr("line 1: the file is empty")));
  EXPECT_THAT(Said("\n\n" + kHeader.substr(0, kHeader.size() - 1) + ",phone,fax\nA\n"),
              ElementsAre("line 3, column 10: there is a column \"phone\" already: leave one out",
                          HasSubstr("line 3, column 11: no column of a provider is called \"fax\"")));
  EXPECT_THAT(Said("phone;company,baud rate,parity,data bits,stop bits\nA\n"),
              ElementsAre(HasSubstr("called \"phone;company\""), HasSubstr("no column \"company\""),
                          HasSubstr("no column \"phone\""), HasSubstr("no column \"text length\"")));
}

TEST_F(ProviderImportTest, FilesThatAreNoSuchTableAreRefusedWhole) {
  const auto refused = [](const std::string& path) -> std::pair<int, std::string> {
    try {
      site::ReadProviderFile(path);
      return {};
    } catch (const site::Failure& failure) {
      return {failure.Code(), failure.what()};
    }
  };
  const std::string pipe = temporary_.Path() + "/pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(refused(path_).first, site::kNothingMatched);
  for (const std::string& path : {temporary_.Path(), pipe}) EXPECT_EQ(refused(path).first, site::kInvalid);
  constexpr std::size_t kMost = 5 * 1024 * 1024;
  const std::string whole = kHeader + "A" + kLine;
  EXPECT_EQ(Read(whole + std::string(kMost - whole.size(), '\n')).providers.size(), 1u);
  ASSERT_TRUE(
      platform::WriteFileAtomically(path_, whole + std::string(kMost + 1 - whole.size(), '\n'), 0600));
  EXPECT_THAT(refused(path_).second, HasSubstr("larger than 5 MB"));
  ASSERT_TRUE(platform::WriteFileAtomically(path_,
                                            "\xFF\xFE"
                                            "c",
                                            0600));
  EXPECT_THAT(refused(path_).second, HasSubstr("UTF-16"));
}

}  // namespace
