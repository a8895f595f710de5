// SPDX-License-Identifier: MIT
#include "server/settings.h"

#include <algorithm>
#include <filesystem>

#include "server/json_members.h"
#include "server/safe_file.h"

namespace alertserver {
namespace {

constexpr std::size_t kMaxSize = 64 * 1024;

/// Takes members over, and complains about those that cannot be.
class Reader {
 public:
  Reader(const Json& file, std::vector<std::string>& problems) : file_(file), problems_(problems) {}

  template <class Number>
  void Take(const char* member, std::uint64_t least, std::uint64_t most, Number& number) {
    if (!file_.contains(member)) return;
    const Json& found = file_[member];
    if (found.is_number_unsigned() && found.get<std::uint64_t>() >= least &&
        found.get<std::uint64_t>() <= most)
      number = static_cast<Number>(found.get<std::uint64_t>());
    else
      Complain(member, "a whole number from " + std::to_string(least) + " to " + std::to_string(most));
  }
  void Take(const char* member, std::uint64_t least, std::uint64_t most, std::chrono::milliseconds& time) {
    auto count = static_cast<std::uint64_t>(time.count());
    Take(member, least, most, count);
    time = std::chrono::milliseconds(count);
  }
  void Take(const char* member, std::string& text) {
    if (!file_.contains(member)) return;
    if (const Json& found = file_[member];
        found.is_string() && IsOneLine(found.get_ref<const std::string&>()))
      text = found.get<std::string>();
    else
      Complain(member, "a text of one line");
  }
  /// One of several words; `value` is set to the one that belongs to it.
  template <class Value>
  void TakeWord(const char* member, std::initializer_list<std::pair<const char*, Value>> words,
                Value& value) {
    std::string word, choice;
    Take(member, word);
    if (word.empty()) return;
    for (const auto& [name, meant] : words) {
      if (word == name) return void(value = meant);
      choice += (choice.empty() ? "\"" : ", \"") + std::string(name) + '"';
    }
    Complain(member, "one of " + choice);
  }
  void Complain(const std::string& member, const std::string& wanted) {
    problems_.push_back("\"" + member + "\" has to be " + wanted + "; the default is used.");
  }

 private:
  static bool IsOneLine(const std::string& text) {
    return text.size() <= 255 &&
           std::ranges::none_of(text, [](unsigned char c) { return c < ' ' || c == 127; });
  }

  const Json& file_;
  std::vector<std::string>& problems_;
};

/// "COM1": "/dev/ttyUSB0", ...
void TakePorts(const Json& file, std::vector<std::string>& problems, Settings& settings) {
  const Json& ports = ObjectOf(file, "ports");
  for (std::size_t i = 0; i < settings.com_ports.size(); ++i) {
    const std::string name = "COM" + std::to_string(i + 1);
    Reader reader(ports, problems);
    std::string device = settings.com_ports[i];
    reader.Take(name.c_str(), device);
    if (device.empty() || device.starts_with('/'))
      settings.com_ports[i] = device;
    else
      reader.Complain(name, "the whole path of a device");
  }
}

bool IsIdentifier(const std::string& text) {
  const bool has_numbers =
      std::ranges::all_of(text, [](char c) { return (c >= '0' && c <= '9') || c == '.'; });
  return has_numbers && text.starts_with("1.3.6.1.") && !text.ends_with('.') && text.size() < 100 &&
         text.find("..") == std::string::npos;
}

void TakeEnterprise(Reader& reader, Settings& settings) {
  std::string enterprise = settings.trap_enterprise;
  reader.Take("trapEnterprise", enterprise);
  if (IsIdentifier(enterprise))
    settings.trap_enterprise = enterprise;
  else
    reader.Complain("trapEnterprise", "an object identifier that begins with 1.3.6.1");
}

}  // namespace

Settings ParseSettings(const std::string& text, std::vector<std::string>& problems) {
  Settings settings;
  const Json file = ParseObject(text);
  if (!file.is_object()) {
    problems.emplace_back("The file is damaged; the defaults are used.");
    return settings;
  }
  Reader reader(file, problems);
  TakePorts(file, problems, settings);
  reader.Take("smtpPort", 1, 65'535, settings.smtp_port);
  reader.Take("mailMilliseconds", 100, 55'000, settings.mail_limit);
  reader.TakeWord<MailTls>(
      "mailTls", {{"offered", MailTls::kOffered}, {"verified", MailTls::kVerified}, {"none", MailTls::kNone}},
      settings.mail_tls);
  reader.Take("mailFrom", settings.mail_from);
  reader.Take("trapPort", 1, 65'535, settings.trap_port);
  reader.TakeWord<bool>("trapVersion", {{"1", true}, {"2c", false}}, settings.trap_version_1);
  reader.Take("informMilliseconds", 0, 10'000, settings.inform_wait);
  TakeEnterprise(reader, settings);
  reader.Take("programMilliseconds", 100, 55'000, settings.program_limit);
  reader.Take("soundMilliseconds", 100, 55'000, settings.sound_limit);
  reader.Take("siteName", settings.site_name);
  return settings;
}

Settings ReadSettings(const std::string& path, std::vector<std::string>& problems) {
  std::string text, problem;
  std::error_code none;
  if (!std::filesystem::exists(std::filesystem::symlink_status(path, none))) return {};
  if (ReadSafeFile(path, kMaxSize, text, problem)) return ParseSettings(text, problems);
  problems.push_back("The defaults are used, because " + problem + ".");
  return {};
}

std::string DeviceOf(const Settings& settings, std::uint32_t com_port) {
  return com_port >= 1 && com_port <= settings.com_ports.size() ? settings.com_ports[com_port - 1] : "";
}

}  // namespace alertserver
