// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <signal.h>

#include <filesystem>
#include <thread>

#include "tests/server/test_site.h"

namespace fs = std::filesystem;
using test_support::Json;
using test_support::StepOf;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

namespace {

class ServerPrograms : public testing::Test {
 protected:
  /// A shell script of that name in the data directory.
  std::string Script(const std::string& name, const std::string& lines) {
    const std::string path = site_.Data() + '/' + name;
    test_support::WriteFile(path, "#!/bin/sh\n" + lines + "\n");
    fs::permissions(path, fs::perms::owner_all);
    return path;
  }
  Json Launch(const std::string& program, const char* command_line = "") {
    if (site_.configuration["services"].empty()) site_.AddService("program-launch", 14);
    site_.response.subject.Assign(program);
    site_.response.message.Assign(command_line);
    return site_.Serve(++job_);
  }

  test_support::TestSite site_;
  std::uint32_t job_ = 0;
};

TEST_F(ServerPrograms, AProgramGetsItsWordsAndNoSecrets) {
  const test_support::SavedVariable saved("ALERTING_TEST_SECRET");
  setenv("ALERTING_TEST_SECRET", "MARKED-SECRET-3", 1);
  const std::string program =
      Script("show", "for word in \"$@\"; do echo \"[$word]\"; done; env; ls /proc/self/fd | wc -l");
  site_.response.userName.Assign("localhost");
  site_.response.messageKeywords[0] = 12;
  const Json report = Launch(program, "-x \"two words\" %s $HOME `id` ;");
  EXPECT_EQ(report["verdict"], "delivered") << report.dump(1);
  const std::string transcript = report["transcript"];
  EXPECT_THAT(transcript,
              AllOf(HasSubstr("< [-x]\n< [two words]\n< [This is a test.]\n< [$HOME]\n< [`id`]\n< [;]\n"),
                    Not(HasSubstr("MARKED-SECRET")), HasSubstr("PATH=")));
  EXPECT_TRUE(transcript.ends_with("< 4\n")) << "no descriptor but the three, and that of the listing\n"
                                             << transcript;
}

TEST_F(ServerPrograms, HowAProgramEndsIsTold) {
  const Json failed = Launch(Script("fail", "echo no disk >&2; exit 7"));
  EXPECT_EQ(failed["verdict"], "refused");
  EXPECT_EQ(failed["steps"].back()["said"], "no disk");
  EXPECT_THAT(failed["explanation"].get<std::string>(), HasSubstr("exit status 7"));
  EXPECT_EQ(failed["field"], "subject");
  EXPECT_THAT(Launch(Script("die", "kill -9 $$"))["explanation"].get<std::string>(), HasSubstr("signal 9"));
  test_support::WriteFile(site_.Data() + "/no-program", "text");
  EXPECT_EQ(Launch(site_.Data() + "/no-program")["verdict"], "refused");
  EXPECT_EQ(Launch(site_.Data() + "/missing")["verdict"], "notReached");
  EXPECT_EQ(Launch("\\\\SERVER\\share\\program.exe")["verdict"], "notPossible");
  EXPECT_EQ(Launch("/bin/true", "\"open")["field"], "message");
  site_.response.userName.Assign("another-machine");
  const Json elsewhere = Launch("/bin/true");
  EXPECT_EQ(elsewhere["verdict"], "notPossible");
  EXPECT_EQ(elsewhere["field"], "userName");
}

TEST_F(ServerPrograms, AProgramThatDoesNotEndIsStoppedWithAllThatItStarted) {
  site_.WriteSettings({{"programMilliseconds", 300}});
  const Json report = Launch(Script("hang", "sleep 60 & echo $! > " + site_.Data() + "/child; yes; wait"));
  EXPECT_EQ(report["verdict"], "refused");
  EXPECT_THAT(report["explanation"].get<std::string>(), HasSubstr("was stopped"));
  EXPECT_LT(report["transcript"].get<std::string>().size(), 20'000u);
  const pid_t child = std::stoi(test_support::ReadFile(site_.Data() + "/child"));
  const auto is_gone = [child] {
    // A zombie that nobody waits for has ended, too.
    const std::string stat = test_support::ReadFile("/proc/" + std::to_string(child) + "/stat");
    return stat.empty() || stat.find(") Z") != std::string::npos;
  };
  for (int i = 0; i < 200 && !is_gone(); ++i) std::this_thread::sleep_for(std::chrono::milliseconds(10));
  EXPECT_TRUE(is_gone());
}

TEST_F(ServerPrograms, SoundsAndSpeechNeedAProgramOfTheSystem) {
  const test_support::SavedVariable saved("PATH");
  const std::string bin = site_.Data() + "/bin";
  fs::create_directory(bin);
  setenv("PATH", bin.c_str(), 1);
  site_.AddService("text-to-speech", 9);
  site_.response.message.Assign("Say this");
  const Json none = site_.Serve(++job_);
  EXPECT_EQ(none["verdict"], "notPossible");
  EXPECT_THAT(none["explanation"].get<std::string>(), HasSubstr("espeak-ng"));
  Script("bin/espeak-ng", "/bin/cat > " + site_.Data() + "/spoken; echo \"$*\"");
  const Json spoken = site_.Serve(++job_);
  EXPECT_EQ(spoken["verdict"], "sent") << "nobody knows that it was heard";
  EXPECT_EQ(test_support::ReadFile(site_.Data() + "/spoken"), "Say this");
  EXPECT_THAT(spoken["transcript"].get<std::string>(), Not(HasSubstr("Say this")))
      << "not in the process list";

  site_.AddService("wave-file", 8);
  const std::string sound = site_.Data() + "/sound.wav";
  site_.response.subject.Assign(sound);
  EXPECT_EQ(site_.Serve(++job_)["verdict"], "notReached");
  test_support::WriteFile(sound, "RIFFxxxxWAVX");
  EXPECT_EQ(site_.Serve(++job_)["verdict"], "refused");
  test_support::WriteFile(sound, "RIFFxxxxWAVEfmt ");
  EXPECT_EQ(site_.Serve(++job_)["verdict"], "notPossible");
  Script("bin/aplay", "echo \"$2\"");
  const Json played = site_.Serve(++job_);
  EXPECT_EQ(played["verdict"], "sent") << played.dump(1);
  EXPECT_THAT(played["transcript"].get<std::string>(), HasSubstr(sound));
}

}  // namespace
