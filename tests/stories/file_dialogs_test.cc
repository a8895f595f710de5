// SPDX-License-Identifier: MIT
// The dialogs that pick the files of services and responses.
#include <fstream>

#include "alerting/ui/icon_open_dialog.h"
#include "alerting/ui/program_dialogs.h"
#include "alerting/ui/universal_path.h"
#include "alerting/ui/wave_open_dialog.h"
#include "platform/ui/desktop.h"
#include "tests/stories/story_test.h"
#include "tests/support/icon_bytes.h"
#include "tests/support/service_fixture.h"

namespace stories {
namespace {

using namespace alerting;  // NOLINT
using Scroll = ui::Canvas::Scroll;

constexpr char kIcon[] = "Select Icon", kWave[] = "Select WAV file";

const std::string kGuide = "\nRefer to the implementation guide for additional information.";
const std::string kLater = "\nThe product may not operate correctly as a result." + kGuide;
const std::pair<int, std::string> kWarnings[] = {
    {kPathInTree,
     "Console has detected that the path you entered contains the NDS tree.\nIt is recommended that you "
     "enter the UNC path or map the drive directly not through the NDS tree." +
         kGuide},
    {kPathNotUniversal, "Unable to create a UNC universal pathname to the file you selected." + kLater},
    {kPathInvalid, "Path is invalid." + kLater},
    {-1, "Path is invalid." + kLater}};

class PathStoriesTest : public StoryTest {
 protected:
  /// Makes a file of those bytes in a folder of the test's own.
  std::string File(const std::string& name, const test_support::Bytes& bytes = {'R', 'I', 'F', 'F'}) {
    const std::string path = folder_.Path() + '/' + name;
    std::ofstream(path).write(reinterpret_cast<const char*>(bytes.data()), std::ssize(bytes));
    return path;
  }

  std::string Library(int icons, const std::string& name) {
    const std::vector<test_support::Group> groups(static_cast<std::size_t>(icons), {{32, 1, 1}});
    return File(name, test_support::PortableExecutable({test_support::Plain(32, 0xFF0000)}, groups));
  }

  test_support::LibraryUnderTest library_;
  const test_support::TemporaryDirectory folder_;
};

TEST_F(PathStoriesTest, AWarningTellsAndAQuestionLetsThePersonDecide) {
  ShowPathWarning(kPathDone);
  EXPECT_TRUE(ConfirmPathWarning(kPathDone));
  for (const auto& [code, text] : kWarnings) {
    Script().ExpectMessage(text);
    ShowPathWarning(code);
    for (const ui::Answer answer : {ui::Answer::kYes, ui::Answer::kNo}) {
      Script().ExpectMessage(text + "\nDo you wish to use the non-UNC path anyway?", answer);
      EXPECT_EQ(ConfirmPathWarning(code), answer == ui::Answer::kYes);
    }
  }
}

TEST_F(PathStoriesTest, AChosenProgramIsTakenInTheBestFormFoundAndCancelTakesNothing) {
  const std::string program = File("run.exe");
  library_.netpath.operation13 = 0;
  library_.netpath.resolved = program;
  std::string path = "kept";
  Script().ExpectFileDialog("Select Exe File For Response", "");
  EXPECT_EQ(CProgOpenDialog(nullptr, "").ChooseUniversal(path), ui::kCancel);
  EXPECT_EQ(path, "kept");
  Script().ExpectFileDialog("Select Exe File For Response", program);
  Script().ExpectMessage(kWarnings[1].second);
  EXPECT_EQ(CProgOpenDialog(nullptr, "").ChooseUniversal(path), ui::kOk);
  EXPECT_EQ(path, program);
  library_.netpath.universal = "\\\\files\\run.exe";
  Script().ExpectFileDialog("Select Exe File For Response", program);
  EXPECT_EQ(CProgOpenDialog(nullptr, program).ChooseUniversal(path), ui::kOk);
  EXPECT_EQ(path, "\\\\files\\run.exe");
}

TEST_F(PathStoriesTest, ScriptsAreLookedForInTheirFolder) {
  library_.dbconfig.data_directory = folder_.Path() + "/data/";
  std::filesystem::create_directories(folder_.Path() + "/data/console/mgrs");
  const std::string script = File("data/console/mgrs/page.scr");
  const std::filesystem::path before = std::filesystem::current_path();
  CScriptOpenDialog dialog(nullptr, "page.scr");
  Script().ExpectFileDialog("Select Script File For Response", "",
                            [&](Person&) { EXPECT_EQ(dialog.Highlighted(), script); });
  EXPECT_EQ(dialog.Choose(), ui::kCancel);
  Script().ExpectFileDialog("Select Script File For Response", script);
  EXPECT_EQ(dialog.Choose(), ui::kOk);
  EXPECT_EQ(dialog.Path(), script);
  EXPECT_EQ(std::filesystem::current_path(), before);
}

TEST_F(PathStoriesTest, TheIconOfBeforeIsTheRightmostAndAnotherCanBeChosen) {
  const std::string library = Library(20, "icons.dll");
  std::uint32_t index = 12;
  CIconOpenDialog dialog(nullptr, library, &index);
  const CIconStrip& strip = dialog.Strip();
  Script().ExpectFileDialog(kIcon, library, [&](Person& p) {
    const int cell = ui::Desktop::Current().IconSpacing(), visible = strip.VisibleCount();
    EXPECT_EQ(strip.Count(), 20);
    EXPECT_GE(visible, 7);
    EXPECT_EQ(strip.Selected(), 12);
    EXPECT_EQ(strip.FirstVisible(), 13 - visible);
    p.ScrollCanvas("Icons", Scroll::kPageLeft);
    EXPECT_EQ(strip.FirstVisible(), 0);
    p.ScrollCanvas("Icons", Scroll::kThumb, 4);
    p.ClickAt("Icons", 2 * cell + 5, 20);
    EXPECT_EQ(strip.Selected(), 6);
    p.Press(ui::Key::kLeft);
    EXPECT_EQ(p.FocusedLabel(), "Icons");
  });
  EXPECT_EQ(dialog.Choose(), ui::kOk);
  EXPECT_EQ(dialog.Path(), library);
  EXPECT_EQ(index, 5u);
}

TEST_F(PathStoriesTest, TheStripFollowsTheFileAndCancelKeepsTheIndex) {
  const std::string many = Library(1500, "many.exe"), none = File("none.ico");
  std::uint32_t index = 2;
  for (const std::string& other : {many, none}) {
    CIconOpenDialog dialog(nullptr, Library(3, "few.dll"), &index);
    Script().ExpectFileDialog(kIcon, other, [&](Person& p) {
      EXPECT_EQ(dialog.Strip().Count(), other == many ? 1000 : 0);
      p.Focus("Icons");
      p.Press(ui::Key::kRight);
    });
    EXPECT_EQ(dialog.Choose(), ui::kOk);
    EXPECT_EQ(std::exchange(index, 2), other == many ? 1u : 0u);
  }
  CIconOpenDialog dialog(nullptr, "", &index);
  Script().ExpectFileDialog(kIcon, "", [&](Person&) { EXPECT_EQ(dialog.Strip().Count(), 0); });
  EXPECT_EQ(dialog.Choose(), ui::kCancel);
  EXPECT_EQ(index, 2u);
}

TEST_F(PathStoriesTest, ASoundIsPlayedToItsEndOrStopped) {
  const std::string wave = File("beep.wav");
  CWaveOpenDialog dialog(nullptr, "");
  const auto playing = [&](Person& p) {
    EXPECT_NE(p.IsEnabled("Play"), p.IsEnabled("Stop"));
    EXPECT_EQ(p.IsEnabled("Stop"), !Desk().PlayingSound().empty());
    return p.IsEnabled("Stop");
  };
  Script().ExpectFileDialog(kWave, wave, [&](Person& p) {
    EXPECT_FALSE(playing(p));
    p.Press("Play");
    EXPECT_EQ(Desk().PlayingSound(), wave);
    EXPECT_TRUE(playing(p));
    p.Press("Stop");
    EXPECT_FALSE(playing(p));
    p.Press("Play");
    Desk().FinishSound();
    EXPECT_FALSE(playing(p));
    p.Press("Play");
    EXPECT_TRUE(playing(p));
  });
  EXPECT_EQ(dialog.Choose(), ui::kOk);
  EXPECT_EQ(Desk().PlayingSound(), "") << "closing the dialog stops the sound";
}

TEST_F(PathStoriesTest, ASoundThatCannotBePlayedLeavesThePlayButton) {
  CWaveOpenDialog dialog(nullptr, folder_.Path() + "/missing.wav");
  Script().ExpectFileDialog(kWave, "", [](Person& p) {
    p.Press("Play");
    EXPECT_TRUE(p.IsEnabled("Play"));
    EXPECT_FALSE(p.IsEnabled("Stop"));
  });
  EXPECT_EQ(dialog.Choose(), ui::kCancel);
}

TEST_F(PathStoriesTest, OldSystemsShowThePlainDialogs) {
  Desk().SetSystemMajorVersion(3);
  const std::string library = Library(20, "icons.dll"), wave = File("beep.wav");
  std::uint32_t index = 12;
  CIconOpenDialog icons(nullptr, library, &index);
  CWaveOpenDialog sounds(nullptr, wave);
  EXPECT_FALSE(icons.HasPreview() || sounds.HasPreview());
  Script().ExpectFileDialog(kIcon, library);
  EXPECT_EQ(icons.Choose(), ui::kOk);
  EXPECT_EQ(index, 12u) << "no icon was chosen";
  Script().ExpectFileDialog(kWave, wave);
  EXPECT_EQ(sounds.Choose(), ui::kOk);
}

}  // namespace
}  // namespace stories
