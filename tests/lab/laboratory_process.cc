// SPDX-License-Identifier: MIT
#include "tests/lab/laboratory_process.h"

#include <fcntl.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <sstream>
#include <thread>

using nlohmann::json;

namespace {

constexpr int kLooks = 1000;  // of ten milliseconds

void Nap() { std::this_thread::sleep_for(std::chrono::milliseconds(10)); }

std::filesystem::path NewFolder() {
  std::string pattern = std::filesystem::temp_directory_path() / "laboratoryXXXXXX";
  return mkdtemp(pattern.data());
}

/// In the child: only calls that are safe in the child of a program with threads.
[[noreturn]] void Become(std::vector<char*>& words, int input, const char* said) {
  const int output = open(said, O_WRONLY | O_CREAT | O_APPEND, 0600);
  dup2(input, STDIN_FILENO);
  dup2(output, STDOUT_FILENO);
  dup2(output, STDERR_FILENO);
  execv(words.front(), words.data());
  _exit(127);
}

}  // namespace

LaboratoryProcess::LaboratoryProcess(std::vector<std::string> arguments) : folder_(NewFolder()) {
  arguments.insert(arguments.begin(),
                   {ALERTLAB, "--hurry", "--keep", folder_ / "arrivals", "--ready-file", folder_ / "ready"});
  Start(arguments);
  WaitUntilReady();
}

LaboratoryProcess::~LaboratoryProcess() {
  Stop();
  std::filesystem::remove_all(folder_);
}

void LaboratoryProcess::Start(const std::vector<std::string>& arguments) {
  std::vector<char*> words;
  for (const std::string& argument : arguments) words.push_back(const_cast<char*>(argument.c_str()));
  words.push_back(nullptr);
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) return;
  const std::string said = folder_ / "said";
  process_ = fork();
  if (process_ == 0) Become(words, ends[0], said.c_str());
  close(ends[0]);
  control_ = ends[1];
}

void LaboratoryProcess::WaitUntilReady() {
  for (int looks = 0; looks < kLooks && places_.is_null(); ++looks) {
    std::ifstream file(folder_ / "ready");
    if (file)
      places_ = json::parse(file);
    else
      Nap();
  }
}

std::vector<json> LaboratoryProcess::Arrivals(const std::string& device, const std::string& what,
                                              std::size_t count) const {
  std::vector<json> found;
  for (int looks = 0; looks < kLooks / 5; ++looks) {
    found.clear();
    std::ifstream file(folder_ / "arrivals");
    for (std::string line; std::getline(file, line);)
      if (json one = json::parse(line, nullptr, false);
          one.is_object() && one["device"] == device && one["what"] == what)
        found.push_back(std::move(one));
    if (found.size() >= count) break;
    Nap();
  }
  return found;
}

std::string LaboratoryProcess::Said() const {
  std::ifstream file(folder_ / "said");
  return {std::istreambuf_iterator<char>(file), {}};
}

void LaboratoryProcess::Tell(const std::string& line) const {
  const std::string text = line + "\n";
  if (write(control_, text.data(), text.size()) < 0) abort();
}

int LaboratoryProcess::Stop() {
  if (process_ < 0) return -1;
  kill(process_, SIGTERM);
  int status = 0;
  waitpid(process_, &status, 0);
  process_ = -1;
  close(control_);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}
